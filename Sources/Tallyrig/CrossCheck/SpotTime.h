// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>

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

/// Where a QSO was and when, as one number, to be sorted by both. A spot stands for what has to agree of band
/// and mode.
class SpotTime {
  public:
    using Spot = std::uint32_t;

    SpotTime() = default;
    /// Without a time: in front of all of the spot.
    explicit SpotTime(Spot spot) : value(std::uint64_t{spot} << timeBits) {}
    /// `minutes` beyond 2^34 to either side count as that.
    SpotTime(Spot spot, std::int64_t minutes) : SpotTime(spot) {
        if (minutes != noTime) {
            value +=
                static_cast<std::uint64_t>(std::clamp(minutes, 1 - timeOffset, timeOffset - 1) + timeOffset);
        }
    }

    Spot spot() const { return static_cast<Spot>(value >> timeBits); }
    std::int64_t minutes() const {
        const auto time = static_cast<std::int64_t>(value & ((std::uint64_t{1} << timeBits) - 1));
        return time == 0 ? noTime : time - timeOffset;
    }
    friend auto operator<=>(const SpotTime&, const SpotTime&) = default;

  private:
    static constexpr unsigned timeBits = 35;
    static constexpr std::int64_t timeOffset = std::int64_t{1} << (timeBits - 1);

    std::uint64_t value = 0;
};

/// Items around a time, in two pieces.
template <typename Item>
struct ItemsAround {
    std::span<const Item> timeless;
    std::span<const Item> timed;

    std::size_t size() const { return timeless.size() + timed.size(); }
    template <typename Visit>
    void visit(Visit visitItem) const {
        for (const auto& piece : {timeless, timed}) {
            for (const Item& item : piece) {
                visitItem(item);
            }
        }
    }
};

/// Those of `items`, which are sorted by their `spotTime`, that are of the spot and lie at most `tolerance`
/// minutes from `minutes` (`minutesApart`). Cost: a few binary searches.
template <typename Item>
ItemsAround<Item> itemsAround(std::span<const Item> items, SpotTime::Spot spot, std::int64_t minutes,
                              std::int64_t tolerance) {
    constexpr std::int64_t longest = std::int64_t{1} << 40;
    if (tolerance < 0) {
        return {};
    }
    const auto from = [&](SpotTime first) {
        return std::ranges::lower_bound(items, first, {}, &Item::spotTime);
    };
    const auto begin = from(SpotTime(spot));
    if (minutes == noTime) {
        return {{begin, from(SpotTime(spot + 1))}, {}};
    }
    const std::int64_t reach = std::min(tolerance, longest);
    // Mostly there are none without a time.
    const bool hasTimeless = begin != items.end() && begin->spotTime == SpotTime(spot);
    const auto timed = hasTimeless ? from(SpotTime(spot, noTime + 1)) : begin;
    return {{begin, timed},
            {from(SpotTime(spot, minutes - reach)), from(SpotTime(spot, minutes + reach + 1))}};
}

}  // namespace tallyrig
