// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/CrossCheck/Candidates.h"
#include "Tallyrig/CrossCheck/CrossCheckIndex.h"
#include "Tallyrig/CrossCheck/SpotTime.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tallyrig {

/// The QSOs of all logs that hold one base call, for the station of that call to find its own among them.
/// Refers to the index.
class CallHolders {
  public:
    using Number = CrossCheckIndex::Number;
    using Holder = CrossCheckIndex::Holder;

    /// A QSO, and how far it is from the one that it was looked up for.
    struct Hit {
        const Holder* holder = nullptr;
        std::int64_t minutesApart = 0;
    };

    explicit CallHolders(const CrossCheckIndex& crossCheckIndex)
        : index(crossCheckIndex), ranges(crossCheckIndex.stationCount()) {}

    /// Starts anew with those that hold this call. Memory is used again.
    void turnTo(Number base);

    /// What is nearest in time to `minutes` of those of one station that are on the spot, or without one on
    /// any, and of which `isUsed`, asked by number, is false; of equals the first. Who is used once is so
    /// until the next turn. Most stations hold a call a few times; where they are many, the cost is a few
    /// binary searches.
    template <typename IsUsed>
    std::optional<Hit> nearest(Number station, std::optional<SpotTime::Spot> spot, std::int64_t minutes,
                               const IsUsed& isUsed) {
        return nearestOf(station, left, spot, minutes, isUsed);
    }

    /// The first of the stations for which `isWanted` is true and that have one on the spot, at most
    /// `tolerance` minutes from `minutes`; of these the nearest, of equals the first. Used or not counts for
    /// nothing here. Cost: a few binary searches, and a question for each that is so near or for each
    /// station, whatever is less.
    template <typename IsWanted>
    const Holder* firstAround(SpotTime::Spot spot, std::int64_t minutes, std::int64_t tolerance,
                              const IsWanted& isWanted) {
        const ItemsAround<Place> around = itemsAround(sortedBySpot(), spot, minutes, tolerance);
        const Holder* best = nullptr;
        if (around.size() > stations.size()) {
            for (std::size_t station = 0; station < stations.size() && best == nullptr; ++station) {
                if (isWanted(stations[station])) {
                    const auto hit =
                        nearestOf(stations[station], all, spot, minutes, [](Number) { return false; });
                    best = hit && hit->minutesApart <= tolerance ? hit->holder : nullptr;
                }
            }
            return best;
        }
        const auto rank = [&](const Holder& holder) {
            return std::tuple(index.stationOfLog(holder.log),
                              minutesApart(holder.spotTime.minutes(), minutes), holder.number);
        };
        around.visit([&](const Place& place) {
            const Holder& holder = holders[place.place];
            if ((best == nullptr || rank(holder) < rank(*best)) && isWanted(index.stationOfLog(holder.log))) {
                best = &holder;
            }
        });
        return best;
    }

  private:
    /// Places in `holders`: from `begin` up to, not including, `end`.
    struct Range {
        Number begin = 0;
        Number end = 0;
    };
    struct Place {
        SpotTime spotTime;
        Number place = 0;
    };
    using CandidatesByStation = std::unordered_map<Number, Candidates>;

    std::span<const Holder> ofStation(Number station) const {
        return holders.subspan(ranges[station].begin, ranges[station].end - ranges[station].begin);
    }
    std::span<const Place> sortedBySpot();
    template <typename IsUsed>
    std::optional<Hit> nearestOf(Number station, CandidatesByStation& candidates,
                                 std::optional<SpotTime::Spot> spot, std::int64_t minutes,
                                 const IsUsed& isUsed) const {
        constexpr std::size_t few = 16;
        const std::span<const Holder> own = ofStation(station);
        if (own.size() > few) {
            return nearestOfMany(station, candidates, spot, minutes, isUsed);
        }
        std::optional<Hit> best;
        for (const Holder& holder : own) {
            if (spot && holder.spotTime.spot() != *spot) {
                continue;
            }
            const std::int64_t apart = minutesApart(holder.spotTime.minutes(), minutes);
            if ((!best || apart < best->minutesApart) && !isUsed(holder.number)) {
                best = {&holder, apart};
            }
        }
        return best;
    }
    std::optional<Hit> nearestOfMany(Number station, CandidatesByStation& candidates,
                                     std::optional<SpotTime::Spot> spot, std::int64_t minutes,
                                     const Candidates::IsUsed& isUsed) const;

    const CrossCheckIndex& index;
    std::span<const Holder> holders;
    std::vector<Number> stations;  ///< Those that hold the call, ascending.
    std::vector<Range> ranges;     ///< By station; empty if it does not hold the call.
    // Made when they are first asked for.
    std::vector<Place> bySpot;
    CandidatesByStation left;  ///< Of stations with many.
    CandidatesByStation all;   ///< The same, used or not.
};

}  // namespace tallyrig
