// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestRules.h"
#include "Tallyrig/Contest/ContestStation.h"

#include <nlohmann/json_fwd.hpp>

namespace tallyrig::tool {

/// All members of the rules by their names. Sets are lists in text order; a case of a condition or of the
/// points is an object with its name as the only key and its payload, or null, as the value.
nlohmann::ordered_json jsonOf(const ContestRules& rules);
nlohmann::ordered_json jsonOf(const ContestStation& station);

}  // namespace tallyrig::tool
