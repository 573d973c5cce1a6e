// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace tallyrig::benchmarks {

/// The bytes that the program holds from the heap at this moment, as the allocator counts them (its own
/// overhead and the unused ends of blocks included).
std::size_t heapInUse();

}  // namespace tallyrig::benchmarks
