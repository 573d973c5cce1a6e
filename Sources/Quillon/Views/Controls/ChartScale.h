// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <span>
#include <vector>

namespace quillon {

/// Where an axis of counts is labelled: whole numbers from 0 in equal steps of 1, 2 or 5 times a power of
/// ten, up to the first that is not below `highest`; at least 0 and 1. Behind 0 stand `most` (1 or more) at
/// most.
std::vector<std::size_t> countTicks(std::size_t highest, std::size_t most);

/// Where an axis of days is labelled that reaches from `first` to `last`, both included: ascending, one at
/// least and `most` (2 or more) at most. According to the span they are days one, two, seven or fourteen
/// apart, the first of a month, or the first of a year. Cost: the number of ticks.
std::vector<std::chrono::sys_days> dayTicks(std::chrono::sys_days first, std::chrono::sys_days last,
                                            std::size_t most);

/// Days that lie near each other, both included.
struct DayStretch {
    std::chrono::sys_days first;
    std::chrono::sys_days last;

    bool operator==(const DayStretch&) const = default;
};

/// The stretches into which `days`, which ascend, fall. Between two stretches lies a gap of more than fifty
/// years: a date that far off is mistyped more often than not, and must not push all others together.
std::vector<DayStretch> dayStretches(std::span<const std::chrono::sys_days> days);

}  // namespace quillon
