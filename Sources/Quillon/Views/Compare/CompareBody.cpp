// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Compare/CompareBody.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Catalogue/BandColors.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Grid/CellView.h"
#include "Quillon/Views/Grid/ColumnHeaderCell.h"
#include "Quillon/Views/Grid/RowGround.h"
#include "Quillon/Views/Grid/TableAccessibility.h"
#include "Quillon/Views/Grid/TableScroll.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>

namespace quillon {
namespace {

constexpr double differingOpacity = 0.45;
constexpr double bandOpacity = 0.2;
constexpr double emptyOpacity = 0.1;

}  // namespace

CompareBody::CompareBody(ComparisonModel& comparisonModel, Side side, TableScroll& tableScroll)
    : QWidget(&tableScroll),
      model(comparisonModel),
      shownSide(side),
      scroll(tableScroll),
      cellEditor(new InlineEditor(InlineEditor::Escape::commits, this)) {
    registerTableAccessibility();
    // A click takes the focus when it is known what lies under the pointer: an editor that loses it writes.
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    setMinimumSize(60, static_cast<int>(3 * ComparisonModel::rowHeight));
    setAccessibleName(side == Side::left ? QStringLiteral("Linkes Log") : QStringLiteral("Rechtes Log"));
    connect(cellEditor, &InlineEditor::committed, this, &CompareBody::finishEditing);
    connect(&model, &ComparisonModel::rowChanged, this, qOverload<>(&QWidget::update));
    connect(&model, &ComparisonModel::logsChanged, this, &CompareBody::followLogs);
    connect(&model, &ComparisonModel::geometryChanged, this, [this] {
        cellEditor->setMetrics(model.geometry().metrics());
        placeEditor();
        update();
    });
    connect(&model, &ComparisonModel::currentCellChanged, this, [this] {
        announceCurrentCell(*this);
        announceSelection(*this);
        update();
    });
    for (const auto signal : {&TableScroll::scrollXChanged, &TableScroll::scrollYChanged}) {
        connect(&scroll, signal, this, [this] {
            placeEditor();
            update();
        });
    }
}

TableGeometry::RowRange CompareBody::builtRows() const {
    return model.geometry().bodyRows(scroll.scrollY(), scroll.viewportHeight(), height());
}

QRectF CompareBody::cellArea(CellPosition cell) const {
    return model.geometry().cellRect(cell).translated(-scroll.scrollX(), -scroll.scrollY());
}

void CompareBody::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().color(QPalette::Base));
    const QRectF exposed = event->rect();
    const TableGeometry::RowRange rows = builtRows();
    for (std::size_t row = rows.first; row < rows.last; ++row) {
        const double top = model.geometry().rowRect(row).top() - scroll.scrollY();
        if (top < exposed.bottom() && top + model.geometry().rowHeight() > exposed.top()) {
            paintRow(painter, row, exposed);
        }
    }
    if (currentCell() && model.geometry().columnCount() > 0) {
        CellFrame frame = CellFrame::place;
        if (isCellEditable(*currentCell())) {
            frame = hasFocus() ? CellFrame::typing : CellFrame::away;
        }
        paintCellFrame(painter, cellArea(*currentCell()), frame, palette());
    }
}

void CompareBody::paintRow(QPainter& painter, std::size_t row, const QRectF& exposed) const {
    const TableGeometry& geometry = model.geometry();
    const QRectF whole(exposed.left(), geometry.rowRect(row).top() - scroll.scrollY(), exposed.width(),
                       geometry.rowHeight());
    RowGround{row, isRowSelected(row)}.paint(painter, whole, palette());
    const tallyrig::ADIFRecord* const record = model.record(row, shownSide);
    if (record == nullptr) {
        painter.fillRect(
            whole, QBrush(withOpacity(palette().color(QPalette::Text), emptyOpacity), Qt::BDiagPattern));
        return;
    }
    const auto differing = model.logs().row(row).differingFields();
    const TableGeometry::Range shown =
        geometry.columnsBetween(exposed.left() + scroll.scrollX(), exposed.right() + scroll.scrollX());
    for (std::size_t column = shown.first; column < shown.last; ++column) {
        const std::string& name = model.logs().columns()[column];
        const QRectF area = cellArea({row, column});
        const QRectF ground = area.adjusted(0, 0, 0, -TableGeometry::separatorHeight);
        if (differing.contains(name)) {
            // As vivid in the row where the keyboard is.
            painter.fillRect(ground, palette().color(QPalette::Base));
            painter.fillRect(ground, withOpacity(screenColor(SystemColor::orange), differingOpacity));
        } else if (name == "BAND" && !record->valueOrEmpty(name).empty()) {
            painter.fillRect(ground, withOpacity(screenColor(BandPalette::color(record->valueOrEmpty(name))),
                                                 bandOpacity));
        }
        CellView{*record, name, CellText::stored}.paint(painter, area, geometry.metrics(), palette());
    }
}

