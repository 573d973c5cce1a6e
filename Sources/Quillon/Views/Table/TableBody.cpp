#include "Quillon/Views/Table/TableBody.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/EmptyState.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Table/TableAccessibility.h"
#include "Quillon/Views/Table/TableScroll.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>

namespace quillon {
namespace {

constexpr double currentFrameWidth = 2;

}  // namespace

TableBody::TableBody(LogStore& logStore, TableScroll& tableScroll)
    : QWidget(&tableScroll),
      store(logStore),
      scroll(tableScroll),
      cellEditor(new InlineEditor(InlineEditor::Escape::commits, this)),
      emptyOverlay(new EmptyState(QStringLiteral("network-wireless-hotspot"),
                                  QStringLiteral("Kein Logbuch geladen"),
                                  QStringLiteral("Öffne eine ADIF-Datei oder füge ein QSO hinzu."), this)) {
    registerTableAccessibility();
    // A click takes the focus by itself: first it must be known which row lies under the pointer, since an
    // editor that loses the focus writes, and what it writes can move the rows.
    setFocusPolicy(Qt::TabFocus);
    setMinimumSize(60, static_cast<int>(3 * TableGeometry::rowHeight));
    setAccessibleName(QStringLiteral("QSO-Tabelle"));
    emptyOverlay->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(cellEditor, &InlineEditor::committed, this, &TableBody::finishEditing);
    connect(cellEditor, &InlineEditor::draftWanted, this, &TableBody::writeCurrent);
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

void TableBody::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().color(QPalette::Base));
    const QRectF exposed = event->rect();
    const TableGeometry::RowRange rows = builtRows();
    for (std::size_t row = rows.first; row < rows.last; ++row) {
        const double top = geometry.rowRect(row).top() - scroll.scrollY();
        if (top < exposed.bottom() && top + TableGeometry::rowHeight > exposed.top()) {
            rowView(row).paint(painter, {-scroll.scrollX(), top}, exposed, geometry, palette());
        }
    }
    if (current && hasFocus() && geometry.columnCount() > 0) {
        const QRectF frame =
            cellArea(*current).adjusted(0, 0, -TableGeometry::dividerWidth, -TableGeometry::separatorHeight);
        const QColor accent = palette().color(QPalette::Highlight);
        painter.setPen(QPen(accent, currentFrameWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        const double inset = currentFrameWidth / 2;
        painter.drawRect(frame.adjusted(inset, inset, -inset, -inset));
    }
}

void TableBody::resizeEvent(QResizeEvent*) {
    emptyOverlay->resize(size());
}

QPointF TableBody::contentPoint(QPointF point) const {
    return {point.x() + scroll.scrollX(), point.y() + scroll.scrollY()};
}

// The current cell.

void TableBody::setCurrentCell(CellPosition cell) {
    if (cell.row >= geometry.rowCount()) {
        return;
    }
    CellContent content = contentOf(cell);
    if (cellEditor->isOpen() && content != currentContent) {
        cellEditor->commit();
        cell = positionOf(content).value_or(cell);
    }
    current = geometry.nearestCell(cell);
    if (current) {
        currentContent = contentOf(*current);
        bringIntoView(*current);
        announceCurrentCell(*this);
    }
    update();
}

void TableBody::showRecord(tallyrig::UUID id) {
    const std::optional<std::size_t> row = store.displayedRow(id);
    if (!row) {
        return;
    }
    const double inView = geometry.scrollYShowing(*row, scroll.scrollY(), height());
    if (inView != scroll.scrollY()) {
        scroll.setScrollY(geometry.rowRect(*row).center().y() - height() / 2.0);
    }
    setCurrentCell({*row, current ? current->column : 0});
}

void TableBody::startOver() {
    cellEditor->dismiss();
    current.reset();
    scroll.setScrollX(0);
    scroll.setScrollY(0);
}

/// What stands in the cell keeps being the current one when rows or columns have moved; where it is gone, the
/// nearest takes its place.
void TableBody::followContent() {
    if (!current) {
        return;
    }
    const std::optional<CellPosition> found = positionOf(currentContent);
    if (!found) {
        cellEditor->dismiss();
    }
    current = geometry.nearestCell(found.value_or(*current));
    if (current) {
        currentContent = contentOf(*current);
    }
}

/// A single record that was selected elsewhere is where the keyboard should be, too.
void TableBody::followSelection() {
    if (!isSelecting && store.selection().size() == 1 &&
        (!current || !store.selection().contains(currentContent.record))) {
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

TableBody::CellContent TableBody::contentOf(CellPosition cell) const {
    return {store.displayedRecord(cell.row).id(),
            cell.column < store.columns().size() ? store.columns()[cell.column] : std::string()};
}

std::optional<CellPosition> TableBody::positionOf(const CellContent& content) const {
    const auto column = std::find(store.columns().begin(), store.columns().end(), content.column);
    if (column == store.columns().end()) {
        return std::nullopt;
    }
    std::optional<std::size_t> row;
    if (current && current->row < geometry.rowCount() &&
        store.displayedRecord(current->row).id() == content.record) {
        row = current->row;
    } else {
        row = store.displayedRow(content.record);
    }
    if (!row) {
        return std::nullopt;
    }
    return CellPosition{*row, static_cast<std::size_t>(column - store.columns().begin())};
}

void TableBody::bringIntoView(CellPosition cell) {
    scroll.setScrollY(geometry.scrollYShowing(cell.row, scroll.scrollY(), height()));
    if (cell.column < geometry.columnCount()) {
        scroll.setScrollX(geometry.scrollXShowing(cell.column, scroll.scrollX(), width()));
    }
}

// Editing.

void TableBody::startEditing(CellPosition cell) {
    if (cell.row >= geometry.rowCount() || cell.column >= geometry.columnCount()) {
        return;
    }
    setCurrentCell(cell);
    // What was written on the way may have left no row that the search finds.
    if (cellEditor->isOpen() || !current) {
        return;
    }
    const std::string_view value = store.cell(currentContent.record, currentContent.column);
    if (value.size() > longestEditableValue) {
        store.setErrorMessage(tooLongMessage(value.size()));
        return;
    }
    cellEditor->setAccessibleName(toQString(currentContent.column));
    cellEditor->begin(toQString(value));
    placeEditor();
}

void TableBody::writeCurrent(const QString& draft) {
    store.setCell(currentContent.record, currentContent.column, draft.toStdString());
}

void TableBody::finishEditing(const QString& draft, InlineEditor::Leave leave) {
    std::optional<CellContent> next;
    if (leave != InlineEditor::Leave::stay && current) {
        // Taken before the write, which can move this row but shall not change which cell is the next.
        const auto cell = leave == InlineEditor::Leave::forward ? geometry.cellAfter(*current)
                                                                : geometry.cellBefore(*current);
        if (cell) {
            next = contentOf(*cell);
        }
    }
    const tallyrig::UUID left = currentContent.record;
    writeCurrent(draft);
    if (!next) {
        return;
    }
    if (const auto cell = positionOf(*next)) {
        startEditing(*cell);
        if (next->record != left) {
            select(next->record, {});
        }
    }
}

void TableBody::placeEditor() {
    if (cellEditor->isOpen() && current) {
        cellEditor->setGeometry(
            cellArea(*current)
                .adjusted(0, 0, -TableGeometry::dividerWidth, -TableGeometry::separatorHeight)
                .toRect());
    }
}

void TableBody::copySelection() const {
    const std::string text = store.selectionAsADIF();
    if (!store.selection().empty()) {
        QGuiApplication::clipboard()->setText(toQString(text));
    }
}

}  // namespace quillon
