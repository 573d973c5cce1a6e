// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/QSOTableView.h"

#include "Quillon/Platform/Desktop/FontMeasurer.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Stores/RecordChanges.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Grid/TableScroll.h"
#include "Quillon/Views/Table/ColumnCommands.h"
#include "Quillon/Views/Table/ColumnToolbar.h"
#include "Quillon/Views/Table/FileInfoBar.h"
#include "Quillon/Views/Table/RowRuler.h"
#include "Quillon/Views/Table/TableBody.h"
#include "Quillon/Views/Table/TableHeader.h"
#include "Quillon/Views/Table/TableQuestions.h"

#include <QClipboard>
#include <QEvent>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>
#include <vector>

namespace quillon {

namespace {

double cellLetterWidth() {
    return QFontMetricsF(fontFor(MeasuredFont::cell)).averageCharWidth();
}

}  // namespace

QSOTableView::QSOTableView(LogStore& logStore, TableQuestions& tableQuestions, QWidget* parent)
    : QWidget(parent),
      store(logStore),
      questions(tableQuestions),
      infoBar(new FileInfoBar(store, this)),
      toolbar(new ColumnToolbar(store, this)),
      tableScroll(new TableScroll(this)),
      headerRow(new TableHeader(store, questions, *tableScroll)),
      rows(new TableBody(store, *tableScroll)),
      ruler(new RowRuler(store, *tableScroll, *headerRow, *rows)),
      knownColumns(store.columns()),
      letterWidth(cellLetterWidth()) {
    tableScroll->setContent(headerRow, rows, ruler);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(infoBar);
    layout->addWidget(horizontalLine(this));
    layout->addWidget(toolbar);
    layout->addWidget(horizontalLine(this));
    layout->addWidget(tableScroll, 1);

    connect(toolbar, &ColumnToolbar::customFieldRequested, this, [this] { askForColumn({}); });
    connect(&store, &LogStore::errorMessageChanged, this, &QSOTableView::askAgain, Qt::QueuedConnection);
    connect(&store, &LogStore::documentChanged, this, &QSOTableView::followDocument);
    for (const auto signal : {&LogStore::displayedRecordsChanged, &LogStore::columnsChanged,
                              &LogStore::columnWidthsChanged, &LogStore::checkResultsChanged}) {
        connect(&store, signal, this, &QSOTableView::refreshGeometry);
    }
    connect(&store, &LogStore::columnsChanged, this, &QSOTableView::showNewColumn);
    connect(&store, &LogStore::searchTextChanged, this, [this] {
        // Told before the rows that it leaves.
        refreshGeometry();
        rows->showHits();
    });
    connect(rows, &TableBody::currentCellChanged, this, [this] { useFrom(Part::rows); });
    connect(headerRow, &TableHeader::currentColumnChanged, this, [this] { useFrom(Part::header); });
    connect(rows, &TableBody::menuAboutToShow, this, &QSOTableView::menuAboutToShow);
    connect(headerRow, &TableHeader::menuAboutToShow, this, &QSOTableView::menuAboutToShow);
    refreshGeometry();
}

QSOTableView::~QSOTableView() {
    // An editor that loses the focus on its way out would still write, into views that are half gone.
    headerRow->dismissEditor();
    rows->dismissEditor();
}

void QSOTableView::undo() {
    store.undo();
    showLastStep();
}

void QSOTableView::redo() {
    store.redo();
    showLastStep();
}

void QSOTableView::showLastStep() {
    const RecordChanges changes = store.changesOfLastStep();
    if (changes.records.empty()) {
        return;
    }
    if (const auto row = store.firstDisplayedRow(changes.records)) {
        rows->reveal(store.displayedRecord(*row).id(), changes.fieldName);
    } else {
        emit noticed(changes.records.size() == 1
                         ? QStringLiteral("Geändert wurde ein QSO, das die Suche verbirgt.")
                         : QStringLiteral("Geändert wurden QSOs, die die Suche verbirgt."));
    }
}

void QSOTableView::addRecord() {
    store.setSearchText({});
    store.addRecord();
    // In a table without columns there is no cell to open, and the row itself is what to see.
    rows->showRecord(*store.selection().begin());
    const auto row = store.displayedRow(*store.selection().begin());
    const auto call = std::ranges::find(store.columns(), "CALL");
    rows->startEditing(
        {*row, call == store.columns().end() ? 0 : static_cast<std::size_t>(call - store.columns().begin())});
}

void QSOTableView::deleteSelected() {
    const std::size_t hidden = store.hiddenSelectionCount();
    if (hidden == 0 || questions.confirmDeletion(store.selection().size(), hidden)) {
        rows->deleteSelected();
    }
}

void QSOTableView::copySelection() const {
    if (!store.selection().empty()) {
        QGuiApplication::clipboard()->setText(toQString(store.selectionAsADIF()));
    }
}

void QSOTableView::pasteRecords() {
    const std::size_t count = store.pasteRecords(QGuiApplication::clipboard()->text().toStdString());
    if (count == 0) {
        emit noticed(QStringLiteral("In der Zwischenablage steht kein QSO als ADIF-Text."));
        return;
    }
    store.setSearchText({});
    const tallyrig::ADIFRecordList& records = store.document().records();
    rows->showRecord(records[records.size() - count].id());
}

void QSOTableView::editCell() {
    if (const auto cell = rows->framedCell()) {
        rows->startEditing(*cell);
    }
}

void QSOTableView::goToRow() {
    const std::size_t count = store.document().records().size();
    if (count == 0) {
        return;
    }
    const std::size_t current = rows->currentCell() ? store.displayedIndex(rows->currentCell()->row) : 0;
    const auto number = questions.rowNumber(count, current + 1);
    if (number && *number >= 1 && *number <= count) {
        showCell(store.document().records()[*number - 1].id());
        rows->setFocus();
    }
}

void QSOTableView::renameColumn() {
    if (const auto column = chosenColumn()) {
        headerRow->startRename(*column);
    }
}

bool QSOTableView::hasFramedCell() const {
    return rows->framedCell() && !store.columns().empty();
}

std::optional<std::string> QSOTableView::chosenColumn() const {
    std::optional<std::size_t> column;
    if (lastUsed == Part::header) {
        column = headerRow->currentColumn();
    } else if (rows->currentCell()) {
        column = rows->currentCell()->column;
    }
    return column && *column < store.columns().size() ? std::optional(store.columns()[*column])
                                                      : std::nullopt;
}

void QSOTableView::useFrom(Part part) {
    lastUsed = part;
    emit currentCellChanged();
}

void QSOTableView::showCell(tallyrig::UUID record, const std::string& column) {
    if (!store.indexOf(record)) {
        return;
    }
    if (!store.displayedRow(record)) {
        store.setSearchText({});
    }
    store.setSelection({record}, record);
    rows->showRecord(record, column);
}

void QSOTableView::enterRows() {
    rows->enter();
}

void QSOTableView::commitEditing() {
    headerRow->commitEditing();
    rows->commitEditing();
}

void QSOTableView::askForColumn(const QString& proposed) {
    const std::optional<QString> name = questions.newColumnName(proposed);
    if (name && !addCustomColumn(store, name->toStdString())) {
        refusedName = name;
    }
}

/// When the user has read why a name was refused, they find what they typed and can mend it.
void QSOTableView::askAgain() {
    if (store.errorMessage()) {
        return;
    }
    if (const auto name = std::exchange(refusedName, std::nullopt)) {
        askForColumn(*name);
    }
}

void QSOTableView::followDocument() {
    // Every change of a log enters the history: one without history was just opened or begun.
    if (!store.canUndo() && !store.canRedo()) {
        // A name typed for a column of the last log is not for this one.
        headerRow->dismissEditor();
        rows->startOver();
    }
    refreshGeometry();
}

/// A column that came by itself, and not with a log, is what the user waits to see.
void QSOTableView::showNewColumn() {
    const bool isOneMore = store.canUndo() && store.columns().size() == knownColumns.size() + 1;
    const auto added = std::ranges::mismatch(store.columns(), knownColumns).in1;
    if (isOneMore) {
        const auto column = static_cast<std::size_t>(added - store.columns().begin());
        const double x = tableScroll->scrollX();
        tableScroll->setScrollX(
            rows->tableGeometry().scrollXShowing(column, x, tableScroll->viewportWidth()));
    }
    knownColumns = store.columns();
}

/// Other letters need other rows and columns.
void QSOTableView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        const double before = std::exchange(letterWidth, cellLetterWidth());
        if (letterWidth != before) {
            store.scaleWidths(letterWidth / before);
        }
        refreshGeometry();
    }
    QWidget::changeEvent(event);
}

void QSOTableView::refreshGeometry() {
    std::vector<double> widths;
    widths.reserve(store.columns().size());
    for (const std::string& column : store.columns()) {
        widths.push_back(store.width(column));
    }
    const StatusGutter gutter = store.hasRecordSeverities() ? StatusGutter::shown : StatusGutter::hidden;
    const TableGeometry geometry(widths, store.displayedCount(), gutter, desktopTableMetrics());
    tableScroll->setRowHeight(geometry.rowHeight());
    tableScroll->setContentSize({geometry.totalWidth(), geometry.contentHeight()});
    headerRow->setTableGeometry(geometry);
    rows->setTableGeometry(geometry);
    ruler->setTableGeometry(geometry);
    emit currentCellChanged();
}

}  // namespace quillon
