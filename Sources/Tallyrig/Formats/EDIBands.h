#pragma once

#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tallyrig {

/// A band by its ADIF name and by the name that REG1TEST gives it.
struct EDIBand {
    std::string_view adif;
    std::string_view edi;
};

/// From the longest wave to the shortest. The decimal comma is part of the format.
inline constexpr std::array<EDIBand, 14> ediBands = {{
    {"6M", "50 MHz"},
    {"4M", "70 MHz"},
    {"2M", "144 MHz"},
    {"1.25M", "220 MHz"},
    {"70CM", "432 MHz"},
    {"33CM", "920 MHz"},
    {"23CM", "1,3 GHz"},
    {"13CM", "2,3 GHz"},
    {"9CM", "3,4 GHz"},
    {"6CM", "5,7 GHz"},
    {"3CM", "10 GHz"},
    {"1.25CM", "24 GHz"},
    {"6MM", "47 GHz"},
    {"4MM", "76 GHz"},
}};

/// The EDI name of an ADIF band in any case; a band that EDI does not know as it is.
inline std::string_view ediBandName(std::string_view adifBand) {
    const auto* const known = std::ranges::find(ediBands, text::upper(adifBand), &EDIBand::adif);
    return known == ediBands.end() ? adifBand : known->edi;
}

}  // namespace tallyrig
