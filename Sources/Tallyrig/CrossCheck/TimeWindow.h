#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <limits>

namespace tallyrig {

/// The time of a QSO without one. It stands in front of all others.
inline constexpr std::int64_t noTime = std::numeric_limits<std::int64_t>::min();

/// The minutes between two QSOs, 0 where one of them has no time: it may have been at any.
constexpr std::int64_t minutesApart(std::int64_t left, std::int64_t right) {
    if (left == noTime || right == noTime) {
        return 0;
    }
    return left < right ? right - left : left - right;
}

/// Calls `visit` with each of `items`, which stand in the order of their time, that lies at most `tolerance`
/// minutes from `minutes` (`minutesApart`). `timeOf` gives the time of one.
template <typename Items, typename TimeOf, typename Visit>
void visitAround(const Items& items, std::int64_t minutes, std::int64_t tolerance, TimeOf timeOf,
                 Visit visit) {
    constexpr std::int64_t longest = std::int64_t{1} << 62;
    if (tolerance < 0) {
        return;
    }
    const std::int64_t reach = std::min(tolerance, longest);
    const auto time = [&](const auto& item) { return std::invoke(timeOf, item); };
    auto item = items.begin();
    for (; item != items.end() && (minutes == noTime || time(*item) == noTime); ++item) {
        visit(*item);
    }
    if (minutes == noTime) {
        return;
    }
    item = std::ranges::lower_bound(item, items.end(), minutes - reach, {}, time);
    for (; item != items.end() && time(*item) <= minutes + reach; ++item) {
        visit(*item);
    }
}

}  // namespace tallyrig
