// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace quillon {

/// The style of the desktop, with a frame around what has the keyboard that can be seen on every ground: many
/// a style marks it by a breath of colour alone, hardly to be found in a dark palette.
class FocusMarkStyle : public QProxyStyle {
    Q_OBJECT

  public:
    /// `drawingStyle` is the name of the style that does all the rest; one that is unknown gives the
    /// desktop's.
    explicit FocusMarkStyle(const QString& drawingStyle) : QProxyStyle(drawingStyle) {}

    /// The name by which the style that draws for `style` is made anew.
    static QString drawingStyleOf(const QStyle& style);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

}  // namespace quillon
