#include "Quillon/Views/Controls/Card.h"

#include "Quillon/Views/Controls/Hairline.h"
#include "Quillon/Views/Controls/Labels.h"

#include <QPainter>
#include <QVBoxLayout>

namespace quillon {

Card::Card(const QString& heading, QWidget* parent)
    : QWidget(parent), column(new QVBoxLayout(this)), headingLine(headingLabel(heading, this)) {
    column->setContentsMargins(16, 12, 16, 12);
    column->setSpacing(6);
    column->addWidget(headingLine);
    setHeading(heading);
}

void Card::setHeading(const QString& heading) {
    headingLine->setText(heading);
    headingLine->setVisible(!heading.isEmpty());
    setAccessibleName(heading);
}

void Card::paintEvent(QPaintEvent*) {
    paintCardGround(*this);
}

void paintCardGround(QWidget& widget) {
    constexpr double cornerPx = 8;
    QPainter painter(&widget);
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = hairlineWidth(painter);
    painter.setPen(QPen(widget.palette().color(QPalette::Mid), line));
    painter.setBrush(widget.palette().color(QPalette::Base));
    painter.drawRoundedRect(QRectF(widget.rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2),
                            cornerPx, cornerPx);
}

}  // namespace quillon
