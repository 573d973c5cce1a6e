#include "Tallyrig/Contest/ContestChecker.h"

#include "Tallyrig/Contest/ContestRun.h"
#include "Tallyrig/Geography/DXCCInfo.h"

#include <utility>

namespace tallyrig {

ContestChecker::ContestChecker(ContestRules rules) : contestRules(std::move(rules)) {}

ContestScore ContestChecker::score(const ADIFDocument& log) const {
    return score(log, {}, {});
}

ContestScore ContestChecker::score(const ADIFDocument& log,
                                   const std::unordered_map<UUID, CrossCheckStatus>& crossCheck,
                                   const CrossCheckPenalties& penalties) const {
    return ContestRun(contestRules, crossCheck, penalties).score(log);
}

ContestScore ContestChecker::score(const ADIFDocument& log, const CrossCheckReport& adjudicatedBy, UUID logID,
                                   const CrossCheckPenalties& penalties) const {
    const auto findings = adjudicatedBy.findings(logID);
    // Most findings change nothing and need to be known only where a later one may be on the same record.
    std::unordered_map<UUID, CrossCheckStatus> statuses;
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
    return score(log, statuses, penalties);
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
