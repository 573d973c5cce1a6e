#pragma once

#include "Tallyrig/CrossCheck/CrossCheckIndex.h"
#include "Tallyrig/CrossCheck/TimeWindow.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace tallyrig {

/// The QSOs of all logs that hold one base call, for the station of that call to find its own among them. One
/// that vouches for a QSO is taken out. Refers to the index.
class CallHolders {
  public:
    using Number = CrossCheckIndex::Number;

    /// The QSOs of one station: the places from `begin` up to, not including, `end`.
    struct Range {
        std::size_t begin = 0;
        std::size_t end = 0;
    };
    /// A QSO by its place, and how far it is from the one that it was looked up for.
    struct Hit {
        std::size_t place = 0;
        std::int64_t minutesApart = 0;
    };
    /// A QSO among those of all stations.
    struct Holder {
        std::int64_t minutes = noTime;
        Number spot = 0;
        Number number = 0;
        Number station = 0;
    };

    CallHolders(const CrossCheckIndex& crossCheckIndex, Number base);

    /// Empty if the station does not hold the call.
    Range ofStation(Number station) const;
    Number number(std::size_t place) const { return holders[place].number; }
    /// What is nearest in time to `qso` of those that agree with it in band and mode and have not been taken
    /// out; of equals the first. Cost: a few binary searches.
    std::optional<Hit> nearest(const Range& range, const CrossCheckIndex::QSO& qso);
    /// The same whatever the band and the mode.
    std::optional<Hit> nearestAnywhere(const Range& range, const CrossCheckIndex::QSO& qso);
    void takeOut(std::size_t place);

    /// Calls `visit` with those of all stations, taken out or not, that agree with `qso` in band and mode and
    /// lie at most `tolerance` minutes from it. In no order that means anything.
    template <typename Visit>
    void visitAround(const CrossCheckIndex::QSO& qso, std::int64_t tolerance, Visit visit) {
        if (bySpot.empty()) {
            sortBySpot();
        }
        const auto spot = std::ranges::equal_range(bySpot, qso.spot, {}, &Holder::spot);
        tallyrig::visitAround(spot, qso.minutes, tolerance, &Holder::minutes, visit);
    }

  private:
    struct Group {
        Number station;
        std::size_t end;  ///< Where the next one begins.
    };

    void sortBySpot();
    /// The end of the places in `range` that are of the same spot as its first.
    std::size_t endOfSpot(const Range& range) const;
    std::optional<Hit> nearestOfSpot(const Range& spot, std::int64_t minutes);
    /// The first place from `place` on that was not taken out; behind the last if there is none.
    std::size_t leftFrom(std::size_t place);
    /// One more than the last place before `place` that was not taken out; 0 if there is none.
    std::size_t leftBefore(std::size_t place);

    std::vector<Group> groups;     ///< By station, ascending.
    std::vector<Holder> holders;   ///< In each group by spot, time and number.
    std::vector<Number> lowest;    ///< The lowest number from here to the end of the spot.
    std::vector<Number> next;      ///< Where to look on for what is left, itself where it is left.
    std::vector<Number> previous;  ///< The same for what lies before.
    std::vector<Holder> bySpot;    ///< All by spot and time, as soon as somebody asks.
};

}  // namespace tallyrig
