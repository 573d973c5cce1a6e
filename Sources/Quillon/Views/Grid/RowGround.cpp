// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Grid/RowGround.h"

#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Hairline.h"
#include "Quillon/Views/Grid/TableGeometry.h"

#include <QPainter>
#include <QPalette>

namespace quillon {
namespace {

constexpr double oddRowOpacity = 0.04;
constexpr double separatorOpacity = 0.08;
constexpr double frameWidth = 2;

/// The accent colour, as strong as it must be to be seen on a row that is selected as well.
QColor frameColor(const QPalette& palette) {
    const QColor accent = palette.color(QPalette::Highlight);
    const QColor base = palette.color(QPalette::Base);
    return standingOut(accent, {base, blended(accent, RowGround::selectedOpacity, base)}, shapeContrast);
}

}  // namespace

void RowGround::paint(QPainter& painter, const QRectF& area, const QPalette& palette) const {
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

void paintCellFrame(QPainter& painter, const QRectF& area, CellFrame frame, const QPalette& palette) {
    // Thin while the keyboard is elsewhere, as in the list of findings that led here.
    const double width = frame == CellFrame::typing ? frameWidth : 1;
    const bool isPlace = frame == CellFrame::place;
    painter.setPen(QPen(isPlace ? palette.color(QPalette::Text) : frameColor(palette), width,
                        isPlace ? Qt::DotLine : Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    const double inset = width / 2;
    painter.drawRect(area.adjusted(inset, inset, -TableGeometry::dividerWidth - inset,
                                   -TableGeometry::separatorHeight - inset));
}

}  // namespace quillon
