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
