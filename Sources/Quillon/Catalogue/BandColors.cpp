// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/BandColors.h"

#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Validation/ADIFSpec317.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <string>

namespace quillon {

namespace {

struct ModeColor {
    std::string_view mode;
    SystemColor color;
};

constexpr ModeColor fixedModes[] = {
    {"SSB", SystemColor::blue},     {"USB", SystemColor::blue},  {"LSB", SystemColor::blue},
    {"CW", SystemColor::orange},    {"FT8", SystemColor::green}, {"FT4", SystemColor::teal},
    {"RTTY", SystemColor::purple},  {"PSK", SystemColor::pink},  {"PSK31", SystemColor::pink},
    {"PSK63", SystemColor::pink},   {"FM", SystemColor::red},    {"AM", SystemColor::brown},
    {"JT65", SystemColor::indigo},  {"JT9", SystemColor::cyan},  {"MFSK", SystemColor::mint},
    {"DIGITAL", SystemColor::gray}, {"DATA", SystemColor::gray},
};

/// A hue from the bytes of a text: FNV-1a, but with a start value of its own. Any other would give other
/// colours to the modes that users know by theirs.
double hueOf(std::string_view text) {
    std::uint64_t hash = 1469598103934665603U;
    for (const char c : text) {
        hash = (hash ^ static_cast<std::uint8_t>(c)) * 1099511628211U;
    }
    return static_cast<double>(hash % 997) / 997;
}

}  // namespace

const std::vector<std::string_view>& BandPalette::orderedBands() {
    static const std::vector<std::string_view> bands = [] {
        std::vector<std::string_view> names;
        for (const auto& row : tallyrig::ADIFSpec::bandFrequencies()) {
            names.push_back(row.name);
        }
        return names;
    }();
    return bands;
}

PaletteColor BandPalette::color(std::string_view band) {
    const auto& bands = orderedBands();
    const auto found = std::ranges::find(bands, tallyrig::text::upper(band));
    if (found == bands.end()) {
        return SystemColor::gray;
    }
    // Steps of the golden ratio around the circle of hues never come close to each other.
    const double turns = static_cast<double>(found - bands.begin()) * 0.6180339887;
    return HueColor{turns - std::floor(turns), 0.7, 0.88};
}

PaletteColor ModePalette::color(std::string_view mode) {
    const std::string name = tallyrig::text::upper(mode);
    const ModeColor* const fixed = std::ranges::find(fixedModes, name, &ModeColor::mode);
    if (fixed != std::end(fixedModes)) {
        return fixed->color;
    }
    return HueColor{hueOf(name), 0.6, 0.85};
}

}  // namespace quillon
