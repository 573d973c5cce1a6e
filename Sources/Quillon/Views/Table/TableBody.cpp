// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/TableBody.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/EmptyState.h"
#include "Quillon/Views/Controls/Hairline.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Grid/TableAccessibility.h"
#include "Quillon/Views/Grid/TableScroll.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>

namespace quillon {

TableBody::TableBody(LogStore& logStore, TableScroll& tableScroll)
    : QWidget(&tableScroll),
      store(logStore),
      scroll(tableScroll),
      cellEditor(new InlineEditor(InlineEditor::Escape::commits, this)),
      emptyOverlay(new EmptyState(QStringLiteral("network-wireless-hotspot"),
                                  QStringLiteral("Kein Logbuch geladen"),
                                  QStringLiteral("Öffne eine ADIF-Datei oder füge ein QSO hinzu."), this)),
      current(logStore) {
    registerTableAccessibility();
    // A click takes the focus by itself: first it must be known which row lies under the pointer, since an
    // editor that loses the focus writes, and what it writes can move the rows.
    setFocusPolicy(Qt::TabFocus);
    // For letters that are put together from several keys.
    setAttribute(Qt::WA_InputMethodEnabled);
    setMinimumSize(60, static_cast<int>(3 * geometry.rowHeight()));
    setAccessibleName(QStringLiteral("QSO-Tabelle"));
    emptyOverlay->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(cellEditor, &InlineEditor::committed, this, &TableBody::finishEditing);
    connect(&store, &LogStore::selectionChanged, this, &TableBody::followSelection);
    connect(&store, &LogStore::documentChanged, this, qOverload<>(&QWidget::update));
    connect(&store, &LogStore::checkResultsChanged, this, qOverload<>(&QWidget::update));
    for (const auto signal : {&TableScroll::scrollXChanged, &TableScroll::scrollYChanged}) {
        connect(&scroll, signal, this, [this] {
            placeEditor();
            update();
        });
    }
    emptyOverlay->setVisible(store.document().records().empty());
}

void TableBody::setTableGeometry(const TableGeometry& tableGeometry) {
    const bool hasOtherCells = tableGeometry.rowCount() != geometry.rowCount() ||
                               tableGeometry.columnCount() != geometry.columnCount();
    geometry = tableGeometry;
    cellEditor->setMetrics(geometry.metrics());
    emptyOverlay->setVisible(store.document().records().empty());
    if (hasOtherCells) {
        announceOtherCells(*this);
    }
    followContent();
    placeEditor();
    update();
}

TableGeometry::RowRange TableBody::builtRows() const {
    return geometry.bodyRows(scroll.scrollY(), scroll.viewportHeight(), height());
}

QSORowView TableBody::rowView(std::size_t row) const {
    const tallyrig::ADIFRecord& record = store.displayedRecord(row);
    return {.record = record,
            .columns = store.columns(),
            .rowIndex = row,
            .isSelected = store.selection().contains(record.id()),
            .severity = store.recordSeverity(record.id())};
}

QRectF TableBody::cellArea(CellPosition cell) const {
    return geometry.cellRect(cell).translated(-scroll.scrollX(), -scroll.scrollY());
}

QRectF TableBody::gutterArea(std::size_t row) const {
    return geometry.gutterRect(row).translated(0, -scroll.scrollY());
}

std::optional<std::size_t> TableBody::columnAt(QPointF point) const {
    return point.x() < gutterArea(0).right() ? std::nullopt : geometry.columnAt(contentPoint(point).x());
}

void TableBody::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().color(QPalette::Base));
    const QRectF exposed = event->rect();
    const TableGeometry::RowRange rows = builtRows();
    for (std::size_t row = rows.first; row < rows.last; ++row) {
        const double top = geometry.rowRect(row).top() - scroll.scrollY();
        if (top < exposed.bottom() && top + geometry.rowHeight() > exposed.top()) {
            rowView(row).paint(painter, {-scroll.scrollX(), top}, exposed, geometry, palette());
        }
    }
    paintFrame(painter);
    paintMarks(painter);
}

/// The marks stay at the left edge, whatever column is scrolled to: what a row is marked for should be seen
/// from each of its cells.
void TableBody::paintMarks(QPainter& painter) const {
    if (!geometry.hasGutter()) {
        return;
    }
    const TableGeometry::RowRange rows = builtRows();
    for (std::size_t row = rows.first; row < rows.last; ++row) {
        rowView(row).paintMark(painter, gutterArea(row), palette());
    }
    if (scroll.scrollX() > 0) {
        const double line = hairlineWidth(painter);
        painter.fillRect(QRectF(TableGeometry::gutterWidth - line, 0, line, height()),
                         palette().color(QPalette::Mid));
    }
}

