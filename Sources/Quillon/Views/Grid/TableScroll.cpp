// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Grid/TableScroll.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <limits>

namespace quillon {
namespace {

constexpr double smallestChange = 0.5;
constexpr int horizontalStepPx = 20;

bool isChange(double from, double to) {
    return std::abs(from - to) > smallestChange;
}

/// Scroll bars count in whole pixels, more of which than any log needs.
int wholePixels(double length) {
    return static_cast<int>(std::clamp(std::ceil(length), 0.0, double{std::numeric_limits<int>::max()}));
}

}  // namespace

TableScroll::TableScroll(QWidget* parent)
    : QWidget(parent),
      horizontal(new QScrollBar(Qt::Horizontal, this)),
      vertical(new QScrollBar(Qt::Vertical, this)) {
    horizontal->setSingleStep(horizontalStepPx);
    connect(horizontal, &QScrollBar::valueChanged, this, &TableScroll::report);
    connect(vertical, &QScrollBar::valueChanged, this, &TableScroll::report);
}

void TableScroll::setRowHeight(double height) {
    vertical->setSingleStep(static_cast<int>(height));
}

void TableScroll::setContent(QWidget* headerWidget, QWidget* bodyWidget, QWidget* rulerWidget) {
    header = headerWidget;
    body = bodyWidget;
    body->installEventFilter(this);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    if (rulerWidget != nullptr) {
        layout->addWidget(rulerWidget, 0, 0, 2, 1);
    }
    layout->addWidget(header, 0, 1);
    layout->addWidget(body, 1, 1);
    layout->addWidget(vertical, 1, 2);
    layout->addWidget(horizontal, 2, 1);
    layout->setRowStretch(1, 1);
    layout->setColumnStretch(1, 1);
}

void TableScroll::moveUpAndDownWith(TableScroll& other) {
    vertical->hide();
    connect(vertical, &QScrollBar::valueChanged, other.vertical, &QScrollBar::setValue);
    connect(other.vertical, &QScrollBar::valueChanged, vertical, &QScrollBar::setValue);
}

void TableScroll::setContentSize(QSizeF size) {
    content = size;
    fitBars();
}

double TableScroll::viewportWidth() const {
    return body->width();
}

void TableScroll::setScrollX(double position) {
    if (isChange(x, position)) {
        horizontal->setValue(qRound(position));
    }
}

void TableScroll::setScrollY(double position) {
    if (isChange(y, position)) {
        vertical->setValue(qRound(position));
    }
}

bool TableScroll::eventFilter(QObject* watched, QEvent* event) {
    if (watched == body && event->type() == QEvent::Resize) {
        fitBars();
    }
    return QWidget::eventFilter(watched, event);
}

void TableScroll::wheelEvent(QWheelEvent* event) {
    const QPoint turn = event->angleDelta();
    if (std::abs(turn.x()) > std::abs(turn.y())) {
        QApplication::sendEvent(horizontal, event);
    } else if (event->modifiers().testFlag(Qt::ShiftModifier)) {
        // A bar takes the shift key for a wish to go by pages.
        QWheelEvent sideways(event->position(), event->globalPosition(), event->pixelDelta().transposed(),
                             turn.transposed(), event->buttons(), event->modifiers() & ~Qt::ShiftModifier,
                             event->phase(), event->inverted(), event->source());
        QApplication::sendEvent(horizontal, &sideways);
    } else {
        QApplication::sendEvent(vertical, event);
    }
}

void TableScroll::fitBars() {
    horizontal->setPageStep(body->width());
    horizontal->setRange(0, std::max(0, wholePixels(content.width()) - body->width()));
    vertical->setPageStep(body->height());
    vertical->setRange(0, std::max(0, wholePixels(content.height()) - body->height()));
    report();
}

void TableScroll::report() {
    if (isChange(x, horizontal->value())) {
        x = horizontal->value();
        emit scrollXChanged();
    }
    if (isChange(y, vertical->value())) {
        y = vertical->value();
        emit scrollYChanged();
    }
    if (isChange(reportedHeight, body->height())) {
        reportedHeight = body->height();
        emit viewportHeightChanged();
    }
}

}  // namespace quillon
