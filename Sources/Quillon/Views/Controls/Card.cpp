// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/Card.h"

#include "Quillon/Platform/Desktop/FontMeasurer.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Hairline.h"
#include "Quillon/Views/Controls/KeptFont.h"
#include "Quillon/Views/Controls/Labels.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace quillon {

Card::Card(const QString& heading, QWidget* parent)
    : QWidget(parent),
      column(new QVBoxLayout(this)),
      headRow(new QHBoxLayout),
      headingLine(new ElidedLabel(Qt::ElideMiddle, this)) {
    column->setContentsMargins(16, 12, 16, 12);
    column->setSpacing(6);
    keepFont(*headingLine, [] { return fontFor(MeasuredFont::label); });
    headRow->setSpacing(8);
    headRow->addWidget(headingLine, 1);
    column->addLayout(headRow);
    setHeading(heading);
}

void Card::setHeading(const QString& heading) {
    headingLine->setText(heading);
    headingLine->setVisible(!heading.isEmpty());
    setAccessibleName(heading);
}

void Card::putBesideHeading(QWidget* control) {
    headRow->addWidget(control);
}

void Card::setFramed(bool framed) {
    isFramed = framed;
    update();
}

void Card::paintEvent(QPaintEvent*) {
    paintCardGround(*this, isFramed);
}

void paintCardGround(QWidget& widget, bool isFramed) {
    constexpr double cornerPx = 8;
    QPainter painter(&widget);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor base = widget.palette().color(QPalette::Base);
    const double line = isFramed ? 2 : hairlineWidth(painter);
    const QColor frame = isFramed
                             ? standingOut(widget.palette().color(QPalette::Highlight), {base}, shapeContrast)
                             : widget.palette().color(QPalette::Mid);
    painter.setPen(QPen(frame, line));
    painter.setBrush(base);
    painter.drawRoundedRect(QRectF(widget.rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2),
                            cornerPx, cornerPx);
}

}  // namespace quillon
