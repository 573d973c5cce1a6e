#include "Quillon/Views/Window/KeptNotices.h"

#include "Quillon/Keeping/KeptWords.h"
#include "Quillon/Keeping/LogKeeper.h"
#include "Quillon/Platform/Desktop/BusyCursor.h"
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

KeptNotices::KeptNotices(LogStore& logStore, LogKeeper& logKeeper, NoticeStrip& noticeStrip,
                         QWidget& sheetWindow, std::function<void()> brought)
    : QObject(&sheetWindow),
      store(logStore),
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
        tellFailure(QStringLiteral("Zurückholen fehlgeschlagen:\n„%1“: ").arg(nameOf(entry.note)), *why);
    } else {
        forget(entry);
        hasBrought();
    }
}

void KeptNotices::tellFailure(const QString& what, const QString& why) {
    store.setErrorMessage(what + why);
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
        connect(sheet, &KeptLogsSheet::failed, this, [this](const QString& sentence) {
            tellFailure(QStringLiteral("Löschen fehlgeschlagen:\n"), sentence);
        });
    }
    sheet->open();
}

}  // namespace quillon
