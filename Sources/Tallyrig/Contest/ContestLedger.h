// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestFields.h"
#include "Tallyrig/Contest/ContestRules.h"
#include "Tallyrig/Contest/ContestScore.h"
#include "Tallyrig/Contest/MultiplierKey.h"
#include "Tallyrig/Contest/SteadyField.h"
#include "Tallyrig/Contest/TextLists.h"
#include "Tallyrig/CrossCheck/CrossCheckStatus.h"
#include "Tallyrig/Text/KeyNumbers.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tallyrig {

/// What gathers while a log is scored: points and multipliers, QSO by QSO. Refers to the rules.
class ContestLedger {
  public:
    /// What takes a QSO out, and how many times its points that costs.
    struct Removal {
        CrossCheckStatus status;
        std::int64_t factor;
    };

    /// Adds the fields that it reads.
    ContestLedger(const ContestRules& rules, ContestFields& fields);

    void reserve(std::size_t qsoCount) { result.results.reserve(qsoCount); }
    /// Enters a QSO, in the order of the log, with nothing but what the log itself says of it.
    void add(const ContestQSOResult& qso);
    /// The last one is taken out.
    void remove(const Removal& removal, std::int64_t points, const SteadyField& band);
    /// The last one counts. `fields` stands at its record.
    void count(std::int64_t points, ContestFields& fields, const SteadyField& band, const SteadyField& mode);

    /// The score of all QSOs entered. To be asked for once.
    ContestScore take();

  private:
    struct Band {
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

    Band& turnTo(const SteadyField& band);
    std::int64_t total() const;

    const ContestRules& rules;
    std::vector<Multiplier> multipliers;
    std::vector<Tally> tallies;
    std::vector<Band> bands;  ///< By number.
    TextLists newMultipliers;
    ContestScore result;
};

}  // namespace tallyrig
