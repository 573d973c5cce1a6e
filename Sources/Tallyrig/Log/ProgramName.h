// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace tallyrig {

/// The name of the program as it stands in the logs that it writes.
inline constexpr std::string_view programName = "Quillon";

}  // namespace tallyrig
