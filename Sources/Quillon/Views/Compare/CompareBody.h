// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Stores/TextBinding.h"
#include "Quillon/Views/Compare/ComparisonModel.h"
#include "Quillon/Views/Grid/AccessibleTable.h"
#include "Quillon/Views/Grid/InlineEditor.h"
#include "Quillon/Views/Grid/TableGeometry.h"

#include <QWidget>

#include <cstddef>
#include <optional>

class QPainter;

namespace quillon {

class TableScroll;

/// The rows of one side of a comparison as far as they are in view, with the editor that is put over one
/// cell. The keys are those of the log's table; a row without a record on this side is empty and takes
/// nothing. The row of the current cell stands out on both sides, and both frame the cell.
class CompareBody : public QWidget, public AccessibleTable {
    Q_OBJECT

  public:
    using Side = ComparisonModel::Side;

    /// Both outlive the body.
    CompareBody(ComparisonModel& comparisonModel, Side shownSide, TableScroll& tableScroll);

    Side side() const { return shownSide; }
    /// The rows to build for the present scroll position.
    TableGeometry::RowRange builtRows() const;
    /// Goes to the first row in view if the keyboard was never here, and takes the keyboard.
    void enter();
    void bringIntoView(CellPosition cell);

    /// Opens the editor over the cell, with what stands in the log. Nothing happens where there is no record.
    void startEditing(CellPosition cell);
    const InlineEditor& editor() const { return *cellEditor; }
    void commitEditing() { cellEditor->commit(); }
    /// Closes the editor without writing.
    void dismissEditor() { cellEditor->dismiss(); }
    /// Lets `strip` turn presses on it into `pressRow` before an open editor is committed.
    void leavePressesTo(const QWidget& strip) { cellEditor->leavePressesTo(strip); }
    /// As a press of the mouse on the row, but not on one of its cells.
    void pressRow(std::size_t row);
    /// The value of the current cell to the clipboard. Nothing happens where there is none.
    void copyCell() const;
    void editCurrentCell();

    // For those who do not see it.
    const TableGeometry& tableGeometry() const override { return model.geometry(); }
    QRectF cellArea(CellPosition cell) const override;
    double headerHeight() const override;
    const std::optional<CellPosition>& currentCell() const override { return model.currentCell(); }
    QString cellText(CellPosition cell) const override;
    bool isCellEditable(CellPosition cell) const override;
    QString columnTitle(std::size_t column) const override;
    QString columnRemark(std::size_t column) const override;
    QString rowTitle(std::size_t row) const override;
    QString rowRemark(std::size_t row) const override;
    bool isRowSelected(std::size_t row) const override;
    void toggleRow(std::size_t row) override;
    void pressCell(CellPosition cell) override;
    /// Columns here have nothing to press.
    void pressColumn(std::size_t) override {}

  signals:
    /// The context menu, which shows the actions of this widget, is about to open.
    void menuAboutToShow();
    /// What the user wanted does not work here; `text` says why.
    void noticed(const QString& text);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    std::optional<CellPosition> cellAt(QPointF point) const;
    CellPosition firstInView() const;
    void press(CellPosition cell);
    bool handleKey(const QKeyEvent& event);
    void typeIntoFrame(const QString& text);
    void pasteIntoFrame();
    void finishEditing(const QString& draft, InlineEditor::Leave leave);
    void placeEditor();
    void followLogs();
    void paintRow(QPainter& painter, std::size_t row, const QRectF& exposed) const;
    QString toolTipAt(QPointF point) const;

    ComparisonModel& model;
    const Side shownSide;
    TableScroll& scroll;
    InlineEditor* cellEditor;
    TextBinding edited;  ///< The cell that the editor is open for.
    std::optional<CellPosition> pressed;
    std::size_t knownRows = 0;
    std::size_t knownColumns = 0;
};

}  // namespace quillon
