// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/TableHeader.h"

#include "Quillon/Platform/Desktop/FontMeasurer.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Hairline.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Grid/InlineEditor.h"
#include "Quillon/Views/Grid/TableAccessibility.h"
#include "Quillon/Views/Grid/TableScroll.h"
#include "Quillon/Views/Table/ColumnCommands.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <utility>

namespace quillon {
namespace {

constexpr double dropMarkWidth = 3;
constexpr int smallestEditorPx = 110;

/// The sign over the gutter: a shield with a check mark, about a column title high.
void paintCheckShield(QPainter& painter, QPointF center, QColor color) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(center);
    painter.setPen(QPen(color, 1.25, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QPainterPath shield(QPointF(0, -7.5));
    shield.cubicTo({2, -6}, {4, -5.3}, {6, -5.2});
    shield.cubicTo({6.4, 0.5}, {4.5, 5}, {0, 7.5});
    shield.cubicTo({-4.5, 5}, {-6.4, 0.5}, {-6, -5.2});
    shield.cubicTo({-4, -5.3}, {-2, -6}, {0, -7.5});
    painter.drawPath(shield);
    const QPointF mark[] = {{-2.8, 0}, {-0.7, 2.2}, {3, -2.4}};
    painter.drawPolyline(mark, 3);
    painter.restore();
}

}  // namespace

TableHeader::TableHeader(LogStore& logStore, TableQuestions& tableQuestions, TableScroll& tableScroll)
    : QWidget(&tableScroll),
      store(logStore),
      questions(tableQuestions),
      scroll(tableScroll),
      nameEditor(new InlineEditor(InlineEditor::Escape::drops, this)) {
    registerTableAccessibility();
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(QStringLiteral("Spaltenköpfe"));
    nameEditor->setAccessibleName(QStringLiteral("Spalte umbenennen"));
    nameEditor->setFont(fontFor(MeasuredFont::tag));
    connect(nameEditor, &InlineEditor::committed, this, &TableHeader::finishRename);
    connect(&store, &LogStore::errorMessageChanged, this, &TableHeader::reopenRefused, Qt::QueuedConnection);
    connect(&store, &LogStore::sortChanged, this, [this] {
        setFocusedColumn(focusedColumn);
        update();
    });
    connect(&scroll, &TableScroll::scrollXChanged, this, [this] {
        placeEditor();
        update();
    });
}

void TableHeader::setTableGeometry(const TableGeometry& tableGeometry) {
    geometry = tableGeometry;
    nameEditor->setMetrics(geometry.metrics());
    if (nameEditor->isOpen() && !store.columnExists(renamedColumn)) {
        nameEditor->dismiss();
    }
    if (grip && grip->place.column >= geometry.columnCount()) {
        endGrip();
    }
    hovered = {};
    const auto focused = std::ranges::find(store.columns(), focusedName);
    setFocusedColumn(focused == store.columns().end()
                         ? focusedColumn
                         : static_cast<std::size_t>(focused - store.columns().begin()));
    placeEditor();
    update();
}

std::optional<std::size_t> TableHeader::currentColumn() const {
    return geometry.columnCount() == 0 ? std::nullopt : std::optional(focusedColumn);
}

void TableHeader::startRename(const std::string& column) {
    // What is still to be written may rename a column, this one too.
    commitEditing();
    const auto position = std::find(store.columns().begin(), store.columns().end(), column);
    if (position == store.columns().end()) {
        return;
    }
    renamedColumn = column;
    const auto index = static_cast<std::size_t>(position - store.columns().begin());
    setFocusedColumn(index);
    scroll.setScrollX(geometry.scrollXShowing(index, scroll.scrollX(), scroll.viewportWidth()));
    nameEditor->begin(toQString(column));
    placeEditor();
}

void TableHeader::commitEditing() {
    nameEditor->commit();
    runPendingRename();
}

void TableHeader::dismissEditor() {
    nameEditor->dismiss();
    pendingName.reset();
    refusedName.reset();
}

ColumnHeaderCell::Sort TableHeader::sortOf(const LogStore& store, const std::string& column) {
    if (store.sortColumn() != column) {
        return ColumnHeaderCell::Sort::none;
    }
    return store.sortAscending() ? ColumnHeaderCell::Sort::ascending : ColumnHeaderCell::Sort::descending;
}

QRectF TableHeader::cellArea(std::size_t column) const {
    return {geometry.columnLeft(column) - scroll.scrollX(), 0, geometry.columnWidth(column),
            static_cast<double>(height())};
}

std::optional<std::size_t> TableHeader::dropTarget() const {
    if (!grip || !grip->isDragging) {
        return std::nullopt;
    }
    const std::size_t target = geometry.columnIndex(grip->now.x());
    return target == grip->place.column ? std::nullopt : std::optional(target);
}

QSize TableHeader::sizeHint() const {
    return {0, ColumnHeaderCell::height()};
}

void TableHeader::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    const QColor primary = palette().color(QPalette::WindowText);
    const double line = hairlineWidth(painter);
    painter.fillRect(QRectF(0, height() - line, width(), line), withOpacity(primary, 0.22));
    for (std::size_t column = geometry.columnIndex(scroll.scrollX()); column < geometry.columnCount();
         ++column) {
        const QRectF area = cellArea(column);
        if (area.left() >= width()) {
            break;
        }
        headerCell(column).paint(painter, area, palette());
    }
    if (geometry.hasGutter()) {
        // It stays in its place, as the marks below it do.
        painter.fillRect(gutterArea().adjusted(0, 0, 0, -line), palette().color(QPalette::Window));
        paintCheckShield(painter, gutterArea().center(), primary);
    }
    paintDrop(painter);
}

void TableHeader::paintDrop(QPainter& painter) const {
    if (!grip || !grip->isDragging) {
        return;
    }
    const QRectF ghost = cellArea(grip->place.column).translated(grip->now.x() - grip->start.x(), 0);
    painter.fillRect(ghost, palette().color(QPalette::Window));
    headerCell(grip->place.column).paint(painter, ghost, palette());
    if (const auto target = dropTarget()) {
        const double left = std::max(0.0, cellArea(*target).left() - dropMarkWidth / 2);
        painter.fillRect(QRectF(left, 0, dropMarkWidth, height()), palette().color(QPalette::Highlight));
    }
}

/// The question whether to rename is a dialog, which must not open in the middle of the event that closed the
/// editor.
void TableHeader::finishRename(const QString& draft, InlineEditor::Leave leave) {
    pendingName = draft.toStdString();
    isDoneWithName = leave != InlineEditor::Leave::stay;
    QMetaObject::invokeMethod(this, &TableHeader::runPendingRename, Qt::QueuedConnection);
}

void TableHeader::runPendingRename() {
    if (const auto name = std::exchange(pendingName, std::nullopt)) {
        // Who has gone elsewhere has read that the name was refused, and is not to be called back.
        if (!commitRename(store, questions, std::string(renamedColumn), *name) && !isDoneWithName) {
            refusedName = name;
        }
    }
}

/// When the user has read why a name was refused, they find what they typed and can mend it.
void TableHeader::reopenRefused() {
    if (store.errorMessage()) {
        return;
    }
    if (const auto name = std::exchange(refusedName, std::nullopt)) {
        startRename(std::string(renamedColumn));
        nameEditor->setText(toQString(*name));
    }
}

void TableHeader::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        nameEditor->setFont(fontFor(MeasuredFont::tag));
        updateGeometry();
    }
    QWidget::changeEvent(event);
}

