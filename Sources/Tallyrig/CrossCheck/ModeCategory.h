// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tallyrig {

/// What a contest takes for one mode: "PH" for all kinds of telephony, any other mode trimmed and in upper
/// case.
std::string modeCategory(std::string_view mode);

}  // namespace tallyrig
