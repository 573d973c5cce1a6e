// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Compare/ComparisonModel.h"
#include "Quillon/Views/Grid/AccessibleTable.h"
#include "Quillon/Views/Grid/ColumnHeaderCell.h"

#include <QWidget>

#include <cstddef>
#include <optional>

namespace quillon {

class TableScroll;

/// The row of column headers over one side of a comparison. Dragging the right edge of a column changes its
/// width on both sides, a double click there gives it the usual one again; Escape takes a drag back.
class CompareHeader : public QWidget, public AccessibleTableHeader {
    Q_OBJECT

  public:
    static constexpr int usualHeight = 38;

    /// Both outlive the header.
    CompareHeader(ComparisonModel& comparisonModel, TableScroll& tableScroll);

    /// The place of the column's cell in the coordinates of this widget.
    QRectF cellArea(std::size_t column) const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    /// A column whose edge is held.
    struct Grip {
        std::size_t column = 0;
        double pressX = 0;  ///< In this widget, which stays while the content moves under it.
        double width = 0;   ///< Of the column when it was pressed.
    };

    std::optional<std::size_t> handleAt(QPointF point) const;
    ColumnHeaderCell headerCell(std::size_t column) const;
    void setHovered(std::optional<std::size_t> column);
    void endGrip();
    QString toolTipAt(QPointF point) const;

    ComparisonModel& model;
    TableScroll& scroll;
    std::optional<Grip> grip;
    std::optional<std::size_t> hovered;
};

}  // namespace quillon
