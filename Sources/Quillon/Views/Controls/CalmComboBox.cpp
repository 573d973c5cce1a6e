#include "Quillon/Views/Controls/CalmComboBox.h"

#include <QStyleOption>
#include <QStylePainter>
#include <QWheelEvent>

namespace quillon {

CalmComboBox::CalmComboBox(QWidget* parent) : QComboBox(parent) {
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

void CalmComboBox::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    if (currentIndex() < 0) {
        option.palette.setBrush(QPalette::ButtonText, option.palette.placeholderText());
        option.currentText = placeholderText();
    }
    const int room =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this).width();
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideRight, room - 4);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void CalmComboBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

}  // namespace quillon
