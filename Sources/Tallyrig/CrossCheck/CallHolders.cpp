#include "Tallyrig/CrossCheck/CallHolders.h"

#include <numeric>
#include <tuple>

namespace tallyrig {

namespace {

/// Follows the links from `place` to one that leads to itself, and shortens the way for the next time.
std::size_t followed(std::vector<CallHolders::Number>& links, std::size_t place) {
    while (links[place] != place) {
        links[place] = links[links[place]];
        place = links[place];
    }
    return place;
}

}  // namespace

CallHolders::CallHolders(const CrossCheckIndex& index, Number base) {
    const std::span<const Number> numbers = index.holders(base);
    holders.reserve(numbers.size());
    Number end = 0;
    for (const Number number : numbers) {
        if (number >= end) {
            const Number station = index.stationOfQSO(number);
            end = index.station(station).end;
            groups.push_back({station, 0});
        }
        const CrossCheckIndex::QSO& qso = index.qso(number);
        holders.push_back({qso.minutes, qso.spot, number, groups.back().station});
        groups.back().end = holders.size();
    }
    std::size_t begin = 0;
    for (const Group& group : groups) {
        std::ranges::sort(std::span(holders).subspan(begin, group.end - begin), {}, [](const Holder& holder) {
            return std::tuple(holder.spot, holder.minutes, holder.number);
        });
        begin = group.end;
    }

    lowest.resize(holders.size());
    for (std::size_t place = holders.size(); place-- > 0;) {
        const bool isLastOfSpot = place + 1 == holders.size() ||
                                  holders[place + 1].spot != holders[place].spot ||
                                  holders[place + 1].station != holders[place].station;
        lowest[place] =
            isLastOfSpot ? holders[place].number : std::min(holders[place].number, lowest[place + 1]);
    }
    next.resize(holders.size() + 1);
    std::iota(next.begin(), next.end(), Number{0});
    previous = next;
}

CallHolders::Range CallHolders::ofStation(Number station) const {
    const auto group = std::ranges::lower_bound(groups, station, {}, &Group::station);
    if (group == groups.end() || group->station != station) {
        return {};
    }
    return {group == groups.begin() ? 0 : std::prev(group)->end, group->end};
}

std::optional<CallHolders::Hit> CallHolders::nearest(const Range& range, const CrossCheckIndex::QSO& qso) {
    const auto spot = std::ranges::equal_range(
        std::span(holders).subspan(range.begin, range.end - range.begin), qso.spot, {}, &Holder::spot);
    const auto begin = static_cast<std::size_t>(spot.data() - holders.data());
    return nearestOfSpot({begin, begin + spot.size()}, qso.minutes);
}

std::optional<CallHolders::Hit> CallHolders::nearestAnywhere(const Range& range,
                                                             const CrossCheckIndex::QSO& qso) {
    const auto rank = [&](const Hit& hit) { return std::pair(hit.minutesApart, number(hit.place)); };
    std::optional<Hit> best;
    for (Range spot = range; spot.begin < range.end; spot.begin = spot.end) {
        spot.end = endOfSpot({spot.begin, range.end});
        const std::optional<Hit> hit = nearestOfSpot(spot, qso.minutes);
        if (hit && (!best || rank(*hit) < rank(*best))) {
            best = hit;
        }
    }
    return best;
}

void CallHolders::takeOut(std::size_t place) {
    next[place] = static_cast<Number>(place + 1);
    previous[place + 1] = static_cast<Number>(place);
}

void CallHolders::sortBySpot() {
    bySpot = holders;
    std::ranges::sort(bySpot, {},
                      [](const Holder& holder) { return std::pair(holder.spot, holder.minutes); });
}

std::size_t CallHolders::endOfSpot(const Range& range) const {
    const auto places = std::span(holders).subspan(range.begin, range.end - range.begin);
    const auto end = std::ranges::upper_bound(places, places.front().spot, {}, &Holder::spot);
    return range.begin + static_cast<std::size_t>(end - places.begin());
}

std::optional<CallHolders::Hit> CallHolders::nearestOfSpot(const Range& spot, std::int64_t minutes) {
    std::optional<Hit> best;
    const auto offer = [&](std::size_t place) {
        const Hit hit = {place, minutesApart(holders[place].minutes, minutes)};
        if (!best ||
            std::pair(hit.minutesApart, number(place)) < std::pair(best->minutesApart, number(best->place))) {
            best = hit;
        }
    };
    const std::size_t first = leftFrom(spot.begin);
    if (first >= spot.end) {
        return best;
    }
    // To a QSO without a time all are equally near, as those without one are to any.
    if (minutes == noTime) {
        for (std::size_t place = first; place < spot.end; place = leftFrom(place + 1)) {
            offer(place);
            if (place + 1 < spot.end && number(best->place) < lowest[place + 1]) {
                break;
            }
        }
        return best;
    }
    if (holders[first].minutes == noTime) {
        offer(first);
    }
    const auto firstAt = [&](std::int64_t time) {
        const auto places = std::span(holders).subspan(spot.begin, spot.end - spot.begin);
        const auto place = std::ranges::lower_bound(places, time, {}, &Holder::minutes);
        return spot.begin + static_cast<std::size_t>(place - places.begin());
    };
    const std::size_t split = firstAt(minutes);
    if (const std::size_t after = leftFrom(split); after < spot.end) {
        offer(after);
    }
    if (const std::size_t before = leftBefore(split); before > spot.begin) {
        // The first of that minute, not the last.
        offer(leftFrom(firstAt(holders[before - 1].minutes)));
    }
    return best;
}

std::size_t CallHolders::leftFrom(std::size_t place) {
    return followed(next, place);
}

std::size_t CallHolders::leftBefore(std::size_t place) {
    return followed(previous, place);
}

}  // namespace tallyrig