CellPosition CompareBody::firstInView() const {
    const TableGeometry& geometry = model.geometry();
    return {geometry.rowAt(scroll.scrollY() + geometry.rowHeight() - 1).value_or(0), 0};
}

void CompareBody::enter() {
    if (!currentCell()) {
        model.setCurrentCell(firstInView());
    }
    setFocus(Qt::OtherFocusReason);
}

void CompareBody::bringIntoView(CellPosition cell) {
    const TableGeometry& geometry = model.geometry();
    scroll.setScrollY(geometry.scrollYShowing(cell.row, scroll.scrollY(), height()));
    if (cell.column < geometry.columnCount()) {
        scroll.setScrollX(geometry.scrollXShowing(cell.column, scroll.scrollX(), width()));
    }
}

void CompareBody::followLogs() {
    const TableGeometry& geometry = model.geometry();
    if (geometry.rowCount() != knownRows || geometry.columnCount() != knownColumns) {
        knownRows = geometry.rowCount();
        knownColumns = geometry.columnCount();
        announceOtherCells(*this);
    }
    pressed.reset();
    if (!currentCell() || !isCellEditable(*currentCell())) {
        cellEditor->dismiss();
    }
    placeEditor();
    update();
}

// Editing.

bool CompareBody::isCellEditable(CellPosition cell) const {
    return model.record(cell.row, shownSide) != nullptr;
}

void CompareBody::startEditing(CellPosition cell) {
    const TableGeometry& geometry = model.geometry();
    if (cell.row >= geometry.rowCount() || cell.column >= geometry.columnCount()) {
        return;
    }
    model.showCell(cell);
    if (!isCellEditable(cell)) {
        emit noticed(shownSide == Side::left ? QStringLiteral("Dieses QSO gibt es nur rechts.")
                                             : QStringLiteral("Dieses QSO gibt es nur links."));
        return;
    }
    edited = model.binding(cell, shownSide);
    const std::string value = edited.read();
    if (const QString obstacle = whyNotEditable(value); !obstacle.isEmpty()) {
        emit noticed(obstacle);
        return;
    }
    cellEditor->setAccessibleName(columnTitle(cell.column));
    cellEditor->begin(toQString(value));
    placeEditor();
}

void CompareBody::editCurrentCell() {
    if (currentCell()) {
        startEditing(*currentCell());
    }
}

void CompareBody::typeIntoFrame(const QString& text) {
    editCurrentCell();
    if (cellEditor->isOpen()) {
        cellEditor->insert(text);
    }
}

void CompareBody::pasteIntoFrame() {
    const QString text = QGuiApplication::clipboard()->text();
    if (text.isEmpty()) {
        // A picture, say; to type nothing would empty the cell.
        emit noticed(QStringLiteral("In der Zwischenablage steht kein Text."));
    } else {
        typeIntoFrame(text);
    }
}

void CompareBody::finishEditing(const QString& draft, InlineEditor::Leave leave) {
    edited.write(draft.toStdString());
    // What was written is seen at the end of the turn; until then rows and columns are where they were.
    if (!currentCell() || (leave != InlineEditor::Leave::forward && leave != InlineEditor::Leave::backward)) {
        return;
    }
    const bool isForward = leave == InlineEditor::Leave::forward;
    auto next = currentCell();
    do {
        next = isForward ? model.geometry().cellAfter(*next) : model.geometry().cellBefore(*next);
    } while (next && !isCellEditable(*next));
    if (next) {
        startEditing(*next);
    }
}

void CompareBody::placeEditor() {
    if (cellEditor->isOpen() && currentCell()) {
        cellEditor->setGeometry(
            cellArea(*currentCell())
                .adjusted(0, 0, -TableGeometry::dividerWidth, -TableGeometry::separatorHeight)
                .toRect());
    }
}

// For those who do not see it.

double CompareBody::headerHeight() const {
    return y();
}

QString CompareBody::cellText(CellPosition cell) const {
    const tallyrig::ADIFRecord* const record = model.record(cell.row, shownSide);
    return record != nullptr ? CellView{*record, model.logs().columns()[cell.column], CellText::stored}.text()
                             : QString();
}

QString CompareBody::columnTitle(std::size_t column) const {
    return ColumnHeaderCell{model.logs().columns()[column]}.label();
}

QString CompareBody::columnRemark(std::size_t column) const {
    return ColumnHeaderCell{model.logs().columns()[column]}.remark();
}

QString CompareBody::rowTitle(std::size_t row) const {
    return QStringLiteral("Zeile ") + QString::number(row + 1);
}

QString CompareBody::rowRemark(std::size_t row) const {
    return model.statusText(row);
}

bool CompareBody::isRowSelected(std::size_t row) const {
    return currentCell() && currentCell()->row == row;
}

void CompareBody::toggleRow(std::size_t row) {
    pressRow(row);
}

void CompareBody::pressCell(CellPosition cell) {
    press(cell);
}

}  // namespace quillon