void TableBody::paintFrame(QPainter& painter) const {
    const bool isFramed = current.isFramed();
    if (!current.position() || !(hasFocus() || isFramed) || geometry.columnCount() == 0) {
        return;
    }
    CellFrame frame = CellFrame::place;
    if (isFramed) {
        frame = hasFocus() ? CellFrame::typing : CellFrame::away;
    }
    paintCellFrame(painter, cellArea(*current.position()), frame, palette());
}

void TableBody::resizeEvent(QResizeEvent*) {
    emptyOverlay->resize(size());
}

QPointF TableBody::contentPoint(QPointF point) const {
    return {point.x() + scroll.scrollX(), point.y() + scroll.scrollY()};
}

// The current cell.

std::optional<CellPosition> TableBody::framedCell() const {
    return current.isFramed() ? current.position() : std::nullopt;
}

void TableBody::setCurrentCell(CellPosition cell) {
    if (cell.row >= geometry.rowCount()) {
        return;
    }
    const CellContent content = current.contentOf(cell);
    if (cellEditor->isOpen() && content != current.content()) {
        cellEditor->commit();
        cell = current.positionOf(content).value_or(cell);
    }
    if (const auto nearest = geometry.nearestCell(cell)) {
        current.set(*nearest);
        bringIntoView(*nearest);
        noteCurrentCell();
    }
    update();
}

void TableBody::noteCurrentCell() {
    announceCurrentCell(*this);
    emit currentCellChanged();
}

void TableBody::showRecord(tallyrig::UUID id, std::string_view column) {
    std::optional<CellPosition> cell = current.positionIn(id);
    if (!cell) {
        return;
    }
    const auto wanted = std::ranges::find(store.columns(), column);
    if (wanted != store.columns().end()) {
        cell->column = static_cast<std::size_t>(wanted - store.columns().begin());
    }
    bringToMiddle(cell->row);
    setCurrentCell(*cell);
}

/// Unless it is in view as it is.
void TableBody::bringToMiddle(std::size_t row) {
    const double inView = geometry.scrollYShowing(row, scroll.scrollY(), height());
    if (inView != scroll.scrollY()) {
        scroll.setScrollY(geometry.rowRect(row).center().y() - height() / 2.0);
    }
}

void TableBody::reveal(tallyrig::UUID id, std::string_view column) {
    const std::optional<CellPosition> cell = current.positionIn(id);
    if (cell && store.selection().size() == 1 && !store.selection().contains(id)) {
        bringIntoView(*cell);
    } else if (cell) {
        showRecord(id, column);
    }
}

void TableBody::showHits() {
    if (const std::optional<std::size_t> row = firstSelectedRow()) {
        bringToMiddle(*row);
    } else {
        scroll.setScrollY(0);
    }
}

void TableBody::deleteSelected() {
    const auto goes = [this](std::size_t row) {
        return store.selection().contains(store.displayedRecord(row).id());
    };
    const bool moves = current.position() && goes(current.position()->row);
    if (moves) {
        CellPosition cell = *current.position();
        while (cell.row + 1 < geometry.rowCount() && goes(cell.row)) {
            ++cell.row;
        }
        while (cell.row > 0 && goes(cell.row)) {
            --cell.row;
        }
        current.set(cell);
    }
    store.deleteSelected();
    if (moves && current.position()) {
        bringIntoView(*current.position());
        noteCurrentCell();
    }
}

void TableBody::enter() {
    if (geometry.rowCount() > 0 && !firstSelectedRow()) {
        setCurrentCell(firstInView());
        select(current.content().record, {});
    } else if (!current.position() && store.selection().size() == 1) {
        showRecord(*store.selection().begin());
    }
    setFocus(Qt::OtherFocusReason);
}

void TableBody::startOver() {
    cellEditor->dismiss();
    current.clear();
    scroll.setScrollX(0);
    scroll.setScrollY(0);
}

void TableBody::followContent() {
    if (!current.follow(geometry)) {
        cellEditor->dismiss();
    }
    if (!cellEditor->isOpen()) {
        current.rejoinSelection();
    }
}

