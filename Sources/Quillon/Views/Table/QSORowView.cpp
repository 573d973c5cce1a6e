// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/QSORowView.h"

#include "Quillon/Views/Grid/CellView.h"
#include "Quillon/Views/Table/StatusGutterCell.h"

#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace quillon {

void QSORowView::paint(QPainter& painter, QPointF origin, const QRectF& exposed,
                       const TableGeometry& geometry, const QPalette& palette) const {
    // The ground goes on beyond the last column, to where the viewport ends.
    ground().paint(painter, {exposed.left(), origin.y(), exposed.width(), geometry.rowHeight()}, palette);
    const QPointF offset(origin.x(), origin.y() - geometry.rowRect(rowIndex).top());
    const TableGeometry::Range shown =
        geometry.columnsBetween(exposed.left() - origin.x(), exposed.right() - origin.x());
    for (std::size_t column = shown.first; column < std::min(shown.last, columns.size()); ++column) {
        const QRectF area = geometry.cellRect({rowIndex, column}).translated(offset);
        CellView{record, columns[column]}.paint(painter, area, geometry.metrics(), palette);
    }
}

void QSORowView::paintMark(QPainter& painter, const QRectF& area, const QPalette& palette) const {
    painter.fillRect(area, palette.color(QPalette::Base));
    ground().paint(painter, area, palette);
    StatusGutterCell{severity, {}}.paint(painter, area);
}

}  // namespace quillon
