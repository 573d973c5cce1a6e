#pragma once

#include "Quillon/Views/Table/InlineEditor.h"
#include "Quillon/Views/Table/QSORowView.h"
#include "Quillon/Views/Table/TableGeometry.h"
#include "Tallyrig/Log/UUID.h"

#include <QWidget>

#include <cstddef>
#include <optional>
#include <string>

namespace quillon {

class EmptyState;
class LogStore;
class TableScroll;

/// The rows of the table as far as they are in view, with the editor that is put over one cell.
///
/// The current cell is where the keyboard is; it belongs to its record and follows it when rows move. The
/// selection is the store's. Arrows, page keys, Home and End move both, with shift from the anchor, with
/// control the current cell alone; the space bar selects, with control it toggles. Return and F2 edit, Delete
/// removes the selected QSOs.
class TableBody : public QWidget {
    Q_OBJECT

  public:
    /// Both outlive the body.
    TableBody(LogStore& logStore, TableScroll& tableScroll);

    LogStore& log() const { return store; }

    void setTableGeometry(const TableGeometry& geometry);
    const TableGeometry& tableGeometry() const { return geometry; }
    /// The rows to build for the present scroll position.
    TableGeometry::RowRange builtRows() const;
    /// The row as it is painted.
    QSORowView rowView(std::size_t row) const;
    /// The place of the cell in the coordinates of this widget, in view or not.
    QRectF cellArea(CellPosition cell) const;

    /// Absent while there are no rows or the keyboard was never here.
    const std::optional<CellPosition>& currentCell() const { return current; }
    /// Moves the keyboard there and brings the cell into view. The selection stays.
    void setCurrentCell(CellPosition cell);
    /// Makes the record's row the current one and brings it into view, in the middle if it was out of it.
    /// Nothing happens if it is not displayed.
    void showRecord(tallyrig::UUID id);
    /// For a log that was just opened: nothing is current and the view is at its upper left corner.
    void startOver();

    /// Opens the editor over the cell, with the raw value of the field.
    void startEditing(CellPosition cell);
    const InlineEditor& editor() const { return *cellEditor; }
    void commitEditing() { cellEditor->commit(); }
    /// Closes the editor without writing.
    void dismissEditor() { cellEditor->dismiss(); }

    /// The selected records as ADIF text to the clipboard. Nothing happens without a selection.
    void copySelection() const;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    /// A cell by what it holds and not by where it stands.
    struct CellContent {
        tallyrig::UUID record;
        std::string column;

        friend bool operator==(const CellContent&, const CellContent&) = default;
    };

    QPointF contentPoint(QPointF point) const;
    CellContent contentOf(CellPosition cell) const;
    std::optional<CellPosition> positionOf(const CellContent& content) const;
    void followContent();
    void followSelection();
    void select(tallyrig::UUID id, Qt::KeyboardModifiers keys);
    void bringIntoView(CellPosition cell);
    void setFirstCurrent();
    bool handleKey(const QKeyEvent& event);
    void moveCurrent(TableMove move, Qt::KeyboardModifiers modifiers);
    void writeCurrent(const QString& draft);
    void finishEditing(const QString& draft, InlineEditor::Leave leave);
    void placeEditor();
    void openMenu(QPoint globalPosition);
    QString toolTipAt(QPointF point) const;

    LogStore& store;
    TableScroll& scroll;
    InlineEditor* cellEditor;
    EmptyState* emptyOverlay;
    TableGeometry geometry;
    std::optional<CellPosition> current;
    CellContent currentContent;  ///< What the current cell holds.
    bool isSelecting = false;    ///< The selection changes from here.
};

}  // namespace quillon
