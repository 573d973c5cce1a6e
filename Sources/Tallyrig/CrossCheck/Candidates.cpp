// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/Candidates.h"

#include <algorithm>
#include <numeric>
#include <tuple>

namespace tallyrig {

namespace {

/// Follows the links from `place` to one that leads to itself, and shortens the way for the next time.
std::size_t followed(std::vector<Candidates::Number>& links, std::size_t place) {
    while (links[place] != place) {
        links[place] = links[links[place]];
        place = links[place];
    }
    return place;
}

}  // namespace

std::optional<Candidates::Hit> Candidates::nearest(std::optional<SpotTime::Spot> spot, std::int64_t minutes,
                                                   const IsUsed& isUsed) {
    // To a QSO without a time all are equally near.
    const bool hasTime = minutes != noTime;
    std::optional<Line>& line = lines[(spot ? 2U : 0U) + (hasTime ? 1U : 0U)];
    if (!line) {
        line.emplace(all, spot.has_value(), hasTime);
    }
    return line->nearest(spot.value_or(0), minutes, isUsed);
}

Candidates::Line::Line(const std::vector<Candidate>& candidates, bool hasSpots, bool hasTimes) {
    items.reserve(candidates.size());
    for (const Candidate& candidate : candidates) {
        items.push_back({SpotTime(hasSpots ? candidate.spotTime.spot() : 0,
                                  hasTimes ? candidate.spotTime.minutes() : noTime),
                         static_cast<Number>(items.size()), candidate.number});
    }
    std::ranges::sort(items, {}, [](const Item& item) { return std::pair(item.spotTime, item.preference); });
    next.resize(items.size() + 1);
    std::iota(next.begin(), next.end(), Number{0});
    previous = next;
}

std::optional<Candidates::Hit> Candidates::Line::nearest(SpotTime::Spot spot, std::int64_t minutes,
                                                         const IsUsed& isUsed) {
    while (const auto place = nearestLeft(spot, minutes)) {
        const Item& item = items[*place];
        if (!isUsed(item.number)) {
            return Hit{item.number, minutesApart(item.spotTime.minutes(), minutes)};
        }
        takeOut(*place);
    }
    return std::nullopt;
}

std::optional<std::size_t> Candidates::Line::nearestLeft(SpotTime::Spot spot, std::int64_t minutes) {
    const std::size_t begin = firstFrom(SpotTime(spot));
    const std::size_t end = firstFrom(SpotTime(spot + 1));
    const std::size_t first = leftFrom(begin);
    if (first >= end) {
        return std::nullopt;
    }
    std::size_t best = first;
    const auto offer = [&](std::size_t place) {
        const auto rank = [&](const Item& item) {
            return std::pair(minutesApart(item.spotTime.minutes(), minutes), item.preference);
        };
        best = rank(items[place]) < rank(items[best]) ? place : best;
    };
    const std::size_t split = firstFrom(SpotTime(spot, minutes));
    if (const std::size_t after = leftFrom(split); after < end) {
        offer(after);
    }
    if (const std::size_t before = leftBefore(split); before > begin) {
        // The first of that minute, not the last.
        offer(leftFrom(firstFrom(items[before - 1].spotTime)));
    }
    return best;
}

std::size_t Candidates::Line::firstFrom(SpotTime spotTime) const {
    return static_cast<std::size_t>(std::ranges::lower_bound(items, spotTime, {}, &Item::spotTime) -
                                    items.begin());
}

void Candidates::Line::takeOut(std::size_t place) {
    next[place] = static_cast<Number>(place + 1);
    previous[place + 1] = static_cast<Number>(place);
}

std::size_t Candidates::Line::leftFrom(std::size_t place) {
    return followed(next, place);
}

std::size_t Candidates::Line::leftBefore(std::size_t place) {
    return followed(previous, place);
}

}  // namespace tallyrig
