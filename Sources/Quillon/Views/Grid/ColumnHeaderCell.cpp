// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Grid/ColumnHeaderCell.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Platform/Desktop/FontMeasurer.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Hairline.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace quillon {
namespace {

constexpr double verticalPadding = 4;
constexpr double chevronWidth = 8;
constexpr double handleOpacity = 0.22;

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

/// The lower of the two lines of a header cell.
QRectF tagLine(const QRectF& area) {
    return {area.left(), area.top() + verticalPadding + lineHeight(MeasuredFont::label), area.width(),
            lineHeight(MeasuredFont::tag)};
}

}  // namespace

QString ColumnHeaderCell::label() const {
    return toQString(tallyrig::text::visibleText(cutToShow(ADIFFieldCatalog::label(column))));
}

QString ColumnHeaderCell::remark() const {
    const QString name = toQString(cutToShow(column));
    switch (sort) {
        case Sort::ascending:
            return name + QStringLiteral(", aufsteigend sortiert");
        case Sort::descending:
            return name + QStringLiteral(", absteigend sortiert");
        case Sort::none:
            break;
    }
    return name;
}

QString ColumnHeaderCell::tag() const {
    return QLatin1Char('<') + toQString(tallyrig::text::visibleText(cutToShow(column))) +
           (isTagClosed ? QStringLiteral(">") : QString());
}

void ColumnHeaderCell::paint(QPainter& painter, const QRectF& area, const QPalette& palette) const {
    const QColor primary = palette.color(QPalette::WindowText);
    const QColor accent =
        standingOut(palette.color(QPalette::Highlight), {palette.color(QPalette::Window)}, shapeContrast);
    const QColor secondary = palette.color(QPalette::PlaceholderText);
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
                            desktopTableMetrics().sortMarkRoom - chevronWidth;
        paintChevron(painter, {left + chevronWidth / 2, labelPlace.center().y()}, chevronWidth - 1, 2,
                     sort == Sort::ascending ? Points::up : Points::down, accent);
    }

    const QRectF tagPlace = tagArea(area);
    const QFont tagFont = fontFor(MeasuredFont::tag);
    painter.setFont(tagFont);
    painter.setPen(secondary);
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
    if (hasMenu) {
        paintChevron(painter, menu.center(), 6, 1.25, Points::down, isHoveringMenu ? primary : secondary);
    }

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
    const TableMetrics metrics = desktopTableMetrics();
    const double size = metrics.menuRoom - metrics.handleRoom;
    return {area.right() - metrics.menuRoom, tagLine(area).center().y() - size / 2, size, size};
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
    const TableMetrics metrics = desktopTableMetrics();
    const double left = metrics.cellMargins / 2;
    const double right = metrics.handleRoom + 2 + (sort == Sort::none ? 0 : metrics.sortMarkRoom);
    return {area.left() + left, area.top() + verticalPadding, std::max(0.0, area.width() - left - right),
            lineHeight(MeasuredFont::label)};
}

QRectF ColumnHeaderCell::tagArea(const QRectF& area) const {
    const TableMetrics metrics = desktopTableMetrics();
    const double left = metrics.cellMargins / 2;
    const double right = (hasMenu ? metrics.menuRoom : metrics.handleRoom) + 2;
    const QRectF line = tagLine(area);
    return {line.left() + left, line.top(), std::max(0.0, line.width() - left - right), line.height()};
}

}  // namespace quillon
