// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/FileNotices.h"

#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QFileInfo>

#include <utility>

namespace quillon {

namespace {

QString topicOfChange() {
    return QStringLiteral("changed on disk");
}

QString topicOfSaving() {
    return QStringLiteral("saving");
}

QString nameOf(const QString& path) {
    return toQString(tallyrig::text::visibleText(QFileInfo(path).fileName().toStdString()));
}

QString sentence(SavingConcern concern, const QString& path) {
    const QString format =
        formatWrittenTo(path) == tallyrig::LogFormat::adx ? QStringLiteral("ADX") : QStringLiteral("ADIF");
    switch (concern) {
        case SavingConcern::noQSOs:
            return QStringLiteral("In „%1“ wurde kein QSO gefunden. Speichern ersetzt, was darin steht.")
                .arg(nameOf(path));
        case SavingConcern::notWhole:
            return QStringLiteral(
                       "„%1“ wurde nicht ganz gelesen. Was nicht gelesen wurde, steht nach dem "
                       "Speichern nicht mehr darin.")
                .arg(nameOf(path));
        case SavingConcern::otherFormat:
            break;
    }
    return QStringLiteral("„%1“ wird als %2 geschrieben.").arg(nameOf(path), format);
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
    connect(&watch, &FileWatch::settled, this, [this] { strip.withdraw(topicOfChange()); });
    connect(&stores.log, &LogStore::changedOnDisk, this, [this](const QString& path) {
        if (!strip.enter(topicOfChange())) {
            strip.tellAtOnce(changedNotice(path));
        }
    });
    // Another log is open, or this one is saved: what the notices offer is about the file of another.
    const auto withdrawAll = [this] {
        strip.withdraw(topicOfSaving());
        strip.withdraw(topicOfChange());
    };
    connect(&stores.log, &LogStore::savedDocumentChanged, this, withdrawAll);
    connect(&stores.log, &LogStore::fileURLChanged, this, withdrawAll);
    connect(&stores.log, &LogStore::written, this, withdrawAll);
    connect(&stores.log, &LogStore::readingReportChanged, this, [this] { strip.withdraw(topicOfSaving()); });
}

void FileNotices::tellOf(const QString& path) {
    strip.tell(changedNotice(path));
}

Notice FileNotices::changedNotice(const QString& path) {
    return {topicOfChange(),
            QStringLiteral("Die Datei „%1“ wurde inzwischen geändert.").arg(nameOf(path)),
            Notice::Kind::warning,
            {{QStringLiteral("Neu laden"), [this, path] { open(path); }},
             {QStringLiteral("Vergleichen"), [this, path] { compare(path); }},
             {QStringLiteral("Ersetzen"),
              [this] {
                  showBusyCursorUntilIdle();
                  stores.log.saveReplacing();
              }}},
            {}};
}

void FileNotices::save() {
    const auto concern = stores.log.savingConcern();
    if (!concern) {
        showBusyCursorUntilIdle();
        stores.log.save();
    } else if (!strip.enter(topicOfSaving())) {
        strip.tellAtOnce(savingNotice(*concern));
    }
}

Notice FileNotices::savingNotice(SavingConcern concern) {
    return {topicOfSaving(),
            sentence(concern, stores.log.fileURL().value_or(QString())),
            Notice::Kind::warning,
            {{QStringLiteral("Speichern unter…"), [this] { stores.log.saveWithPanel(); }},
             {QStringLiteral("Trotzdem"),
              [this] {
                  showBusyCursorUntilIdle();
                  stores.log.save();
              }}},
            {}};
}

void FileNotices::compare(const QString& path) {
    showBusyCursorUntilIdle();
    stores.compare.setLeftFile(std::nullopt);
    stores.compare.loadInItsFormat(CompareStore::Side::right, path);
    stores.log.setMode(AppMode::compare);
}

}  // namespace quillon
