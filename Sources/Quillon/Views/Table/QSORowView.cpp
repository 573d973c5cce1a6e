#include "Quillon/Views/Table/QSORowView.h"

#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Hairline.h"
#include "Quillon/Views/Grid/CellView.h"
#include "Quillon/Views/Table/StatusGutterCell.h"

#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace quillon {
namespace {

constexpr double oddRowOpacity = 0.04;
constexpr double separatorOpacity = 0.08;

}  // namespace

void QSORowView::paint(QPainter& painter, QPointF origin, const QRectF& exposed,
                       const TableGeometry& geometry, const QPalette& palette) const {
    // The ground goes on beyond the last column, to where the viewport ends.
    paintGround(painter, {exposed.left(), origin.y(), exposed.width(), geometry.rowHeight()}, palette);
    const QPointF offset(origin.x(), origin.y() - geometry.rowRect(rowIndex).top());
    const std::size_t shown = std::min(columns.size(), geometry.columnCount());
    for (std::size_t column = geometry.columnIndex(exposed.left() - origin.x()); column < shown; ++column) {
        const QRectF area = geometry.cellRect({rowIndex, column}).translated(offset);
        if (area.left() >= exposed.right()) {
            break;
        }
        CellView{record, columns[column]}.paint(painter, area, geometry.metrics(), palette);
    }
}

void QSORowView::paintMark(QPainter& painter, const QRectF& area, const QPalette& palette) const {
    painter.fillRect(area, palette.color(QPalette::Base));
    paintGround(painter, area, palette);
    StatusGutterCell{severity, {}}.paint(painter, area);
}

void QSORowView::paintGround(QPainter& painter, const QRectF& area, const QPalette& palette) const {
    const QColor primary = palette.color(QPalette::Text);
    if (isSelected) {
        painter.fillRect(area, withOpacity(palette.color(QPalette::Highlight), selectedOpacity));
    } else if (rowIndex % 2 == 1) {
        painter.fillRect(area, withOpacity(primary, oddRowOpacity));
    }
    const double line = hairlineWidth(painter);
    painter.fillRect(QRectF(area.left(), area.bottom() - line, area.width(), line),
                     withOpacity(primary, separatorOpacity));
}

}  // namespace quillon
