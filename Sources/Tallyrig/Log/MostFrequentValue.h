// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tallyrig {

/// What most values of a field say, of equals the first in text order; absent if none says anything. `read`
/// gives what a value says, empty for nothing; it is not asked again for a value that the record before had.
std::optional<std::string> mostFrequentValue(const ADIFDocument& log, std::string_view field,
                                             const std::function<std::string(std::string_view)>& read);

}  // namespace tallyrig
