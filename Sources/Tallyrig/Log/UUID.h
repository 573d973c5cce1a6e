// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace tallyrig {

/// The identity of a record or a field for one run of the program.
///
/// Fresh ones come from a random start, drawn once, and a counter: no two of one process are the same, and of
/// two made one after the other the later is the larger, so that records stand in ascending order until
/// something moves them.
struct UUID {
    std::uint64_t high = 0;
    std::uint64_t low = 0;

    /// A new one. Costs one atomic addition; safe from any thread.
    static UUID fresh() { return freshRun(1); }

    /// The first of `count` new ones that follow on each other (`advancedBy`).
    static UUID freshRun(std::uint64_t count);

    /// The one that `fresh` gave whose `low` this is: all that one process gives agree in `high`, so that who
    /// holds millions needs to keep half of each only.
    static UUID freshWith(std::uint64_t low);

    /// The one `steps` places behind this.
    UUID advancedBy(std::uint64_t steps) const;

    /// The text form of RFC 4122: 8-4-4-4-12 hexadecimal digits in capitals.
    std::string text() const;

    friend auto operator<=>(const UUID&, const UUID&) = default;
};

}  // namespace tallyrig

template <>
struct std::hash<tallyrig::UUID> {
    std::size_t operator()(const tallyrig::UUID& id) const noexcept {
        // Neighbours differ in their lowest bits only; the multiplication spreads them.
        return static_cast<std::size_t>((id.low ^ id.high) * 0x9E3779B97F4A7C15U);
    }
};
