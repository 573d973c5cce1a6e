// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Contest/ContestChecker.h"

#include "Tallyrig/Contest/ContestRun.h"
#include "Tallyrig/Geography/DXCCInfo.h"

#include <array>
#include <span>
#include <utility>
#include <vector>

namespace tallyrig {

namespace {

using Statuses = std::unordered_map<UUID, CrossCheckStatus>;

/// By the ids of the records; of several findings on one record the first counts.
Statuses statusesOf(std::span<const CrossCheckFinding> findings) {
    // Most findings change nothing and need to be known only where a later one may be on the same record.
    Statuses statuses;
    UUID last;
    bool areAllDifferent = true;
    for (const CrossCheckFinding& finding : findings) {
        areAllDifferent = areAllDifferent && last < finding.id;
        last = finding.id;
        if (isError(finding.status)) {
            statuses.emplace(finding.id, finding.status);
        }
    }
    if (!areAllDifferent) {
        statuses.clear();
        for (const CrossCheckFinding& finding : findings) {
            statuses.emplace(finding.id, finding.status);
        }
    }
    return statuses;
}

}  // namespace

ContestChecker::ContestChecker(ContestRules rules) : contestRules(std::move(rules)) {}

ContestScore ContestChecker::score(const ADIFDocument& log) const {
    return score(log, {}, {});
}

ContestScore ContestChecker::score(const ADIFDocument& log,
                                   const std::unordered_map<UUID, CrossCheckStatus>& crossCheck,
                                   const CrossCheckPenalties& penalties) const {
    const std::array adjudications = {Adjudication{crossCheck, penalties}};
    return std::move(ContestRun(contestRules, adjudications).scores(log).front());
}

ContestScore ContestChecker::score(const ADIFDocument& log, const CrossCheckReport& adjudicatedBy, UUID logID,
                                   const CrossCheckPenalties& penalties) const {
    return score(log, statusesOf(adjudicatedBy.findings(logID)), penalties);
}

ContestChecker::ScorePair ContestChecker::scorePair(const ADIFDocument& log,
                                                    const CrossCheckReport& adjudicatedBy, UUID logID,
                                                    const CrossCheckPenalties& penalties) const {
    const Statuses none;
    const CrossCheckPenalties noPenalties;
    const Statuses statuses = statusesOf(adjudicatedBy.findings(logID));
    const std::array adjudications = {Adjudication{none, noPenalties}, Adjudication{statuses, penalties}};
    std::vector<ContestScore> scores = ContestRun(contestRules, adjudications).scores(log);
    return {std::move(scores[0]), std::move(scores[1])};
}

ADIFRecord ContestChecker::withDerivedDXCC(const ADIFRecord& record) {
    ADIFRecord derived = record;
    if (DXCCInfo::country(record).empty()) {
        if (const auto code = DXCCInfo::dxccCode(record.valueOrEmpty("CALL"))) {
            derived.set("DXCC", *code);
        }
    }
    return derived;
}

}  // namespace tallyrig
