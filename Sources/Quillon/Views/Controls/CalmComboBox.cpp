// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/CalmComboBox.h"

#include "Quillon/Views/Controls/Labels.h"

#include <QHelpEvent>
#include <QStyleOption>
#include <QStylePainter>
#include <QToolTip>
#include <QWheelEvent>

namespace quillon {

CalmComboBox::CalmComboBox(QWidget* parent) : QComboBox(parent) {
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    // Nor does the wheel bring the keyboard here.
    setFocusPolicy(Qt::StrongFocus);
}

bool CalmComboBox::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        const bool isCut = fontMetrics().horizontalAdvance(option.currentText) > textRoom(option);
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           isCut ? plainToolTip(option.currentText) : QString(), this);
        return true;
    }
    return QComboBox::event(event);
}

void CalmComboBox::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    if (currentIndex() < 0) {
        option.palette.setBrush(QPalette::ButtonText, option.palette.placeholderText());
        option.currentText = placeholderText();
    }
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideRight, textRoom(option));
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

int CalmComboBox::textRoom(const QStyleOptionComboBox& option) const {
    constexpr int marginsPx = 4;
    return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this).width() -
           marginsPx;
}

void CalmComboBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

}  // namespace quillon
