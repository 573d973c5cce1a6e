// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Text/ByteWords.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyrig {

/// How often each of many values occurs, as they are written. Refers to the values given, which have to stay.
///
/// Most values of a log have at most eight bytes: such a one is told from all others by its hash and its size
/// alone, so that counting it is one look at a table.
class ValueCounts {
  public:
    struct Entry {
        std::string_view value;
        std::size_t count;
    };

    ValueCounts() : slots(smallest) {}

    void add(std::string_view value) {
        // A long value may stand in memory once for many records.
        if (counted.empty() || value.data() != last.data() || value.size() != last.size()) {
            lastEntry = entryOf(value);
            last = value;
        }
        ++counted[lastEntry].count;
    }

    /// In the order of their first appearance.
    const std::vector<Entry>& entries() const { return counted; }

  private:
    static constexpr std::size_t smallest = 64;

    struct Slot {
        std::uint64_t hash = 0;
        std::uint32_t size = 0;   ///< Of the value, modulo 2^32.
        std::uint32_t entry = 0;  ///< Its index and one; 0 if the slot is free.
    };

    /// Different for all values of one size up to that of a word.
    static std::uint64_t hashOf(std::string_view value) {
        std::uint64_t hash = 0;
        text::forEachWord(value, [&](std::uint64_t word) {
            hash = (hash ^ word) * 0x9E3779B97F4A7C15U;
            hash ^= hash >> 32U;
        });
        return hash;
    }

    std::size_t entryOf(std::string_view value) {
        const std::uint64_t hash = hashOf(value);
        const auto size = static_cast<std::uint32_t>(value.size());
        const std::size_t mask = slots.size() - 1;
        for (std::size_t place = (hash ^ size) & mask;; place = (place + 1) & mask) {
            Slot& slot = slots[place];
            if (slot.entry == 0) {
                counted.push_back({value, 0});
                slot = {hash, size, static_cast<std::uint32_t>(counted.size())};
                if (counted.size() * 2 > slots.size()) {
                    grow();
                }
                return counted.size() - 1;
            }
            if (slot.hash == hash && slot.size == size &&
                (value.size() <= sizeof hash || counted[slot.entry - 1].value == value)) {
                return slot.entry - 1;
            }
        }
    }

    void grow() {
        std::vector<Slot> larger(slots.size() * 4);
        const std::size_t mask = larger.size() - 1;
        for (const Slot& slot : slots) {
            if (slot.entry != 0) {
                std::size_t place = (slot.hash ^ slot.size) & mask;
                while (larger[place].entry != 0) {
                    place = (place + 1) & mask;
                }
                larger[place] = slot;
            }
        }
        slots = std::move(larger);
    }

    std::vector<Slot> slots;  ///< A power of two, at most half of them in use.
    std::vector<Entry> counted;
    std::string_view last;
    std::size_t lastEntry = 0;
};

}  // namespace tallyrig
