// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/Colors.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace quillon {
namespace {

/// Tones of middle brightness, to be seen on a light ground as well as on a dark one.
QColor systemTone(SystemColor color) {
    switch (color) {
        case SystemColor::blue:
            return {0x1F, 0x7A, 0xE8};
        case SystemColor::orange:
            return {0xF0, 0x8C, 0x1A};
        case SystemColor::green:
            return {0x34, 0xB0, 0x4C};
        case SystemColor::teal:
            return {0x2E, 0xA3, 0xA8};
        case SystemColor::purple:
            return {0x9B, 0x51, 0xD6};
        case SystemColor::pink:
            return {0xEC, 0x4B, 0x86};
        case SystemColor::red:
            return {0xE5, 0x3E, 0x3A};
        case SystemColor::brown:
            return {0x9C, 0x75, 0x4F};
        case SystemColor::indigo:
            return {0x57, 0x57, 0xCE};
        case SystemColor::cyan:
            return {0x2B, 0xA9, 0xDB};
        case SystemColor::mint:
            return {0x3E, 0xC9, 0xA7};
        case SystemColor::gray:
            break;
    }
    return {0x8E, 0x8E, 0x93};
}

/// The light that a colour gives off, from 0 for black to 1 for white.
double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double leastContrast(const QColor& color, const QList<QColor>& grounds) {
    double least = 21;
    for (const QColor& ground : grounds) {
        least = std::min(least, contrast(color, ground));
    }
    return least;
}

/// The share of text in a secondary colour: less of it reads as disabled.
constexpr double secondaryShare = 0.62;

}  // namespace

QColor screenColor(const PaletteColor& color) {
    if (const auto* tone = std::get_if<SystemColor>(&color)) {
        return systemTone(*tone);
    }
    const auto& hue = std::get<HueColor>(color);
    return QColor::fromHsvF(static_cast<float>(hue.hue), static_cast<float>(hue.saturation),
                            static_cast<float>(hue.brightness));
}

QColor withOpacity(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

QColor blended(const QColor& above, double share, const QColor& below) {
    const auto part = [share](int over, int under) { return qRound(share * over + (1 - share) * under); };
    return {part(above.red(), below.red()), part(above.green(), below.green()),
            part(above.blue(), below.blue())};
}

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor standingOut(const QColor& color, const QList<QColor>& grounds, double least) {
    constexpr int steps = 50;
    for (int step = 0; step <= steps; ++step) {
        for (const QColor& extreme : {QColor(Qt::black), QColor(Qt::white)}) {
            const QColor shade = blended(extreme, static_cast<double>(step) / steps, color);
            if (leastContrast(shade, grounds) >= least) {
                return shade;
            }
        }
    }
    return leastContrast(Qt::black, grounds) >= leastContrast(Qt::white, grounds) ? Qt::black : Qt::white;
}

QColor secondaryTextColor(const QPalette& palette, QPalette::ColorGroup group) {
    const QColor window = palette.color(group, QPalette::Window);
    return standingOut(
        blended(palette.color(group, QPalette::WindowText), secondaryShare, window),
        {window, palette.color(group, QPalette::Base), palette.color(group, QPalette::AlternateBase)},
        textContrast);
}

void calmSelection(QPalette& palette, const QWidget* list) {
    const QWidget* const keyboard = QApplication::focusWidget();
    if (list == nullptr || list == keyboard || list->isAncestorOf(keyboard)) {
        return;
    }
    constexpr double share = 0.25;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        palette.setColor(
            group, QPalette::Highlight,
            blended(palette.color(group, QPalette::Highlight), share, palette.color(group, QPalette::Base)));
        palette.setColor(group, QPalette::HighlightedText, palette.color(group, QPalette::Text));
    }
}

void makePaletteReadable() {
    QPalette palette = QGuiApplication::palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        const auto readable = [&](QPalette::ColorRole role, const QList<QColor>& grounds) {
            const QColor now = palette.color(group, role);
            // What is readable is left to the desktop.
            if (const QColor shade = standingOut(now, grounds, textContrast); shade != now) {
                palette.setColor(group, role, shade);
            }
        };
        palette.setColor(group, QPalette::PlaceholderText, secondaryTextColor(palette, group));
        readable(QPalette::HighlightedText, {palette.color(group, QPalette::Highlight)});
        const QList<QColor> grounds = {palette.color(group, QPalette::Window),
                                       palette.color(group, QPalette::Base)};
        readable(QPalette::Link, grounds);
        readable(QPalette::LinkVisited, grounds);
    }
    if (palette != QGuiApplication::palette()) {
        QGuiApplication::setPalette(palette);
    }
}

}  // namespace quillon
