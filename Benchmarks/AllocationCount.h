// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace tallyrig::benchmarks {

/// How often the program has asked for memory so far. Whoever links this counts from then on.
std::size_t allocationCount();

}  // namespace tallyrig::benchmarks
