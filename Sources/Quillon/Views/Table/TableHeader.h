// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Grid/AccessibleTable.h"
#include "Quillon/Views/Grid/ColumnHeaderCell.h"
#include "Quillon/Views/Grid/InlineEditor.h"
#include "Quillon/Views/Grid/TableGeometry.h"

#include <QPointF>
#include <QWidget>

#include <cstddef>
#include <optional>
#include <string>

namespace quillon {

class LogStore;
class TableQuestions;
class TableScroll;

/// The row of column headers. It follows the horizontal scroll position only.
///
/// A click sorts, a double click on the name renames, the button opens the column's menu, the right edge
/// changes the width and dragging the rest moves the column; Escape takes a drag back. With the focus: the
/// arrows choose a column, the space bar sorts and the menu key opens the menu, which shows the actions of
/// this widget.
class TableHeader : public QWidget, public AccessibleTableHeader {
    Q_OBJECT

  public:
    /// All three outlive the header.
    TableHeader(LogStore& logStore, TableQuestions& tableQuestions, TableScroll& tableScroll);

    void setTableGeometry(const TableGeometry& geometry);
    const TableGeometry& tableGeometry() const { return geometry; }

    /// The column where the keyboard is, or was last. Absent if there are no columns.
    std::optional<std::size_t> currentColumn() const;

    /// Opens the editor of the column's name. Nothing happens if there is no such column.
    void startRename(const std::string& column);
    const InlineEditor& editor() const { return *nameEditor; }
    /// Closes the editor and renames the column.
    void commitEditing();
    /// Closes the editor without renaming.
    void dismissEditor();
    /// How the log is sorted by this column.
    static ColumnHeaderCell::Sort sortOf(const LogStore& store, const std::string& column);
    /// The place of the column's cell in the coordinates of this widget.
    QRectF cellArea(std::size_t column) const;
    /// Where a column being dragged will stand: in front of this one. Absent while none is dragged to another
    /// place.
    std::optional<std::size_t> dropTarget() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

  signals:
    /// The keyboard is at another column, or now in the header.
    void currentColumnChanged();
    /// The context menu is about to open.
    void menuAboutToShow();

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    enum class Part { none, gutter, cell, menu, handle };
    struct Place {
        Part part = Part::none;
        std::size_t column = 0;

        friend bool operator==(const Place&, const Place&) = default;
    };
    struct Sorting {
        std::optional<std::string> column;
        bool ascending = true;
    };
    /// What the mouse does from the press of its button to the release.
    struct Grip {
        Place place;
        double pressX = 0;  ///< In this widget, which stays while the content moves under it.
        QPointF start;      ///< In the coordinates of the content.
        QPointF now;
        std::optional<double> resizeStart;  ///< The column's width at the first movement.
        bool isDragging = false;            ///< The column is on its way to another place.
    };

    QPointF contentPoint(QPointF point) const;
    Place placeAt(QPointF point) const;
    QRectF gutterArea() const;
    ColumnHeaderCell headerCell(std::size_t column) const;
    QString toolTipAt(QPointF point) const;
    void setHovered(Place place);
    void dragTo(QPointF point);
    void takeGripBack();
    void endGrip();
    void click(std::size_t column);
    void restoreSorting();
    void openMenu(std::size_t column, QPoint globalPosition);
    void finishRename(const QString& draft, InlineEditor::Leave leave);
    void runPendingRename();
    void reopenRefused();
    void placeEditor();
    void setFocusedColumn(std::size_t column);
    void paintDrop(QPainter& painter) const;

    LogStore& store;
    TableQuestions& questions;
    TableScroll& scroll;
    InlineEditor* nameEditor;
    TableGeometry geometry;
    std::string renamedColumn;
    std::optional<std::string> pendingName;  ///< What `renamedColumn` is to be called as soon as may be.
    bool isDoneWithName = false;  ///< Whether the user left the editor of `pendingName` for something else.
    std::optional<std::string> refusedName;  ///< What `renamedColumn` cannot be called.
    Place hovered;
    std::optional<Grip> grip;
    std::optional<Sorting> sortingBeforeClick;
    std::size_t focusedColumn = 0;
    std::string focusedName;  ///< Of the focused column, which can move.
};

}  // namespace quillon