void TableHeader::resizeEvent(QResizeEvent*) {
    placeEditor();
}

QPointF TableHeader::contentPoint(QPointF point) const {
    return {point.x() + scroll.scrollX(), point.y()};
}

TableHeader::Place TableHeader::placeAt(QPointF point) const {
    if (gutterArea().contains(point)) {
        return {Part::gutter, 0};
    }
    const double x = contentPoint(point).x();
    if (const auto handle = geometry.resizeHandleAt(x)) {
        return {Part::handle, *handle};
    }
    if (const auto column = geometry.columnAt(x)) {
        const bool onMenu = ColumnHeaderCell::menuArea(cellArea(*column)).contains(point);
        return {onMenu ? Part::menu : Part::cell, *column};
    }
    return {};
}

QRectF TableHeader::gutterArea() const {
    return {0, 0, geometry.hasGutter() ? TableGeometry::gutterWidth : 0, static_cast<double>(height())};
}

ColumnHeaderCell TableHeader::headerCell(std::size_t column) const {
    const std::string& name = store.columns()[column];
    ColumnHeaderCell cell{name, sortOf(store, name)};
    const bool isGripped = grip && grip->place.column == column;
    cell.isDragging = isGripped && grip->isDragging;
    cell.isHoveringHandle =
        grip ? isGripped && grip->place.part == Part::handle : hovered == Place{Part::handle, column};
    cell.isHoveringMenu = !grip && hovered == Place{Part::menu, column};
    cell.focused = hasFocus() && focusedColumn == column;
    return cell;
}

void TableHeader::placeEditor() {
    if (!nameEditor->isOpen()) {
        return;
    }
    const auto position = std::find(store.columns().begin(), store.columns().end(), renamedColumn);
    const auto column = static_cast<std::size_t>(position - store.columns().begin());
    // While the columns change, the geometry may still be that of fewer.
    if (position != store.columns().end() && column < geometry.columnCount()) {
        const QRectF area = cellArea(column);
        nameEditor->setGeometry(qRound(area.left()), 0, std::max(smallestEditorPx, qRound(area.width())),
                                height());
    }
}

}  // namespace quillon
