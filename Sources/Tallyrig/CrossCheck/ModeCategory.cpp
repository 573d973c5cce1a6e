// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/ModeCategory.h"

#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <array>

namespace tallyrig {

std::string modeCategory(std::string_view mode) {
    constexpr std::array<std::string_view, 7> telephony = {"SSB", "USB", "LSB",         "AM",
                                                           "FM",  "PH",  "DIGITALVOICE"};
    std::string upper = text::upper(text::trimmedOfBlanks(mode));
    return std::ranges::find(telephony, upper) == telephony.end() ? upper : "PH";
}

}  // namespace tallyrig
