// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Contest/ContestMultiplier.h"

#include <array>
#include <cstddef>

namespace tallyrig {

std::string_view nameOf(MultiplierKind kind) {
    constexpr std::array<std::string_view, 3> names = {"field", "wpxPrefix", "callAreaPerDxcc"};
    return names[static_cast<std::size_t>(kind)];
}

std::string_view nameOf(MultiplierToken token) {
    constexpr std::array<std::string_view, 3> names = {"whole", "last", "first"};
    return names[static_cast<std::size_t>(token)];
}

}  // namespace tallyrig
