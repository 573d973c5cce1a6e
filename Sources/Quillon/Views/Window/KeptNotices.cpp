// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/KeptNotices.h"

#include "Quillon/Keeping/KeptWords.h"
#include "Quillon/Keeping/LogKeeper.h"
#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/NoticeStrip.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Sheets/KeptLogsSheet.h"

#include <utility>

namespace quillon {

namespace {

/// Of the notice that tells of several logs at once.
QString topicOfSeveral() {
    return QStringLiteral("left behind");
}

QString topicOf(const KeptEntry& entry) {
    return QString::fromStdString(entry.file);
}

}  // namespace

KeptNotices::KeptNotices(const AppStores& appStores, LogKeeper& logKeeper, NoticeStrip& noticeStrip,
                         QWidget& sheetWindow, std::function<void()> brought)
    : QObject(&sheetWindow),
      stores(appStores),
      keeper(logKeeper),
      strip(noticeStrip),
      window(sheetWindow),
      hasBrought(std::move(brought)) {
    connect(&keeper, &LogKeeper::letGone, this, &KeptNotices::tellOf);
    connect(&keeper, &LogKeeper::failed, this, [this](const QString& sentence) {
        strip.tell({QStringLiteral("keeping"), sentence, Notice::Kind::warning, {}, {}});
    });
}

void KeptNotices::tellOfLeftBehind() {
    const auto left = keeper.leftBehind();
    if (left.size() == 1) {
        tellOf(left.front());
    } else if (!left.empty()) {
        strip.tell({topicOfSeveral(),
                    QStringLiteral("Die ungesicherten Änderungen an %1 Logbüchern wurden aufgehoben.")
                        .arg(numberText(left.size())),
                    Notice::Kind::information,
                    {{QStringLiteral("Ansehen"), [this] { showList(); }}},
                    [this, left] { keeper.dismiss(left); }});
    }
}

void KeptNotices::tellOf(const KeptEntry& entry) {
    strip.tell({topicOf(entry),
                keptSentence(entry.note),
                Notice::Kind::information,
                {{QStringLiteral("Zurückholen"), [this, entry] { bringBack(entry); }}},
                [this, entry] { keeper.dismiss({entry}); }});
}

void KeptNotices::bringBack(const KeptEntry& entry) {
    showBusyCursorUntilIdle();
    if (const auto why = keeper.bringBack(entry)) {
        tellFailure(QStringLiteral("Zurückholen fehlgeschlagen:"), entry, *why);
    } else {
        forget(entry);
        hasBrought();
    }
}

void KeptNotices::compare(const KeptEntry& entry) {
    showBusyCursorUntilIdle();
    const auto read = keeper.read(entry);
    if (const auto* const error = std::get_if<FileError>(&read)) {
        tellFailure(QStringLiteral("Vergleichen fehlgeschlagen:"), entry,
                    QString::fromStdString(error->message));
        return;
    }
    // Without a place of its own: saving the side must not replace what the log's file has by now.
    stores.compare.setLeftFile(std::nullopt);
    stores.compare.setRight({std::get<tallyrig::ADIFDocument>(read),
                             nameOf(entry.note) + QStringLiteral(" (aufgehoben)"), std::nullopt, false});
    stores.log.setMode(AppMode::compare);
}

void KeptNotices::tellFailure(const QString& what, const KeptEntry& entry, const QString& why) {
    stores.log.setErrorMessage(what + QStringLiteral("\n„%1“: ").arg(nameOf(entry.note)) + why);
}

void KeptNotices::forget(const KeptEntry& entry) {
    strip.withdraw(topicOf(entry));
    if (strip.withdraw(topicOfSeveral())) {
        tellOfLeftBehind();
    }
}

void KeptNotices::showList() {
    if (!sheet) {
        sheet = new KeptLogsSheet(keeper, &window);
        sheet->setAttribute(Qt::WA_DeleteOnClose);
        connect(sheet, &KeptLogsSheet::bringBackWanted, this, &KeptNotices::bringBack);
        connect(sheet, &KeptLogsSheet::removed, this, &KeptNotices::forget);
        connect(sheet, &KeptLogsSheet::compareWanted, this, &KeptNotices::compare);
        connect(sheet, &KeptLogsSheet::removeFailed, this,
                [this](const KeptEntry& entry, const QString& why) {
                    tellFailure(QStringLiteral("Löschen fehlgeschlagen:"), entry, why);
                });
    }
    sheet->open();
}

}  // namespace quillon
