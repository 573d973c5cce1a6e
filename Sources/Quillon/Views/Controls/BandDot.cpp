// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/BandDot.h"

#include "Quillon/Views/Controls/Colors.h"

#include <QPainter>

namespace quillon {

void BandDot::paint(QPainter& painter, QPointF center) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(screenColor(BandPalette::color(band)));
    painter.drawEllipse(center, diameter / 2, diameter / 2);
    painter.restore();
}

}  // namespace quillon
