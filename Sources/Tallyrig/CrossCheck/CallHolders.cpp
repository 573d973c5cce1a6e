// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/CallHolders.h"

#include <algorithm>

namespace tallyrig {

void CallHolders::turnTo(Number base) {
    for (const Number station : stations) {
        ranges[station] = {};
    }
    stations.clear();
    bySpot.clear();
    left.clear();
    all.clear();
    holders = index.holders(base);
    for (Number place = 0; place < holders.size(); ++place) {
        const Number station = index.stationOfLog(holders[place].log);
        if (stations.empty() || stations.back() != station) {
            stations.push_back(station);
            ranges[station].begin = place;
        }
        ranges[station].end = place + 1;
    }
}

std::span<const CallHolders::Place> CallHolders::sortedBySpot() {
    if (bySpot.empty()) {
        bySpot.reserve(holders.size());
        for (const Holder& holder : holders) {
            bySpot.push_back({holder.spotTime, static_cast<Number>(bySpot.size())});
        }
        std::ranges::sort(bySpot, {}, &Place::spotTime);
    }
    return bySpot;
}

std::optional<CallHolders::Hit> CallHolders::nearestOfMany(Number station, CandidatesByStation& candidates,
                                                           std::optional<SpotTime::Spot> spot,
                                                           std::int64_t minutes,
                                                           const Candidates::IsUsed& isUsed) const {
    const std::span<const Holder> own = ofStation(station);
    auto known = candidates.find(station);
    if (known == candidates.end()) {
        std::vector<Candidates::Candidate> list;
        list.reserve(own.size());
        for (const Holder& holder : own) {
            list.push_back({holder.spotTime, holder.number});
        }
        known = candidates.emplace(station, Candidates(std::move(list))).first;
    }
    const auto hit = known->second.nearest(spot, minutes, isUsed);
    if (!hit) {
        return std::nullopt;
    }
    return Hit{&*std::ranges::lower_bound(own, hit->number, {}, &Holder::number), hit->minutesApart};
}

}  // namespace tallyrig
