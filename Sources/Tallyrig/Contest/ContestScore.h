// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/CrossCheck/CrossCheckStatus.h"
#include "Tallyrig/Log/SharedTexts.h"
#include "Tallyrig/Log/UUID.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tallyrig {

/// What one QSO gives.
struct ContestQSOResult {
    UUID id;                  ///< That of the record.
    std::size_t index = 0;    ///< The position of the record in its log, from 0.
    std::int64_t points = 0;  ///< 0 for an invalid QSO or a duplicate; the penalty below 0 for a removed one.
    bool isDupe = false;
    SharedTexts newMultipliers;  ///< The names of those that this QSO was the first for.
    SharedTexts problems;        ///< Why it is invalid: German sentences for a person.
    std::optional<CrossCheckStatus> crossCheckRemoval;  ///< What removed it from the score.

    /// Whether the log itself speaks against it.
    bool isFlagged() const { return isDupe || !problems.empty(); }
    bool isCounted() const { return problems.empty() && !isDupe && !crossCheckRemoval; }
    friend bool operator==(const ContestQSOResult&, const ContestQSOResult&) = default;
};

/// What a log gives by the rules of a contest. Figures beyond 64 bits stand at the limit.
struct ContestScore {
    /// What one of the multipliers of the rules gives.
    struct Breakdown {
        std::string name;
        std::int64_t count = 0;  ///< Each new one by its weight. Multipliers of one name show the same count.

        friend bool operator==(const Breakdown&, const Breakdown&) = default;
    };

    std::string contestName;
    std::size_t totalQSOs = 0;
    // An invalid QSO may be a duplicate too and counts as both.
    std::size_t countedQSOs = 0;
    std::size_t dupeQSOs = 0;
    std::size_t invalidQSOs = 0;
    std::int64_t qsoPoints = 0;  ///< Less penalties.
    std::int64_t multiplierCount = 0;
    std::int64_t total = 0;
    std::vector<Breakdown> multiplierBreakdown;  ///< In the order of the rules.
    std::vector<ContestQSOResult> results;       ///< In the order of the records.
    std::size_t removedQSOs = 0;                 ///< By adjudication.
    std::int64_t penaltyPoints = 0;              ///< Above 0 for points taken away.

    friend bool operator==(const ContestScore&, const ContestScore&) = default;
};

}  // namespace tallyrig
