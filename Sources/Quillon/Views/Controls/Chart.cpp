// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/Chart.h"

#include "Quillon/Views/Controls/ChartAccessibility.h"
#include "Quillon/Views/Controls/ChartPainter.h"
#include "Quillon/Views/Controls/Colors.h"

#include <QClipboard>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillon {

namespace {

constexpr double gridShare = 0.13;
constexpr double lineShare = 0.45;
/// So wide that two charts stand beside each other in a window of usual size, unless one has too many bars.
constexpr int usualWidthPx = 380;
constexpr int wideWidthPx = 520;
constexpr int leastWidthPx = 240;
constexpr std::size_t pageOfBars = 10;

ChartLetters lettersOf(const QFont& font) {
    const QFontMetricsF metrics(font);
    return {.lineHeight = metrics.height(),
            .width = [metrics](const QString& text) { return metrics.horizontalAdvance(text); },
            .elided = [metrics](const QString& text,
                                double width) { return metrics.elidedText(text, Qt::ElideRight, width); }};
}

}  // namespace

Chart::Chart(ChartPainter& chartPainter, QWidget* parent) : QWidget(parent), painter(chartPainter) {
    registerChartAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void Chart::setData(std::shared_ptr<const ChartData> data) {
    shown = std::move(data);
    pointed.reset();
    if (current && *current >= shown->barCount()) {
        current.reset();
    }
    setAccessibleName(shown->title);
    updateGeometry();
    layOut();
    announceOtherBars(*this);
}

void Chart::showFrom(std::size_t firstBar) {
    if (firstBar != layout.firstBar()) {
        firstWanted = firstBar;
        pointed.reset();
        layOut();
    }
}

void Chart::goTo(std::size_t bar) {
    current = bar;
    pointed.reset();
    showFrom(layout.firstBarToShow(bar));
    update();
    announceBar(*this, bar);
}

std::optional<std::size_t> Chart::markedBar() const {
    return pointed || !hasFocus() ? pointed : current;
}

QString Chart::readout() const {
    const auto bar = markedBar();
    return bar ? shown->sentence(*bar) : QString();
}

QImage Chart::picture() const {
    QFont titleFont = font();
    titleFont.setBold(true);
    const int titleHeight = static_cast<int>(std::ceil(QFontMetricsF(titleFont).height())) + 8;
    // Documents are printed, and shown on screens finer than this one.
    const double ratio = std::max(2.0, devicePixelRatioF());
    QImage chart(size() * ratio, QImage::Format_RGB32);
    chart.setDevicePixelRatio(ratio);
    paintDiagram(chart);
    QImage whole((size() + QSize(0, titleHeight)) * ratio, QImage::Format_RGB32);
    whole.setDevicePixelRatio(ratio);
    whole.fill(palette().color(QPalette::Base));
    QPainter onPicture(&whole);
    onPicture.setFont(titleFont);
    onPicture.setPen(palette().color(QPalette::Text));
    onPicture.drawText(QRect(8, 0, width() - 8, titleHeight), Qt::AlignVCenter | Qt::TextSingleLine,
                       shown->title);
    onPicture.drawImage(0, titleHeight, chart);
    return whole;
}

void Chart::copyPicture() const {
    QGuiApplication::clipboard()->setImage(picture());
}

QSize Chart::sizeHint() const {
    const ChartLetters letters = lettersOf(font());
    const double wanted = std::min<double>(ChartGeometry::width(*shown, letters), wideWidthPx);
    return {std::max(usualWidthPx, static_cast<int>(wanted)), ChartGeometry::height(*shown, letters)};
}

QSize Chart::minimumSizeHint() const {
    return {leastWidthPx, sizeHint().height()};
}

void Chart::layOut() {
    const std::size_t first = layout.firstBar();
    const std::size_t count = layout.barCount();
    const std::size_t inSight = layout.barsInSight();
    layout = ChartGeometry(*shown, size(), firstWanted, lettersOf(font()));
    firstWanted = layout.firstBar();
    repaintDiagram();
    if (first != layout.firstBar() || count != layout.barCount() || inSight != layout.barsInSight()) {
        emit sightChanged();
    }
}

void Chart::repaintDiagram() {
    diagram = QPixmap();
    update();
}

void Chart::paintDiagram(QPaintDevice& device) const {
    const QPalette& colors = palette();
    const QColor ground = colors.color(QPalette::Base);
    const QColor text = colors.color(QPalette::Text);
    const QColor plain = standingOut(colors.color(QPalette::Highlight), {ground}, shapeContrast);
    const auto barColor = [this, ground, plain](std::size_t entry) {
        return shown->color ? standingOut(screenColor(shown->color(shown->entries[entry].label)), {ground},
                                          shapeContrast)
                            : plain;
    };
    painter.paint(device, {.geometry = layout,
                           .labelAxis = shown->labelAxis,
                           .countAxis = shown->countAxis,
                           .barColor = barColor,
                           .font = font(),
                           .ground = ground,
                           .text = text,
                           .axisText = colors.color(QPalette::PlaceholderText),
                           .line = blended(text, lineShare, ground),
                           .gridLine = blended(text, gridShare, ground)});
}

void Chart::paintEvent(QPaintEvent*) {
    const double ratio = devicePixelRatioF();
    if (diagram.isNull() || diagram.devicePixelRatio() != ratio) {
        diagram = QPixmap(size() * ratio);
        diagram.setDevicePixelRatio(ratio);
        paintDiagram(diagram);
    }
    QPainter onWidget(this);
    onWidget.drawPixmap(0, 0, diagram);
    paintMark(onWidget);
}

/// A frame around the bar, and beside it what it stands for.
void Chart::paintMark(QPainter& onWidget) const {
    const auto bar = markedBar();
    const QRect area = bar ? layout.barOf(*bar) : QRect();
    if (area.isEmpty()) {
        return;
    }
    constexpr int awayPx = 6;
    onWidget.setRenderHint(QPainter::Antialiasing);
    onWidget.setPen(QPen(palette().color(QPalette::Text), 2));
    onWidget.drawRoundedRect(QRectF(area).adjusted(-2, -2, 2, 2), 2, 2);

    const QFontMetrics letters(font());
    const QString text = letters.elidedText(shown->sentence(*bar), Qt::ElideRight, width() - 4 * awayPx);
    QRect box(0, 0, letters.horizontalAdvance(text) + 2 * awayPx, letters.height() + awayPx);
    if (layout.isSideways()) {
        box.moveCenter(area.center());
        box.moveLeft(area.right() + awayPx);
    } else {
        box.moveCenter(area.center());
        box.moveBottom(area.top() - awayPx);
    }
    box.moveLeft(std::clamp(box.left(), 1, std::max(1, width() - box.width() - 1)));
    box.moveTop(std::clamp(box.top(), 1, std::max(1, height() - box.height() - 1)));
    const QPalette colors = QToolTip::palette();
    const QColor ground = colors.color(QPalette::ToolTipBase);
    onWidget.setBrush(ground);
    onWidget.setPen(QPen(standingOut(palette().color(QPalette::Mid), {ground}, shapeContrast), 1));
    onWidget.drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    onWidget.setPen(colors.color(QPalette::ToolTipText));
    onWidget.drawText(box, Qt::AlignCenter | Qt::TextSingleLine, text);
}

bool Chart::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
        // Meant for this chart and not for the window's command of that key.
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void Chart::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        updateGeometry();
        layOut();
    } else if (event->type() == QEvent::PaletteChange) {
        repaintDiagram();
    }
}

