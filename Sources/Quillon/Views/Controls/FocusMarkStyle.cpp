// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/FocusMarkStyle.h"

#include "Quillon/Views/Controls/Colors.h"

#include <QPainter>
#include <QStyleOption>

namespace quillon {

namespace {

void paintMark(QPainter& painter, const QStyleOption& option) {
    // The outer half may well lie on the outline of the control.
    constexpr double widthPx = 2;
    constexpr double cornerPx = 2;
    QList<QColor> grounds;
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
        grounds.append(option.palette.color(role));
    }
    // Of a button that is held or switched on.
    grounds.append(option.palette.color(QPalette::Button).darker(125));
    if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(&option)) {
        const bool isSelected = item->state.testFlag(QStyle::State_Selected);
        grounds = {item->palette.color(QPalette::Base),
                   item->palette.color(isSelected ? QPalette::Highlight : QPalette::AlternateBase)};
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(standingOut(option.palette.color(QPalette::Highlight), grounds, shapeContrast), widthPx));
    painter.setBrush(Qt::NoBrush);
    constexpr double inset = widthPx / 2;
    painter.drawRoundedRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset), cornerPx, cornerPx);
    painter.restore();
}

/// Has the keyboard, and not by a click: around what was clicked styles paint no frame.
bool isReached(const QStyleOption& option) {
    return option.state.testFlag(QStyle::State_HasFocus) &&
           option.state.testFlag(QStyle::State_KeyboardFocusChange);
}

}  // namespace

QString FocusMarkStyle::drawingStyleOf(const QStyle& style) {
    const auto* proxy = qobject_cast<const FocusMarkStyle*>(&style);
    return proxy != nullptr ? proxy->baseStyle()->name() : style.name();
}

void FocusMarkStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                   const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isField = element == PE_FrameLineEdit && option->state.testFlag(State_HasFocus);
    const bool isButton = element == PE_FrameFocusRect || element == PE_PanelButtonCommand;
    if (isField || (isButton && isReached(*option))) {
        paintMark(*painter, *option);
    }
}

void FocusMarkStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (element == CE_ItemViewItem && item != nullptr && item->state.testFlag(State_HasFocus)) {
        // Styles mark the words alone, and nothing at all where a delegate writes them itself.
        QStyleOptionViewItem unmarked = *item;
        unmarked.state &= ~State_HasFocus;
        QProxyStyle::drawControl(element, &unmarked, painter, widget);
        paintMark(*painter, *item);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    // Without a panel of its own.
    if (element == CE_PushButton && button != nullptr && isReached(*option) &&
        button->features.testFlag(QStyleOptionButton::Flat)) {
        paintMark(*painter, *option);
    }
}

void FocusMarkStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                        QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if ((control == CC_ComboBox || control == CC_SpinBox) && option->state.testFlag(State_HasFocus)) {
        paintMark(*painter, *option);
    }
}

}  // namespace quillon