/// A single record that was selected elsewhere is where the keyboard should be, too.
void TableBody::followSelection() {
    if (!isSelecting && store.selection().size() == 1 && !current.isFramed()) {
        showRecord(*store.selection().begin());
    }
    announceSelection(*this);
    update();
}

/// As a click on the row with these keys held down.
void TableBody::select(tallyrig::UUID id, Qt::KeyboardModifiers keys) {
    const QScopedValueRollback guard(isSelecting, true);
    store.selectRow(
        id, {.command = keys.testFlag(Qt::ControlModifier), .shift = keys.testFlag(Qt::ShiftModifier)});
}

void TableBody::bringIntoView(CellPosition cell) {
    scroll.setScrollY(geometry.scrollYShowing(cell.row, scroll.scrollY(), height()));
    if (cell.column < geometry.columnCount()) {
        scroll.setScrollX(geometry.scrollXShowing(cell.column, scroll.scrollX(), width()));
    }
}

/// The first cell of the first row that is in view whole.
CellPosition TableBody::firstInView() const {
    return {geometry.rowAt(scroll.scrollY() + geometry.rowHeight() - 1).value_or(0), 0};
}

std::optional<std::size_t> TableBody::firstSelectedRow() const {
    const LogStore::Selection& selected = store.selection();
    if (selected.size() == 1) {
        return store.displayedRow(*selected.begin());
    }
    for (std::size_t row = 0; !selected.empty() && row < geometry.rowCount(); ++row) {
        if (selected.contains(store.displayedRecord(row).id())) {
            return row;
        }
    }
    return std::nullopt;
}

// Editing.

void TableBody::startEditing(CellPosition cell) {
    if (cell.row >= geometry.rowCount() || cell.column >= geometry.columnCount()) {
        return;
    }
    setCurrentCell(cell);
    // What was written on the way may have left no row that the search finds.
    if (cellEditor->isOpen() || !current.position()) {
        return;
    }
    const CellContent& content = current.content();
    const std::string_view value = store.cell(content.record, content.column);
    if (const QString obstacle = whyNotEditable(value); !obstacle.isEmpty()) {
        store.setErrorMessage(obstacle);
        return;
    }
    if (!store.selection().contains(content.record)) {
        select(content.record, {});
    }
    cellEditor->setAccessibleName(toQString(ADIFFieldCatalog::label(content.column)));
    cellEditor->begin(toQString(value));
    placeEditor();
}

/// As in a spreadsheet: the text takes the place of what stands in the cell.
void TableBody::typeIntoFrame(const QString& text) {
    if (const auto cell = framedCell()) {
        startEditing(*cell);
        if (cellEditor->isOpen()) {
            cellEditor->insert(text);
        }
    }
}

void TableBody::writeCurrent(const QString& draft) {
    const CellContent written = current.content();  // What follows from the write can move the current cell.
    store.setCell(written.record, written.column, draft.toStdString());
}

void TableBody::finishEditing(const QString& draft, InlineEditor::Leave leave) {
    const CellContent left = current.content();
    std::optional<CellContent> next;
    if (current.position() &&
        (leave == InlineEditor::Leave::forward || leave == InlineEditor::Leave::backward)) {
        // Taken before the write, which can move this row but shall not change which cell is the next.
        const auto cell = leave == InlineEditor::Leave::forward ? geometry.cellAfter(*current.position())
                                                                : geometry.cellBefore(*current.position());
        if (cell) {
            next = current.contentOf(*cell);
        }
    }
    writeCurrent(draft);
    if (leave == InlineEditor::Leave::away || !current.position()) {
        return;
    }
    const auto cell = next ? current.positionOf(*next) : std::nullopt;
    if (cell) {
        if (next->record != left.record) {
            select(next->record, {});
        }
        startEditing(*cell);
    } else if (leave == InlineEditor::Leave::stay) {
        // The row may have moved to where the sort puts it. If the search hides it now, the one that came up
        // in its place is the next to work on.
        bringIntoView(*current.position());
        if (!current.isFramed()) {
            select(current.content().record, {});
        }
    } else if (current.content().record != left.record) {
        // What is typed next was meant for the record that is gone from sight.
        current.clear();
        noteCurrentCell();
    }
}

void TableBody::placeEditor() {
    if (cellEditor->isOpen() && current.position()) {
        cellEditor->setGeometry(
            cellArea(*current.position())
                .adjusted(0, 0, -TableGeometry::dividerWidth, -TableGeometry::separatorHeight)
                .toRect());
    }
}

}  // namespace quillon
