// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace tallyrig {

/// Some numbers, side by side in one piece of memory; not the largest there is. To be cleared before use.
class NumberSet {
  public:
    /// Empties it and makes room for `most`; it takes no more.
    void clear(std::size_t most) { slots.assign(std::bit_ceil(2 * std::max<std::size_t>(most, 1)), empty); }

    void insert(std::uint32_t number) { slots[slotOf(number)] = number; }
    bool contains(std::uint32_t number) const { return slots[slotOf(number)] == number; }

  private:
    static constexpr std::uint32_t empty = std::numeric_limits<std::uint32_t>::max();

    /// The slot of the number, or the empty one in which it belongs.
    std::size_t slotOf(std::uint32_t number) const {
        const std::size_t mask = slots.size() - 1;
        std::size_t slot = (number * std::uint64_t{0x9E3779B97F4A7C15U} >> 32U) & mask;
        while (slots[slot] != number && slots[slot] != empty) {
            slot = (slot + 1) & mask;
        }
        return slot;
    }

    std::vector<std::uint32_t> slots;  ///< A power of two.
};

}  // namespace tallyrig
