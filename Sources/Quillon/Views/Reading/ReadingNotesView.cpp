// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Reading/ReadingNotesView.h"

#include "Quillon/Catalogue/ReadingWords.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/CopyableList.h"
#include "Quillon/Views/Controls/EmptyState.h"
#include "Quillon/Views/Controls/FindingDelegate.h"
#include "Quillon/Views/Controls/IconButton.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/PaneSplitter.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Reading/RawPlaceView.h"
#include "Quillon/Views/Reading/ReadingNoteModel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStackedLayout>
#include <QToolButton>

namespace quillon {

namespace {

constexpr PaneWidths listWidths = {.least = 180, .ideal = 360, .takesRoom = true};
constexpr PaneWidths placeWidths = {.least = 180, .ideal = 360, .takesRoom = true};

std::size_t repairablePlaces(const tallyrig::ReadingReport& report) {
    std::size_t count = 0;
    for (const tallyrig::ReadingNote& note : report.notes()) {
        count += note.isRepairable ? note.count : 0;
    }
    return count;
}

QString whatRepairDoes(tallyrig::ReadingRepair repair) {
    const QString how =
        repair == tallyrig::ReadingRepair::lengthsInCharacters
            ? QStringLiteral(
                  "Die Datei wird noch einmal gelesen, mit Längen, die Zeichen zählen statt Bytes.")
            : QStringLiteral(
                  "Die Datei wird noch einmal gelesen; wo die Länge eines Wertes nicht passt, reicht "
                  "er bis zum nächsten Feld.");
    return plainToolTip(how + QStringLiteral("\nRückgängig (Strg+Z) stellt das Log wieder her, wie es war."));
}

}  // namespace

ReadingNotesView::ReadingNotesView(LogStore& logStore, QWidget* parent)
    : QWidget(parent), store(logStore), model(new ReadingNoteModel(store, this)) {
    setAccessibleName(QStringLiteral("Lesebericht"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    // Made first, so that the tab key comes to the notes before it comes to the buttons.
    auto* notes = new PaneSplitter(this);
    notes->addPane(makeList(), listWidths);
    notes->addPane(makePlace(), placeWidths);
    setFocusProxy(list);
    setFocusPolicy(list->focusPolicy());
    layout->addWidget(makeHead());
    layout->addWidget(horizontalLine(this));
    body = new QStackedLayout;
    body->addWidget(notes);
    body->addWidget(new EmptyState(successIcon(), QStringLiteral("Vollständig gelesen"),
                                   QStringLiteral("Alles, was in der Datei steht, steht jetzt im Log."),
                                   this));
    layout->addLayout(body, 1);

    // The model was connected first: its rows are the new ones by the time of `refresh`.
    connect(&store, &LogStore::readingReportChanged, this, &ReadingNotesView::refresh);
    refresh();
}

QWidget* ReadingNotesView::makeHead() {
    auto* head = new QWidget(this);
    auto* layout = new QHBoxLayout(head);
    layout->setContentsMargins(12, 3, 6, 3);
    layout->setSpacing(6);
    counts = new QLabel(head);
    counts->setTextFormat(Qt::PlainText);
    repairable = new ElidedLabel(Qt::ElideRight, head);
    repairable->setForegroundRole(QPalette::PlaceholderText);
    repairable->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    repair = new QPushButton(QStringLiteral("So lesen"), head);
    repair->setAutoDefault(false);
    connect(repair, &QPushButton::clicked, this, &ReadingNotesView::repairWanted);
    QToolButton* const close =
        iconButton(QStringLiteral(":/Icons/close.svg"), QStringLiteral("Lesebericht schließen"), head);
    connect(close, &QToolButton::clicked, this, &ReadingNotesView::closeWanted);
    layout->addWidget(counts);
    layout->addWidget(repairable, 1);
    layout->addWidget(repair);
    layout->addWidget(close);
    return head;
}

QWidget* ReadingNotesView::makeList() {
    list = new CopyableList(Qt::DisplayRole, this);
    list->setAccessibleName(QStringLiteral("Stellen der Datei"));
    list->setModel(model);
    list->setItemDelegate(new FindingDelegate([this] { return model->longestPlace(); },
                                              FindingDelegate::Excerpts::belowMessages, list));
    // A second look at a note that is chosen already.
    connect(list, &QListView::clicked, this, [this](const QModelIndex& note) {
        if (list->chosenCount() == 1) {
            choose(note);
        }
    });
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (list->chosenCount() == 1) {
            choose(list->selectionModel()->selection().first().topLeft());
        }
    });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        new QShortcut(key, list, this, &ReadingNotesView::left, Qt::WidgetShortcut);
    }
    return list;
}

QWidget* ReadingNotesView::makePlace() {
    auto* place = new QWidget(this);
    chosen = new QStackedLayout(place);
    auto* shown = new QWidget(place);
    auto* column = new QVBoxLayout(shown);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    message = new QLabel(shown);
    message->setTextFormat(Qt::PlainText);
    message->setContentsMargins(8, 4, 8, 4);
    makeCopyable(*message);
    raw = new RawPlaceView(shown);
    new QShortcut(Qt::Key_Escape, raw, this, &ReadingNotesView::left, Qt::WidgetShortcut);
    column->addWidget(message);
    column->addWidget(horizontalLine(shown));
    column->addWidget(raw, 1);
    noneChosen =
        new EmptyState(QStringLiteral("documentinfo"), QStringLiteral("Keine Stelle ausgewählt"),
                       QStringLiteral("Wähle links eine Stelle, um sie in der Datei zu sehen."), place);
    chosen->addWidget(noneChosen);
    chosen->addWidget(shown);
    return place;
}

void ReadingNotesView::enterNotes() {
    if (model->rowCount() > 0 && !list->selectionModel()->hasSelection()) {
        list->setCurrentIndex(model->index(0, 0));
    }
    list->setFocus();
}

void ReadingNotesView::refresh() {
    const tallyrig::ReadingReport& report = store.readingReport();
    counts->setText(toQString(ReadingWords::counts(report)));
    const std::size_t places = repairablePlaces(report);
    repairable->setText(
        places == 1 ? QStringLiteral("1 Stelle lässt sich richtig lesen:")
                    : QStringLiteral("%1 Stellen lassen sich richtig lesen:").arg(numberText(places)));
    const auto way = report.repair();
    if (!way && window()->focusWidget() == repair) {
        list->setFocus();
    }
    repairable->setVisible(way.has_value());
    repair->setVisible(way.has_value());
    repair->setToolTip(way ? whatRepairDoes(*way) : QString());
    chosen->setCurrentWidget(noneChosen);
    body->setCurrentIndex(report.isEmpty() ? 1 : 0);
}

void ReadingNotesView::choose(const QModelIndex& note) {
    // Taken along: what the window does with the choice may bring another report.
    const std::shared_ptr<const FileReading> reading = store.reading();
    const auto row = static_cast<std::size_t>(note.row());
    const tallyrig::ReadingNote& chosenNote = reading->report().notes()[row];
    setWrappedText(*message, toQString(ReadingWords::message(chosenNote)));
    raw->showPlace(RawPlace::of(reading->placeOf(row)));
    chosen->setCurrentIndex(1);
    const auto record = reading->recordOf(row);
    const bool isThere = record && store.indexOf(*record);
    emit noteChosen(isThere ? record : std::nullopt, chosenNote.field);
}

}  // namespace quillon
