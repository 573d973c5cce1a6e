#pragma once

#include "Tallyrig/Log/UUID.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <functional>
#include <vector>

namespace tallyrig {

/// Some record ids, side by side in one piece of memory. To be cleared before use.
class RecordIDSet {
  public:
    /// Empties it and makes room for `most`; it takes no more.
    void clear(std::size_t most) {
        slots.assign(std::bit_ceil(2 * std::max<std::size_t>(most, 1)), UUID());
        hasZero = false;
    }

    void insert(UUID id) {
        if (id == UUID()) {
            hasZero = true;
        } else {
            slots[slotOf(id)] = id;
        }
    }
    bool contains(UUID id) const { return id == UUID() ? hasZero : slots[slotOf(id)] == id; }

  private:
    /// The slot of the id, or the empty one in which it belongs.
    std::size_t slotOf(UUID id) const {
        const std::size_t mask = slots.size() - 1;
        const std::size_t hash = std::hash<UUID>()(id);
        std::size_t slot = (hash ^ hash >> 32U) & mask;
        while (slots[slot] != id && slots[slot] != UUID()) {
            slot = (slot + 1) & mask;
        }
        return slot;
    }

    std::vector<UUID> slots;  ///< A power of two; the id of zeros stands for an empty one.
    bool hasZero = false;
};

}  // namespace tallyrig
