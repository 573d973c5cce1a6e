// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <variant>
#include <vector>

namespace quillon {

/// The standard colours that a toolkit knows by name.
enum class SystemColor { blue, orange, green, teal, purple, pink, red, brown, indigo, cyan, mint, gray };

/// A colour by hue, saturation and brightness, each from 0 to 1; fully opaque.
struct HueColor {
    double hue = 0;
    double saturation = 0;
    double brightness = 0;

    friend bool operator==(const HueColor&, const HueColor&) = default;
};

using PaletteColor = std::variant<SystemColor, HueColor>;

/// The colours of the amateur bands. A band has the same colour wherever it is shown.
struct BandPalette {
    /// All bands of ADIF from the longest wave to the shortest, in upper case.
    static const std::vector<std::string_view>& orderedBands();
    /// The colour of a band in any case; neighbours are far apart. Anything that is no band is gray.
    static PaletteColor color(std::string_view band);
};

/// The colours of the modes, the same in every run and on every machine.
struct ModePalette {
    /// The colour of a mode in any case. A mode without a colour of its own gets one made from its name.
    static PaletteColor color(std::string_view mode);
};

}  // namespace quillon
