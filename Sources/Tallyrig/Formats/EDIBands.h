// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/BandNames.h"
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
    {band::m6, "50 MHz"},
    {band::m4, "70 MHz"},
    {band::m2, "144 MHz"},
    {band::m1And25, "220 MHz"},
    {band::cm70, "432 MHz"},
    {band::cm33, "920 MHz"},
    {band::cm23, "1,3 GHz"},
    {band::cm13, "2,3 GHz"},
    {band::cm9, "3,4 GHz"},
    {band::cm6, "5,7 GHz"},
    {band::cm3, "10 GHz"},
    {band::cm1And25, "24 GHz"},
    {band::mm6, "47 GHz"},
    {band::mm4, "76 GHz"},
}};

/// The EDI name of an ADIF band in any case; a band that EDI does not know as it is. Refers to `adifBand`
/// then, otherwise to what lasts for ever.
inline std::string_view ediBandName(std::string_view adifBand) {
    const auto* const known = std::ranges::find(ediBands, text::upper(adifBand), &EDIBand::adif);
    return known == ediBands.end() ? adifBand : known->edi;
}

}  // namespace tallyrig
