#pragma once

#include "Tallyrig/Contest/ContestChecker.h"
#include "Tallyrig/Contest/ContestFields.h"
#include "Tallyrig/Contest/ContestRules.h"
#include "Tallyrig/Contest/ContestScore.h"
#include "Tallyrig/Contest/MultiplierKey.h"
#include "Tallyrig/Contest/QSOValuation.h"
#include "Tallyrig/Contest/RelationCondition.h"
#include "Tallyrig/CrossCheck/CrossCheckStatus.h"
#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/UUID.h"
#include "Tallyrig/Text/KeyNumbers.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
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
        bool hasDuplicates = true;
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

    void readStation();
    void turnToBand();
    void scoreQSO(ContestQSOResult& result);
    void findProblems(std::vector<std::string>& problems);
    bool isDuplicate();
    /// What removes the QSO, and how many times its points it costs.
    struct Removal {
        CrossCheckStatus status;
        std::int64_t factor;
    };
    std::optional<Removal> removalOf(UUID id) const;
    void remove(ContestQSOResult& result, const Removal& removal);
    void count(ContestQSOResult& result);
    std::int64_t total() const;

    const ContestRules& rules;
    const CrossCheck& crossCheck;
    const CrossCheckPenalties& penalties;

    ContestFields fields;
    std::size_t bandField;
    std::size_t modeField;
    std::vector<std::size_t> requiredFields;  ///< By position in the rules, as the duplicate fields are.
    std::vector<std::size_t> dupeFields;
    std::size_t callField;
    std::size_t dxccField = 0;
    std::size_t cqZoneField = 0;
    std::size_t ituZoneField = 0;
    std::size_t continentField = 0;
    bool readsStation;       ///< Whether any rule asks for the relation to the station worked.
    bool readsMode = false;  ///< Whether any multiplier counts anew in each mode.
    QSOValuation valuation;
    std::vector<Multiplier> multipliers;
    std::vector<Tally> tallies;
    std::string relationProblem;  ///< What is said of a QSO that does not pass the test of the rules.

    KeyNumbers bandNumbers;
    std::vector<Band> bands;  ///< In the order in which they come.
    KeyNumbers dupeKeys;
    std::string dupeKey;

    // Of the record at hand.
    std::string_view bandName;
    std::size_t bandNumber = 0;
    std::string lastBandName;  ///< That of the record before, in memory of its own.
    WorkedStation worked;

    ContestScore result;
};

}  // namespace tallyrig