void Chart::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    emit focusChanged(true);
    if (current) {
        announceBar(*this, *current);
    }
}

void Chart::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    emit focusChanged(false);
}

std::optional<std::size_t> Chart::barBehind(int key) const {
    const std::size_t last = layout.barCount() - 1;
    if (key == Qt::Key_Home) {
        return 0;
    }
    if (key == Qt::Key_End) {
        return last;
    }
    std::size_t step = 1;
    bool isForward = true;
    if (key == Qt::Key_PageUp || key == Qt::Key_PageDown) {
        step = pageOfBars;
        isForward = key == Qt::Key_PageDown;
    } else if (key == (layout.isSideways() ? Qt::Key_Up : Qt::Key_Left)) {
        isForward = false;
    } else if (key != (layout.isSideways() ? Qt::Key_Down : Qt::Key_Right)) {
        return std::nullopt;
    }
    if (!current) {
        return layout.firstBar();
    }
    return isForward ? std::min(*current + step, last) : *current - std::min(*current, step);
}

void Chart::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copyPicture();
        return;
    }
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const auto bar = isPlain && layout.barCount() > 0 ? barBehind(event->key()) : std::nullopt;
    if (bar) {
        goTo(*bar);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void Chart::leaveEvent(QEvent* event) {
    pointed.reset();
    update();
    QWidget::leaveEvent(event);
}

void Chart::mouseMoveEvent(QMouseEvent* event) {
    const auto bar = layout.entryAt(event->position());
    if (bar != pointed) {
        pointed = bar;
        update();
    }
}

void Chart::mousePressEvent(QMouseEvent* event) {
    const auto bar = layout.entryAt(event->position());
    if (bar && event->button() == Qt::LeftButton) {
        goTo(*bar);
    } else {
        QWidget::mousePressEvent(event);
    }
}

void Chart::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layOut();
}

/// From side to side, where not all bars are in sight; up and down belongs to the page.
void Chart::wheelEvent(QWheelEvent* event) {
    const QPoint turned = event->angleDelta();
    if (layout.barsInSight() >= layout.barCount() || std::abs(turned.x()) <= std::abs(turned.y())) {
        event->ignore();
        return;
    }
    const std::size_t first = layout.firstBar();
    showFrom(turned.x() > 0 ? first - std::min<std::size_t>(first, 1) : first + 1);
}

}  // namespace quillon
