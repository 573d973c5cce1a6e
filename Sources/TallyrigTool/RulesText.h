// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestRules.h"

#include <string>
#include <string_view>

namespace tallyrig::tool {

/// The rules in German lines for a person, under their name and the note on them.
std::string textOf(const ContestRules& rules, std::string_view note);

}  // namespace tallyrig::tool
