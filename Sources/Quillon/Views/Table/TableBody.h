// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Grid/AccessibleTable.h"
#include "Quillon/Views/Grid/InlineEditor.h"
#include "Quillon/Views/Grid/TableGeometry.h"
#include "Quillon/Views/Table/CurrentCell.h"
#include "Quillon/Views/Table/QSORowView.h"
#include "Tallyrig/Log/UUID.h"

#include <QWidget>

#include <cstddef>
#include <optional>
#include <string_view>

class QPainter;

namespace quillon {

class EmptyState;
class LogStore;
class TableScroll;

/// The rows of the table as far as they are in view, with the editor that is put over one cell.
///
/// The current cell is where the keyboard is, the selection is the store's. Arrows, page keys, Home and End
/// move both, with shift from the anchor, with control the current cell alone; the space bar selects, with
/// control it toggles. A letter opens the framed cell and replaces what is in it.
class TableBody : public QWidget, public AccessibleTable {
    Q_OBJECT

  public:
    /// Both outlive the body.
    TableBody(LogStore& logStore, TableScroll& tableScroll);

    void setTableGeometry(const TableGeometry& geometry);
    const TableGeometry& tableGeometry() const override { return geometry; }
    /// The rows to build for the present scroll position.
    TableGeometry::RowRange builtRows() const;
    /// The row as it is painted.
    QSORowView rowView(std::size_t row) const;
    QRectF cellArea(CellPosition cell) const override;

    /// Absent while there are no rows or the keyboard was never here.
    const std::optional<CellPosition>& currentCell() const override { return current.position(); }
    /// The current cell if what is typed goes into it.
    std::optional<CellPosition> framedCell() const;
    /// Moves the keyboard there and brings the cell into view. The selection stays.
    void setCurrentCell(CellPosition cell);
    /// Makes the record's row the current one and brings it into view, in the middle if it was out of it, in
    /// the column `column` if there is one of that name. Nothing happens if the record is not displayed.
    void showRecord(tallyrig::UUID id, std::string_view column = {});
    /// The same for a record that is not the user's choice: where another one is selected, the frame stays on
    /// that.
    void reveal(tallyrig::UUID id, std::string_view column);
    /// For a search that was just typed or ended: the first row of a selected record comes into view, or else
    /// the first of all.
    void showHits();
    /// As a press of the mouse on the row, but not on one of its cells.
    void pressRow(std::size_t row, Qt::MouseButton button, Qt::KeyboardModifiers keys);
    /// Selects from the row that was pressed to this one.
    void dragToRow(std::size_t row);
    /// Deletes the selected QSOs. A frame on one of them goes to the next that stays, or else to the last
    /// before.
    void deleteSelected();
    /// Takes the focus from the keyboard. If no displayed QSO is selected, the first in view becomes so: what
    /// the next key does, it does to what the user sees.
    void enter();
    /// For a log that was just opened: nothing is current and the view is at its upper left corner.
    void startOver();

    /// Opens the editor over the cell, with the raw value of the field.
    void startEditing(CellPosition cell);
    const InlineEditor& editor() const { return *cellEditor; }
    void commitEditing() { cellEditor->commit(); }
    /// Lets `strip` turn presses on it into `pressRow` before an open editor is committed.
    void leavePressesTo(const QWidget& strip) { cellEditor->leavePressesTo(strip); }
    /// Closes the editor without writing.
    void dismissEditor() { cellEditor->dismiss(); }

    // For those who do not see it.
    double headerHeight() const override;
    QString cellText(CellPosition cell) const override;
    QString columnTitle(std::size_t column) const override;
    QString columnRemark(std::size_t column) const override;
    QString rowTitle(std::size_t row) const override;
    QString rowRemark(std::size_t row) const override;
    bool isRowSelected(std::size_t row) const override;
    void toggleRow(std::size_t row) override;
    void pressCell(CellPosition cell) override;
    void pressColumn(std::size_t column) override;

  signals:
    /// The keyboard is at another cell, or now in the rows.
    void currentCellChanged();
    /// The context menu, which shows the actions of this widget, is about to open.
    void menuAboutToShow();

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
    void resizeEvent(QResizeEvent* event) override;

  private:
    QPointF contentPoint(QPointF point) const;
    /// Where the mark of the row stands.
    QRectF gutterArea(std::size_t row) const;
    /// The column whose cells are seen at `point`.
    std::optional<std::size_t> columnAt(QPointF point) const;
    void press(CellPosition cell, Qt::MouseButton button, Qt::KeyboardModifiers keys);
    void followContent();
    void followSelection();
    void select(tallyrig::UUID id, Qt::KeyboardModifiers keys);
    void bringIntoView(CellPosition cell);
    void bringToMiddle(std::size_t row);
    CellPosition firstInView() const;
    std::optional<std::size_t> firstSelectedRow() const;
    bool handleKey(const QKeyEvent& event);
    void moveCurrent(TableMove move, Qt::KeyboardModifiers modifiers);
    void typeIntoFrame(const QString& text);
    void paintFrame(QPainter& painter) const;
    void paintMarks(QPainter& painter) const;
    void writeCurrent(const QString& draft);
    void finishEditing(const QString& draft, InlineEditor::Leave leave);
    void placeEditor();
    void noteCurrentCell();
    QString toolTipAt(QPointF point) const;

    LogStore& store;
    TableScroll& scroll;
    InlineEditor* cellEditor;
    EmptyState* emptyOverlay;
    TableGeometry geometry;
    CurrentCell current;
    std::optional<CellContent> pressedCell;  ///< What lay under the pointer at the last press on a row.
    bool isSelecting = false;                ///< The selection changes from here.
};

}  // namespace quillon
