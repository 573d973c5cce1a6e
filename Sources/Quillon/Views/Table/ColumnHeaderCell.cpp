#include "Quillon/Views/Table/ColumnHeaderCell.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Platform/Desktop/FontMeasurer.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Hairline.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Table/CellView.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace quillon {
namespace {

constexpr double verticalPadding = 4;
constexpr double handleRoom = 6;
constexpr double menuSize = 16;
constexpr double chevronWidth = 8;
constexpr double chevronRoom = 12;  ///< With the space in front of it.
constexpr double handleOpacity = 0.22;
constexpr double tagOpacity = 0.6;

enum class Points { up, down };

/// A chevron of `width` around `center`.
void paintChevron(QPainter& painter, QPointF center, double width, double stroke, Points points,
                  QColor color) {
    const double rise = (points == Points::up ? -1 : 1) * width / 4;
    const QPointF line[] = {center + QPointF(-width / 2, -rise), center + QPointF(0, rise),
                            center + QPointF(width / 2, -rise)};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(line, 3);
    painter.restore();
}

double lineHeight(MeasuredFont font) {
    return std::ceil(QFontMetricsF(fontFor(font)).height());
}

}  // namespace

QString ColumnHeaderCell::label() const {
    return toQString(cutToShow(ADIFFieldCatalog::label(column)));
}

QString ColumnHeaderCell::tag() const {
    return QLatin1Char('<') + toQString(cutToShow(column));
}

void ColumnHeaderCell::paint(QPainter& painter, const QRectF& area, const QPalette& palette) const {
    const QColor primary = palette.color(QPalette::WindowText);
    const QColor accent = palette.color(QPalette::Highlight);
    painter.save();
    if (isDragging) {
        painter.fillRect(area, withOpacity(accent, 0.15));
    }

    const QRectF labelPlace = labelArea(area);
    const QFont labelFont = fontFor(MeasuredFont::label);
    const QString name = QFontMetricsF(labelFont).elidedText(label(), Qt::ElideRight, labelPlace.width());
    painter.setFont(labelFont);
    painter.setPen(primary);
    painter.drawText(labelPlace, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, name);
    if (sort != Sort::none) {
        const double left = labelPlace.left() + std::ceil(QFontMetricsF(labelFont).horizontalAdvance(name)) +
                            chevronRoom - chevronWidth;
        paintChevron(painter, {left + chevronWidth / 2, labelPlace.center().y()}, chevronWidth - 1, 2,
                     sort == Sort::ascending ? Points::up : Points::down, accent);
    }

    const QRectF tagPlace = tagArea(area);
    const QFont tagFont = fontFor(MeasuredFont::tag);
    painter.setFont(tagFont);
    painter.setPen(withOpacity(primary, tagOpacity));
    painter.drawText(tagPlace, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     QFontMetricsF(tagFont).elidedText(tag(), Qt::ElideRight, tagPlace.width()));

    const QRectF menu = menuArea(area);
    if (isHoveringMenu) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(withOpacity(primary, 0.12));
        painter.drawRoundedRect(menu, 3, 3);
        painter.setRenderHint(QPainter::Antialiasing, false);
    }
    paintChevron(painter, menu.center(), 6, 1.25, Points::down,
                 withOpacity(primary, isHoveringMenu ? 1 : tagOpacity));

    const double handle = isHoveringHandle ? 2 : hairlineWidth(painter);
    painter.fillRect(QRectF(area.right() - handle, area.top(), handle, area.height()),
                     isHoveringHandle ? accent : withOpacity(primary, handleOpacity));
    if (focused) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(accent, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(area.adjusted(1, 1, -2, -2));
    }
    painter.restore();
}

QRectF ColumnHeaderCell::menuArea(const QRectF& area) {
    const QRectF line = tagArea(area);
    return {area.right() - handleRoom - menuSize, line.center().y() - menuSize / 2, menuSize, menuSize};
}

int ColumnHeaderCell::height() {
    return static_cast<int>(2 * verticalPadding + lineHeight(MeasuredFont::label) +
                            lineHeight(MeasuredFont::tag));
}

bool ColumnHeaderCell::isCutOff(const QRectF& area) const {
    return QFontMetricsF(fontFor(MeasuredFont::label)).horizontalAdvance(label()) > labelArea(area).width() ||
           QFontMetricsF(fontFor(MeasuredFont::tag)).horizontalAdvance(tag()) > tagArea(area).width();
}

QRectF ColumnHeaderCell::labelArea(const QRectF& area) const {
    const double right = handleRoom + 2 + (sort == Sort::none ? 0 : chevronRoom);
    return {area.left() + CellView::padding, area.top() + verticalPadding,
            std::max(0.0, area.width() - CellView::padding - right), lineHeight(MeasuredFont::label)};
}

QRectF ColumnHeaderCell::tagArea(const QRectF& area) {
    const double lineTop = area.top() + verticalPadding + lineHeight(MeasuredFont::label);
    return {area.left() + CellView::padding, lineTop,
            std::max(0.0, area.width() - CellView::padding - handleRoom - menuSize - 2),
            lineHeight(MeasuredFont::tag)};
}

}  // namespace quillon
