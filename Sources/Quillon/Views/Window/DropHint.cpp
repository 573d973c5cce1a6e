// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/DropHint.h"

#include "Quillon/Views/Controls/Colors.h"

#include <QPainter>

namespace quillon {

DropHint::DropHint(QWidget& window) : QWidget(&window) {
    // What is dragged is the window's business.
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void DropHint::showFor(const QString& purpose) {
    text = QStringLiteral("Loslassen, um ") + purpose;
    show();
    update();
}

void DropHint::showEvent(QShowEvent*) {
    setGeometry(parentWidget()->rect());
    raise();
}

void DropHint::paintEvent(QPaintEvent*) {
    constexpr double veil = 0.85;
    constexpr int frameWidthPx = 3;
    QPainter painter(this);
    painter.fillRect(rect(), withOpacity(palette().color(QPalette::Window), veil));
    painter.setPen(QPen(palette().color(QPalette::Highlight), frameWidthPx));
    painter.drawRect(rect().adjusted(8, 8, -9, -9));
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter, text);
}

}  // namespace quillon
