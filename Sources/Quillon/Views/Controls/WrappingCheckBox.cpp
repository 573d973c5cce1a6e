// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/WrappingCheckBox.h"

#include "Quillon/Views/Controls/Colors.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>

namespace quillon {

namespace {

constexpr int textFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

/// The text with a short last word held to the one before: "…)" alone on a line looks like a slip.
QString heldTogether(QString text) {
    constexpr qsizetype shortWord = 3;
    const qsizetype blank = text.lastIndexOf(QLatin1Char(' '));
    if (blank >= 0 && text.size() - blank - 1 <= shortWord) {
        text[blank] = QChar::Nbsp;
    }
    return text;
}

}  // namespace

WrappingCheckBox::WrappingCheckBox(const QString& text, QWidget* parent) : QCheckBox(text, parent) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QSize WrappingCheckBox::sizeHint() const {
    const int width = boxWidth() + fontMetrics().horizontalAdvance(text()) + 1;
    return {width, heightForWidth(width)};
}

QSize WrappingCheckBox::minimumSizeHint() const {
    return {boxWidth() + 60, heightForWidth(sizeHint().width())};
}

int WrappingCheckBox::heightForWidth(int width) const {
    // Layouts ask for the same width many times over.
    if (knownWidth == width && knownFont == font()) {
        return knownHeight;
    }
    const QRect room(0, 0, std::max(1, width - boxWidth()), QWIDGETSIZE_MAX);
    knownHeight = std::max(style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this),
                           fontMetrics().boundingRect(room, textFlags, heldTogether(text())).height());
    knownWidth = width;
    knownFont = font();
    return knownHeight;
}

void WrappingCheckBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    // The style draws the box as that of a check box with one line at the top.
    const int boxHeight = style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this);
    const int lineHeight = std::max(boxHeight, fontMetrics().height());
    QStyleOptionButton box = option;
    box.rect = QRect(0, (lineHeight - boxHeight) / 2,
                     style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this), boxHeight);
    style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, &painter, this);

    const QRect textArea = rect().adjusted(boxWidth(), (lineHeight - fontMetrics().height()) / 2, 0, 0);
    const QString shown = heldTogether(text());
    style()->drawItemText(&painter, textArea, textFlags, palette(), isEnabled(), shown, QPalette::WindowText);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        // The frame of the style is a breath of colour, too pale to find the focus by.
        const QRectF frame(
            fontMetrics().boundingRect(textArea, textFlags, shown).adjusted(-2, 0, 2, 0).intersected(rect()));
        painter.setPen(standingOut(palette().color(QPalette::Highlight), {palette().color(QPalette::Window)},
                                   shapeContrast));
        painter.drawRect(frame.adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

int WrappingCheckBox::boxWidth() const {
    return style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) +
           style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this);
}

}  // namespace quillon
