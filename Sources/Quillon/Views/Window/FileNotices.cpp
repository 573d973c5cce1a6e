// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/FileNotices.h"

#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/NoticeStrip.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QFileInfo>

#include <utility>

namespace quillon {

namespace {

QString topic() {
    return QStringLiteral("changed on disk");
}

}  // namespace

FileNotices::FileNotices(const AppStores& appStores, NoticeStrip& noticeStrip, QWidget& window,
                         std::function<void(const QString& path)> openFile)
    : QObject(&window),
      stores(appStores),
      strip(noticeStrip),
      open(std::move(openFile)),
      watch(stores.log, this) {
    connect(&watch, &FileWatch::changedByOthers, this, &FileNotices::tellOf);
    connect(&watch, &FileWatch::settled, this, [this] { strip.withdraw(topic()); });
}

void FileNotices::tellOf(const QString& path) {
    const std::string name = tallyrig::text::visibleText(QFileInfo(path).fileName().toStdString());
    strip.tell({topic(),
                QStringLiteral("Die Datei „%1“ ist inzwischen eine andere.").arg(toQString(name)),
                Notice::Kind::warning,
                {{QStringLiteral("Neu laden"), [this, path] { open(path); }},
                 {QStringLiteral("Vergleichen"), [this, path] { compare(path); }},
                 {QStringLiteral("Ersetzen"),
                  [this] {
                      showBusyCursorUntilIdle();
                      stores.log.save();
                  }}},
                {}});
}

void FileNotices::compare(const QString& path) {
    showBusyCursorUntilIdle();
    stores.compare.setLeftFile(std::nullopt);
    stores.compare.load(CompareStore::Side::right, path);
    stores.log.setMode(AppMode::compare);
}

}  // namespace quillon
