#include "Quillon/Views/Controls/Colors.h"

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

}  // namespace quillon
