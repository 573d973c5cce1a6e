#include "Quillon/Views/Table/QSORowView.h"

#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Hairline.h"
#include "Quillon/Views/Table/CellView.h"
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
    const QColor primary = palette.color(QPalette::Text);
    // The ground goes on beyond the last column, to where the viewport ends.
    const QRectF ground(exposed.left(), origin.y(), exposed.width(), geometry.rowHeight());
    if (isSelected) {
        painter.fillRect(ground, withOpacity(palette.color(QPalette::Highlight), selectedOpacity));
    } else if (rowIndex % 2 == 1) {
        painter.fillRect(ground, withOpacity(primary, oddRowOpacity));
    }
    const double line = hairlineWidth(painter);
    painter.fillRect(QRectF(ground.left(), ground.bottom() - line, ground.width(), line),
                     withOpacity(primary, separatorOpacity));
    const QPointF offset(origin.x(), origin.y() - geometry.rowRect(rowIndex).top());
    if (geometry.hasGutter()) {
        StatusGutterCell{severity, {}}.paint(painter, geometry.gutterRect(rowIndex).translated(offset));
    }
    const std::size_t shown = std::min(columns.size(), geometry.columnCount());
    for (std::size_t column = geometry.columnIndex(exposed.left() - origin.x()); column < shown; ++column) {
        const QRectF area = geometry.cellRect({rowIndex, column}).translated(offset);
        if (area.left() >= exposed.right()) {
            break;
        }
        CellView{record, columns[column]}.paint(painter, area, geometry.metrics(), palette);
    }
}

}  // namespace quillon
