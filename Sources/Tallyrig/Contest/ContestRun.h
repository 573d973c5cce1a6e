#pragma once

#include "Tallyrig/Contest/ContestChecker.h"
#include "Tallyrig/Contest/ContestFields.h"
#include "Tallyrig/Contest/ContestRules.h"
#include "Tallyrig/Contest/ContestScore.h"
#include "Tallyrig/Contest/MultiplierKey.h"
#include "Tallyrig/Contest/QSOValuation.h"
#include "Tallyrig/Contest/RelationCondition.h"
#include "Tallyrig/Contest/RelationTable.h"
#include "Tallyrig/Contest/SteadyField.h"
#include "Tallyrig/Contest/TextLists.h"
#include "Tallyrig/CrossCheck/CrossCheckStatus.h"
#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/UUID.h"
#include "Tallyrig/Text/KeyNumbers.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace tallyrig {

/// One pass over the records of a log that scores them. Refers to the rules and what a cross-check found.
class ContestRun {
  public:
    using CrossCheck = std::unordered_map<UUID, CrossCheckStatus>;

    ContestRun(const ContestRules& rules, const CrossCheck& crossCheck, const CrossCheckPenalties& penalties);

    /// To be asked for once.
    ContestScore score(const ADIFDocument& log);

  private:
    /// What the rules say of one band, and what it has gathered.
    struct Band {
        bool isAllowed = true;
        std::int64_t points = 0;
        std::int64_t multiplierCount = 0;
    };
    /// What the multipliers of one name have gathered.
    struct Tally {
        std::string name;
        KeyNumbers seen;
        std::int64_t count = 0;
    };
    struct Multiplier {
        const ContestMultiplier& rule;
        MultiplierKey key;
        std::size_t tally;
    };

    void turnToPlace();
    /// The points, multipliers and problems of the record at hand.
    void scoreQSO(ContestQSOResult& result);
    void findProblems(RelationAnswer validity);
    void addProblemOf(const char* kind, const std::string& name);
    /// What removes the QSO, and how many times its points it costs.
    struct Removal {
        CrossCheckStatus status;
        std::int64_t factor;
    };
    std::optional<Removal> removalOf(UUID id) const;
    void remove(ContestQSOResult& result, const Removal& removal, std::int64_t points);
    void count(ContestQSOResult& result, std::int64_t points);
    std::int64_t total() const;

    const ContestRules& rules;
    const CrossCheck& crossCheck;
    const CrossCheckPenalties& penalties;

    ContestFields fields;
    SteadyField band;
    SteadyField mode;
    bool readsMode;  ///< Whether any rule asks for the mode.
    bool isModeAllowed = true;
    std::vector<std::size_t> requiredFields;  ///< By position in the rules.
    RelationTable relations;
    QSOValuation valuation;
    std::vector<Multiplier> multipliers;
    std::vector<Tally> tallies;
    std::string relationProblem;  ///< What is said of a QSO that does not pass the test of the rules.

    std::vector<Band> bands;  ///< By number.
    TextLists problems;
    TextLists newMultipliers;

    ContestScore result;
};

}  // namespace tallyrig
