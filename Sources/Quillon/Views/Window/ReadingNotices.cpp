// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/ReadingNotices.h"

#include "Quillon/Catalogue/ReadingWords.h"
#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/NoticeStrip.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Window/WorkArea.h"

#include <QMessageBox>
#include <QPushButton>

#include <cstddef>
#include <utility>

namespace quillon {

namespace {

using tallyrig::ReadingKind;
using tallyrig::ReadingReport;
using tallyrig::ReadingSeverity;

QString topic() {
    return QStringLiteral("reading");
}

/// What the strip says of a report, empty where that has nothing that the user should be told unasked. Errors
/// are places that are missing from the log, each of which counts; warnings are told as often as there are
/// notes of them, for some count bytes. Mere notes say nothing about a QSO: they wait in the list.
QString sentenceFor(const ReadingReport& report) {
    for (const tallyrig::ReadingNote& note : report.notes()) {
        // There are no places in what is no log.
        if (note.kind == ReadingKind::noLog || note.kind == ReadingKind::emptyFile) {
            return toQString(ReadingWords::message(note));
        }
    }
    const std::size_t errors = report.placeCount(ReadingSeverity::error);
    const std::size_t places = errors + report.noteCount(ReadingSeverity::warning);
    if (places == 0) {
        return {};
    }
    if (errors > 0) {
        return places == 1
                   ? QStringLiteral("1 Stelle der Datei konnte nicht oder nur zum Teil gelesen werden.")
                   : QStringLiteral("%1 Stellen der Datei konnten nicht oder nur zum Teil gelesen werden.")
                         .arg(numberText(places));
    }
    return places == 1
               ? QStringLiteral("1 Stelle der Datei wurde vermutlich nicht so gelesen, wie sie gemeint ist.")
               : QStringLiteral(
                     "%1 Stellen der Datei wurden vermutlich nicht so gelesen, wie sie gemeint sind.")
                     .arg(numberText(places));
}

}  // namespace

ReadingNotices::ReadingNotices(LogStore& logStore, NoticeStrip& noticeStrip, WorkArea& area,
                               QWidget& windowOfQuestions)
    : QObject(&windowOfQuestions),
      store(logStore),
      strip(noticeStrip),
      workArea(area),
      window(windowOfQuestions) {
    connect(&store, &LogStore::readingReportChanged, this, &ReadingNotices::follow);
    connect(&workArea, &WorkArea::repairWanted, this, &ReadingNotices::readAgain);
    follow();
}

void ReadingNotices::follow() {
    const std::shared_ptr<const OpenedFile> file = store.reading() ? store.reading()->file() : nullptr;
    const bool wasTold = strip.withdraw(topic());
    if (std::exchange(known, file) != file) {
        workArea.hideReadingNotes();
        tell();
    } else if (wasTold) {
        tell();
    }
}

void ReadingNotices::tell() {
    if (const QString sentence = sentenceFor(store.readingReport()); !sentence.isEmpty()) {
        strip.tellAtOnce({topic(),
                          sentence,
                          Notice::Kind::warning,
                          {{QStringLiteral("Ansehen"), [this] { showNotes(); }}},
                          {}});
    }
}

void ReadingNotices::showNotes() {
    strip.withdraw(topic());
    workArea.commitEditing();
    workArea.showTable();
    workArea.showReadingNotes();
}

void ReadingNotices::readAgain() {
    workArea.commitEditing();
    if (!store.hasUnsavedChanges()) {
        readAgainRepaired();
        return;
    }
    auto* question = new QMessageBox(&window);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setWindowTitle(QStringLiteral("So lesen"));
    question->setIcon(QMessageBox::Warning);
    question->setTextFormat(Qt::PlainText);
    question->setText(QStringLiteral("Die Datei noch einmal lesen?"));
    question->setInformativeText(QStringLiteral(
        "Was am Log seit dem Öffnen geändert wurde, steht nicht in der Datei und danach auch nicht mehr im "
        "Log. (Rückgängig mit Strg+Z.)"));
    QPushButton* const yes = question->addButton(QStringLiteral("&So lesen"), QMessageBox::AcceptRole);
    question->setDefaultButton(question->addButton(QStringLiteral("&Abbrechen"), QMessageBox::RejectRole));
    connect(yes, &QPushButton::clicked, this, &ReadingNotices::readAgainRepaired);
    question->open();
}

void ReadingNotices::readAgainRepaired() {
    showBusyCursorUntilIdle();
    const auto before = store.reading();
    store.readAgainRepaired();
    if (store.reading() != before) {
        emit noticed(QStringLiteral("Die Datei wurde noch einmal gelesen; Strg+Z stellt das Log wieder her"));
    }
}

}  // namespace quillon
