#include "Quillon/Views/Controls/WrappingCheckBox.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>

namespace quillon {

namespace {

constexpr int textFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

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
                           fontMetrics().boundingRect(room, textFlags, text()).height());
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
    style()->drawItemText(&painter, textArea, textFlags, palette(), isEnabled(), text(),
                          QPalette::WindowText);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.rect =
            fontMetrics().boundingRect(textArea, textFlags, text()).adjusted(-2, 0, 2, 0).intersected(rect());
        focus.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

int WrappingCheckBox::boxWidth() const {
    return style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) +
           style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this);
}

}  // namespace quillon
