// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Grid/TableGeometry.h"

#include <QBasicTimer>
#include <QWidget>

namespace quillon {

class LogStore;
class TableBody;
class TableHeader;
class TableScroll;

/// The strip to the left of header and rows, which stays when the columns scroll. It tells of each row which
/// number the QSO has in the log, whatever search and sort make of the order. A click on a number selects the
/// row, with the keys held down as in the rows; dragging selects from the first to the last, and held above
/// or below the rows it goes on, the faster the farther.
class RowRuler : public QWidget {
    Q_OBJECT

  public:
    /// All outlive the ruler.
    RowRuler(const LogStore& logStore, TableScroll& tableScroll, const TableHeader& tableHeader,
             TableBody& tableBody);

    /// Makes the strip as wide as the longest number needs.
    void setTableGeometry(const TableGeometry& tableGeometry);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    /// The height at which the rows begin.
    double top() const;
    void dragToPointer();

    const LogStore& store;
    const TableScroll& scroll;
    const TableHeader& header;
    TableBody& body;
    TableGeometry geometry;
    bool isDragging = false;  ///< The button that is held down was pressed on a number.
    double pointerY = 0;      ///< Of the drag.
    QBasicTimer scrolling;    ///< Runs while the pointer is held above or below the rows.
};

}  // namespace quillon
