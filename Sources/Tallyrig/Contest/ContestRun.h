// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestChecker.h"
#include "Tallyrig/Contest/ContestFields.h"
#include "Tallyrig/Contest/ContestLedger.h"
#include "Tallyrig/Contest/ContestRules.h"
#include "Tallyrig/Contest/ContestScore.h"
#include "Tallyrig/Contest/QSOValuation.h"
#include "Tallyrig/Contest/RelationCondition.h"
#include "Tallyrig/Contest/RelationTable.h"
#include "Tallyrig/Contest/SteadyField.h"
#include "Tallyrig/Contest/TextLists.h"
#include "Tallyrig/CrossCheck/CrossCheckStatus.h"
#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/UUID.h"

#include <cstddef>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace tallyrig {

/// What a cross-check found of the records of a log, and what that costs. Refers to both.
struct Adjudication {
    const std::unordered_map<UUID, CrossCheckStatus>& statuses;
    const CrossCheckPenalties& penalties;
};

/// One pass over the records of a log that scores them, once for each of some adjudications: what the log
/// itself says of a QSO is worked out for all of them at once. Refers to the rules and the adjudications.
class ContestRun {
  public:
    ContestRun(const ContestRules& rules, std::span<const Adjudication> adjudications);

    /// In the order of the adjudications. To be asked for once.
    std::vector<ContestScore> scores(const ADIFDocument& log);

  private:
    void turnToPlace();
    /// The points, multipliers and problems of the record at hand.
    void scoreQSO(ContestQSOResult& qso);
    void findProblems(RelationAnswer validity);
    void addProblemOf(const char* kind, const std::string& name);

    const ContestRules& rules;
    std::span<const Adjudication> adjudications;

    ContestFields fields;
    SteadyField band;
    SteadyField mode;
    bool readsMode;  ///< Whether any rule asks for the mode.
    bool isModeAllowed = true;
    std::vector<std::size_t> requiredFields;  ///< By position in the rules.
    RelationTable relations;
    QSOValuation valuation;
    std::string relationProblem;  ///< What is said of a QSO that does not pass the test of the rules.

    std::vector<bool> isBandAllowed;  ///< By number.
    TextLists problems;
    std::vector<ContestLedger> ledgers;  ///< One for each adjudication.
};

}  // namespace tallyrig
