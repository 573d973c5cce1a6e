// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Grid/CellView.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Views/Controls/BandDot.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Hairline.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Grid/TableGeometry.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>

#include <cmath>
#include <string_view>

namespace quillon {
namespace {

constexpr double dividerOpacity = 0.22;

}  // namespace

QString CellView::text() const {
    const std::optional<std::string_view> value = record[column];
    if (!value || value->empty()) {
        return {};
    }
    const std::string_view shown = cutToShow(*value);
    return toQString(tallyrig::text::visibleText(
        writing == CellText::readable ? ADIFFieldCatalog::displayValue(shown, column) : std::string(shown)));
}

void CellView::paint(QPainter& painter, const QRectF& area, const TableMetrics& metrics,
                     const QPalette& palette) const {
    const double line = hairlineWidth(painter);
    const QRectF divider(area.right() - line, area.top(), line, area.height() - line);
    painter.fillRect(divider, withOpacity(palette.color(QPalette::Text), dividerOpacity));
    const QString full = text();
    if (full.isEmpty()) {
        return;
    }
    if (hasBandDot()) {
        BandDot{std::string(record.valueOrEmpty(column))}.paint(
            painter, {area.left() + metrics.cellMargins / 2 + BandDot::diameter / 2,
                      area.top() + (area.height() - TableGeometry::separatorHeight) / 2});
    }
    // Drawn at a point: laid out in a rectangle, the same text costs half as much again.
    const QRectF place = textArea(area, metrics);
    const QFontMetricsF letters(painter.font());
    const double baseline = std::round(place.center().y() + (letters.ascent() - letters.descent()) / 2);
    painter.setPen(palette.color(QPalette::Text));
    painter.drawText(QPointF(place.left(), baseline),
                     letters.elidedText(full, Qt::ElideRight, place.width()));
}

bool CellView::isCutOff(const QRectF& area, const TableMetrics& metrics, const QFont& font) const {
    return QFontMetricsF(font).horizontalAdvance(text()) > textArea(area, metrics).width();
}

bool CellView::hasBandDot() const {
    return column == "BAND";
}

QRectF CellView::textArea(const QRectF& area, const TableMetrics& metrics) const {
    const double margin = metrics.cellMargins / 2;
    return area.adjusted(margin + (hasBandDot() ? metrics.bandDotRoom : 0), 0, -margin,
                         -TableGeometry::separatorHeight);
}

}  // namespace quillon
