// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Contest/ContestLedger.h"

#include "Tallyrig/Contest/Saturation.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <utility>

namespace tallyrig {

ContestLedger::ContestLedger(const ContestRules& contestRules, ContestFields& fields) : rules(contestRules) {
    for (const ContestMultiplier& multiplier : rules.multipliers) {
        const auto known = std::ranges::find_if(
            tallies, [&](const Tally& tally) { return text::equal(tally.name, multiplier.name); });
        const auto tally = static_cast<std::size_t>(known - tallies.begin());
        if (known == tallies.end()) {
            tallies.push_back({multiplier.name, KeyNumbers(), 0});
        }
        multipliers.push_back({multiplier, MultiplierKey(multiplier, fields), tally});
    }
}

void ContestLedger::add(const ContestQSOResult& qso) {
    result.dupeQSOs += qso.isDupe ? 1 : 0;
    result.invalidQSOs += qso.problems.empty() ? 0 : 1;
    result.results.push_back(qso);
}

void ContestLedger::remove(const Removal& removal, std::int64_t points, const SteadyField& band) {
    const std::int64_t penalty = saturatedProduct(removal.factor, points);
    ContestQSOResult& qso = result.results.back();
    Band& gathered = turnTo(band);
    ++result.removedQSOs;
    result.penaltyPoints = saturatedSum(result.penaltyPoints, penalty);
    result.qsoPoints = saturatedDifference(result.qsoPoints, penalty);
    gathered.points = saturatedDifference(gathered.points, penalty);
    qso.points = saturatedDifference(0, penalty);
    qso.crossCheckRemoval = removal.status;
}

void ContestLedger::count(std::int64_t points, ContestFields& fields, const SteadyField& band,
                          const SteadyField& mode) {
    ContestQSOResult& qso = result.results.back();
    Band& gathered = turnTo(band);
    ++result.countedQSOs;
    qso.points = points;
    result.qsoPoints = saturatedSum(result.qsoPoints, points);
    gathered.points = saturatedSum(gathered.points, points);
    for (Multiplier& multiplier : multipliers) {
        Tally& tally = tallies[multiplier.tally];
        if (!multiplier.key.addNew(fields, band, mode, tally.seen)) {
            continue;
        }
        const std::int64_t* const weight =
            multiplier.rule.bandWeights ? multiplier.rule.bandWeights->find(band.key()) : nullptr;
        const std::int64_t worth = weight == nullptr ? 1 : *weight;
        tally.count = saturatedSum(tally.count, worth);
        gathered.multiplierCount = saturatedSum(gathered.multiplierCount, worth);
        newMultipliers.add(multiplier.rule.name);
    }
    qso.newMultipliers = newMultipliers.take();
}

ContestScore ContestLedger::take() {
    result.contestName = rules.name;
    result.totalQSOs = result.results.size();
    for (const Tally& tally : tallies) {
        result.multiplierCount = saturatedSum(result.multiplierCount, tally.count);
    }
    result.total = total();
    for (const Multiplier& multiplier : multipliers) {
        result.multiplierBreakdown.push_back({multiplier.rule.name, tallies[multiplier.tally].count});
    }
    return std::move(result);
}

ContestLedger::Band& ContestLedger::turnTo(const SteadyField& band) {
    if (band.number() >= bands.size()) {
        bands.resize(band.number() + 1);
    }
    return bands[band.number()];
}

std::int64_t ContestLedger::total() const {
    if (rules.multipliers.empty()) {
        return result.qsoPoints;
    }
    if (!rules.scorePerBand) {
        return saturatedProduct(result.qsoPoints, result.multiplierCount);
    }
    std::int64_t sum = 0;
    for (const Band& gathered : bands) {
        sum = saturatedSum(sum, saturatedProduct(gathered.points, gathered.multiplierCount));
    }
    return sum;
}

}  // namespace tallyrig
