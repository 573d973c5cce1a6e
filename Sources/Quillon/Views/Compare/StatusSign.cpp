// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Compare/StatusSign.h"

#include "Quillon/Views/Controls/Colors.h"

#include <QPainter>
#include <QPalette>

namespace quillon {
namespace {

constexpr int sizePx = 16;
constexpr double stroke = 1.75;

void paintArrow(QPainter& painter, double direction) {
    const QPointF head[] = {{direction * 1, -4}, {direction * 5, 0}, {direction * 1, 4}};
    painter.drawLine(QPointF(direction * -5, 0), QPointF(direction * 5, 0));
    painter.drawPolyline(head, 3);
}

}  // namespace

void paintStatusSign(QPainter& painter, const QRectF& area, ComparedLogs::Status status,
                     const QPalette& palette) {
    using Status = ComparedLogs::Status;
    const QColor ground = palette.color(QPalette::Window);
    QColor color = palette.color(QPalette::PlaceholderText);
    if (status == Status::differs) {
        color = standingOut(screenColor(SystemColor::orange), {ground}, shapeContrast);
    } else if (status != Status::equal) {
        color = standingOut(palette.color(QPalette::Highlight), {ground}, shapeContrast);
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.center());
    painter.setPen(QPen(color, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    switch (status) {
        case Status::differs:
            painter.drawLine(QPointF(-3, 5.5), QPointF(3, -5.5));
            [[fallthrough]];
        case Status::equal:
            painter.drawLine(QPointF(-4.5, -2), QPointF(4.5, -2));
            painter.drawLine(QPointF(-4.5, 2), QPointF(4.5, 2));
            break;
        case Status::onlyLeft:
            paintArrow(painter, -1);
            break;
        case Status::onlyRight:
            paintArrow(painter, 1);
            break;
    }
    painter.restore();
}

StatusSign::StatusSign(ComparedLogs::Status shownStatus, QWidget* parent)
    : QWidget(parent), status(shownStatus) {
    setFixedSize(sizePx, sizePx);
}

void StatusSign::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintStatusSign(painter, rect(), status, palette());
}

}  // namespace quillon
