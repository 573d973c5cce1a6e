#include "Tallyrig/CrossCheck/CallHolders.h"

#include <bit>
#include <numeric>
#include <utility>

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

void CallHolders::turnTo(Number base) {
    constexpr std::size_t blockSize = 32;
    const std::span<const Number> numbers = index.holders(base);
    holders.clear();
    borders.clear();
    bySpot.clear();
    lowest.clear();
    Number station = 0;
    Number end = 0;
    for (std::size_t place = 0; place < numbers.size(); ++place) {
        // They lie scattered over all logs, so the memory is told of a few in advance.
        if (place % blockSize == 0) {
            const std::size_t from = place == 0 ? 0 : std::min(place + blockSize, numbers.size());
            const std::size_t to = std::min(place + 2 * blockSize, numbers.size());
            for (const Number ahead : numbers.subspan(from, to - from)) {
                __builtin_prefetch(&index.qso(ahead));
            }
        }
        const Number number = numbers[place];
        if (number >= end) {
            station = index.stationOfQSO(number);
            end = index.station(station).end;
            borders.push_back(place);
        }
        const CrossCheckIndex::QSO& qso = index.qso(number);
        holders.push_back({Holder::spotTimeOf(qso.spot, qso.minutes), qso.record, number, station, qso.log});
    }
    borders.push_back(numbers.size());
    sortStations();
    next.resize(holders.size() + 1);
    std::iota(next.begin(), next.end(), Number{0});
    previous = next;
}

void CallHolders::sortStations() {
    ranges.assign(std::bit_ceil(2 * borders.size()), Range());
    for (std::size_t station = 1; station < borders.size(); ++station) {
        const Range range = {borders[station - 1], borders[station]};
        std::ranges::sort(std::span(holders).subspan(range.begin, range.end - range.begin), {},
                          [](const Holder& holder) { return std::pair(holder.spotTime, holder.number); });
        ranges[slotOf(holders[range.begin].station)] = range;
    }
}

std::size_t CallHolders::slotOf(Number station) const {
    const std::size_t mask = ranges.size() - 1;
    std::size_t slot = station & mask;
    while (ranges[slot].begin != ranges[slot].end && holders[ranges[slot].begin].station != station) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

CallHolders::Range CallHolders::ofStation(Number station) const {
    return ranges[slotOf(station)];
}

std::optional<CallHolders::Hit> CallHolders::nearest(const Range& range, const CrossCheckIndex::QSO& qso) {
    const auto spot = ofSpot(std::span(holders).subspan(range.begin, range.end - range.begin), qso.spot);
    const auto begin = static_cast<std::size_t>(spot.data() - holders.data());
    return nearestOfSpot({begin, begin + spot.size()}, qso);
}

std::optional<CallHolders::Hit> CallHolders::nearestAnywhere(const Range& range,
                                                             const CrossCheckIndex::QSO& qso) {
    const auto rank = [&](const Hit& hit) { return std::pair(hit.minutesApart, holders[hit.place].number); };
    std::optional<Hit> best;
    for (Range spot = range; spot.begin < range.end; spot.begin = spot.end) {
        spot.end = endOfSpot({spot.begin, range.end});
        const std::optional<Hit> hit = nearestOfSpot(spot, qso);
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

std::span<const CallHolders::Holder> CallHolders::ofSpot(std::span<const Holder> sorted, Number spot) {
    const auto begin = std::ranges::lower_bound(sorted, Holder::spotBegin(spot), {}, &Holder::spotTime);
    const auto end =
        std::ranges::lower_bound(begin, sorted.end(), Holder::spotBegin(spot + 1), {}, &Holder::spotTime);
    return {begin, end};
}

void CallHolders::sortBySpot() {
    bySpot = holders;
    std::ranges::sort(bySpot, {}, &Holder::spotTime);
}

void CallHolders::findLowest() {
    lowest.resize(holders.size());
    for (std::size_t place = holders.size(); place-- > 0;) {
        const bool isLastOfSpot = place + 1 == holders.size() ||
                                  holders[place + 1].spot() != holders[place].spot() ||
                                  holders[place + 1].station != holders[place].station;
        lowest[place] =
            isLastOfSpot ? holders[place].number : std::min(holders[place].number, lowest[place + 1]);
    }
}

std::size_t CallHolders::endOfSpot(const Range& range) const {
    const auto places = std::span(holders).subspan(range.begin, range.end - range.begin);
    return range.begin + ofSpot(places, places.front().spot()).size();
}

std::optional<CallHolders::Hit> CallHolders::nearestOfSpot(const Range& spot,
                                                           const CrossCheckIndex::QSO& qso) {
    std::optional<Hit> best;
    const auto offer = [&](std::size_t place) {
        const Hit hit = {place, minutesApart(holders[place].minutes(), qso.minutes)};
        if (!best || std::pair(hit.minutesApart, holders[place].number) <
                         std::pair(best->minutesApart, holders[best->place].number)) {
            best = hit;
        }
    };
    const std::size_t first = leftFrom(spot.begin);
    if (first >= spot.end) {
        return best;
    }
    // To a QSO without a time all are equally near, as those without one are to any.
    if (qso.minutes == noTime) {
        if (lowest.empty()) {
            findLowest();
        }
        for (std::size_t place = first; place < spot.end; place = leftFrom(place + 1)) {
            offer(place);
            if (place + 1 < spot.end && holders[best->place].number < lowest[place + 1]) {
                break;
            }
        }
        return best;
    }
    if (holders[first].minutes() == noTime) {
        offer(first);
    }
    const auto firstFrom = [&](std::uint64_t spotTime) {
        const auto places = std::span(holders).subspan(spot.begin, spot.end - spot.begin);
        const auto place = std::ranges::lower_bound(places, spotTime, {}, &Holder::spotTime);
        return spot.begin + static_cast<std::size_t>(place - places.begin());
    };
    const std::size_t split = firstFrom(Holder::spotTimeOf(holders[first].spot(), qso.minutes));
    if (const std::size_t after = leftFrom(split); after < spot.end) {
        offer(after);
    }
    if (const std::size_t before = leftBefore(split); before > spot.begin) {
        // The first of that minute, not the last.
        offer(leftFrom(firstFrom(holders[before - 1].spotTime)));
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
