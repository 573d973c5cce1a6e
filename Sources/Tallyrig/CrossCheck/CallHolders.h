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
        std::uint64_t spotTime = 0;  ///< Where it was and when, to be sorted by both.
        const RecordStorage* record = nullptr;
        Number number = 0;
        Number station = 0;
        Number log = 0;

        /// The lowest value for a spot, that of no time; a spot ends where the next one begins.
        static std::uint64_t spotBegin(Number spot) { return std::uint64_t{spot} << timeBits; }
        static std::uint64_t spotTimeOf(Number spot, std::int64_t minutes) {
            return spotBegin(spot) +
                   (minutes == noTime ? 0 : static_cast<std::uint64_t>(minutes + timeOffset));
        }
        Number spot() const { return static_cast<Number>(spotTime >> timeBits); }
        std::int64_t minutes() const {
            const auto time = static_cast<std::int64_t>(spotTime & (spotBegin(1) - 1));
            return time == 0 ? noTime : time - timeOffset;
        }

      private:
        static constexpr unsigned timeBits = 35;
        static constexpr std::int64_t timeOffset = std::int64_t{1} << 34;
    };

    explicit CallHolders(const CrossCheckIndex& crossCheckIndex) : index(crossCheckIndex) {}

    /// Starts anew with those that hold this call, all of them left. Memory is used again.
    void turnTo(Number base);

    /// Empty if the station does not hold the call.
    Range ofStation(Number station) const;
    const Holder& operator[](std::size_t place) const { return holders[place]; }
    /// What is nearest in time to `qso` of those that agree with it in band and mode and have not been taken
    /// out; of equals the first. Cost: a few binary searches.
    std::optional<Hit> nearest(const Range& range, const CrossCheckIndex::QSO& qso);
    /// The same whatever the band and the mode.
    std::optional<Hit> nearestAnywhere(const Range& range, const CrossCheckIndex::QSO& qso);
    void takeOut(std::size_t place);
    bool isLeft(std::size_t place) const { return next[place] == place; }

    /// Calls `visit` with those of all stations, taken out or not, that agree with `qso` in band and mode and
    /// lie at most `tolerance` minutes from it. In no order that means anything.
    template <typename Visit>
    void visitAround(const CrossCheckIndex::QSO& qso, std::int64_t tolerance, Visit visit) {
        if (bySpot.empty()) {
            sortBySpot();
        }
        tallyrig::visitAround(ofSpot(bySpot, qso.spot), qso.minutes, tolerance, &Holder::minutes, visit);
    }

  private:
    /// Those of a spot among holders sorted by spot and time.
    static std::span<const Holder> ofSpot(std::span<const Holder> sorted, Number spot);
    /// The slot of the station in the table, or the empty one in which it belongs.
    std::size_t slotOf(Number station) const;
    void sortStations();
    void sortBySpot();
    void findLowest();
    /// The end of the places in `range` that are of the same spot as its first.
    std::size_t endOfSpot(const Range& range) const;
    std::optional<Hit> nearestOfSpot(const Range& spot, const CrossCheckIndex::QSO& qso);
    /// The first place from `place` on that was not taken out; behind the last if there is none.
    std::size_t leftFrom(std::size_t place);
    /// One more than the last place before `place` that was not taken out; 0 if there is none.
    std::size_t leftBefore(std::size_t place);

    const CrossCheckIndex& index;
    std::vector<std::size_t> borders;  ///< The first places of the stations, and the end.
    std::vector<Holder> holders;       ///< Station by station, in each by spot, time and number.
    std::vector<Range> ranges;         ///< The table of the stations: their places, empty in empty slots.
    std::vector<Number> next;          ///< Where to look on for what is left, itself where it is left.
    std::vector<Number> previous;      ///< The same for what lies before.
    // Made when they are first asked for.
    std::vector<Holder> bySpot;  ///< All by spot and time.
    std::vector<Number> lowest;  ///< The lowest number from here to the end of the spot.
};

}  // namespace tallyrig
