// SPDX-License-Identifier: GPL-3.0-or-later
// Scores any document by rules of all kinds. What is said of each QSO is what a slow look at it alone gives,
// and the figures are those of the QSOs.

#include "Fuzz/Require.h"
#include "Tallyrig/Contest/ContestChecker.h"
#include "Tallyrig/Contest/ContestTemplates.h"
#include "Tallyrig/Geography/DXCCInfo.h"
#include "Tallyrig/Geography/Locator.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

using namespace tallyrig;

namespace {

std::string keyPart(const ADIFRecord& record, std::string_view field) {
    return text::canonicalKey(text::upper(text::trimmedOfBlanks(record.valueOrEmpty(field))));
}

/// The points of a counted QSO, as far as they go by relation or distance.
std::int64_t pointsOf(const ContestRules& rules, const ADIFRecord& qso, std::int64_t otherwise) {
    if (const auto* const table = std::get_if<points::ByRelation>(&rules.points)) {
        const auto rule = std::ranges::find_if(table->rules, [&](const RelationRule& candidate) {
            return candidate.condition.matches(qso, rules.station) == RelationAnswer::holds;
        });
        const bool isByGroup = rule != table->rules.end() && rule->bandGroupPoints;
        return isByGroup ? otherwise : rule == table->rules.end() ? 0 : rule->points;
    }
    if (const auto* const iaru = std::get_if<points::DistanceKmIaru>(&rules.points)) {
        const std::string_view own = qso.valueOrEmpty(iaru->myField);
        const auto km = greatCircleKm(own.empty() ? std::string_view(rules.station.gridSquare) : own,
                                      qso.valueOrEmpty(iaru->theirField));
        return km ? static_cast<std::int64_t>(*km) + 1 : 0;
    }
    return otherwise;
}

void checkQSOs(const ContestRules& rules, const ADIFDocument& log, const ContestScore& score) {
    std::set<std::string> keys;
    std::size_t index = 0;
    for (const ADIFRecord& record : log.records()) {
        const ContestQSOResult& result = score.results.at(index);
        require(result.id == record.id() && result.index == index, "results are those of the records");
        const ADIFRecord qso = ContestChecker::withDerivedDXCC(record);
        std::string key;
        for (const std::string_view field : rules.dupeFields) {
            key += keyPart(qso, field) + '\x1F';
        }
        const bool isTracked = !rules.dupeBands || rules.dupeBands->contains(keyPart(qso, "BAND"));
        require(result.isDupe == (isTracked && !keys.insert(key).second),
                "a duplicate has the key of another");
        const bool isValid =
            !rules.validRelation || rules.validRelation->matches(qso, rules.station) == RelationAnswer::holds;
        require(isValid || !result.problems.empty(), "a relation that does not hold is a problem");
        const bool isRemoved = result.crossCheckRemoval.has_value();
        if (result.isCounted()) {
            require(result.points == pointsOf(rules, qso, result.points), "points are those of the rules");
        } else {
            require(result.newMultipliers.empty() && (isRemoved || result.points == 0),
                    "what does not count gives nothing");
        }
        require(!isRemoved || (result.problems.empty() && !result.isDupe), "only what counts is removed");
        ++index;
    }
    require(index == score.results.size(), "there is one result for each record");
}

void checkFigures(const ContestRules& rules, const ContestScore& score) {
    const auto count = [&](auto claim) {
        return static_cast<std::size_t>(std::ranges::count_if(score.results, claim));
    };
    require(score.totalQSOs == score.results.size(), "all QSOs are counted in all");
    require(score.countedQSOs == count(&ContestQSOResult::isCounted), "counted are those that count");
    require(score.dupeQSOs == count(&ContestQSOResult::isDupe), "duplicates are those that are");
    require(score.invalidQSOs == count([](const ContestQSOResult& qso) { return !qso.problems.empty(); }),
            "invalid are those with problems");
    require(score.removedQSOs ==
                count([](const ContestQSOResult& qso) { return qso.crossCheckRemoval.has_value(); }),
            "removed are those that are");
    std::int64_t points = 0;
    std::int64_t news = 0;
    bool isWeighted = false;
    for (const ContestQSOResult& qso : score.results) {
        points += qso.points;
        news += std::distance(qso.newMultipliers.begin(), qso.newMultipliers.end());
    }
    for (const ContestMultiplier& multiplier : rules.multipliers) {
        isWeighted = isWeighted || multiplier.bandWeights;
    }
    require(points == score.qsoPoints, "the points are the sum of those of the QSOs");
    require(isWeighted || news == score.multiplierCount, "each multiplier is new once");
    require(score.multiplierBreakdown.size() == rules.multipliers.size(), "each multiplier is told of");
    if (rules.multipliers.empty()) {
        require(score.total == points, "without multipliers, points are the score");
    } else if (!rules.scorePerBand) {
        require(score.total == points * score.multiplierCount, "the score is points times multipliers");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const ADIFDocument log = ADIFParser::parse({reinterpret_cast<const char*>(bytes), size});
    std::unordered_map<UUID, CrossCheckStatus> findings;
    for (const ADIFRecord& record : log.records()) {
        findings.emplace(record.id(), crossCheckStatuses[findings.size() % crossCheckStatuses.size()]);
    }
    using Templates = ContestTemplates;
    const ContestStation station = {"287", "EU", "14", "28", "JN47"};
    for (const auto make :
         {Templates::helvetia, Templates::fieldDay, Templates::nmd, Templates::iaruHF, Templates::waeDX,
          Templates::wag, Templates::cqWW, Templates::cqWPX, Templates::arrlDX, Templates::sac,
          Templates::aaDX, Templates::russianDX, Templates::mhz50, Templates::iaruR1VHF}) {
        const ContestChecker checker(make(station));
        for (const ContestScore& score : {checker.score(log), checker.score(log, findings, {true, 2, 1})}) {
            checkQSOs(checker.rules(), log, score);
            checkFigures(checker.rules(), score);
        }
    }
    return 0;
}
