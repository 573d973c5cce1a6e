// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestRules.h"
#include "Tallyrig/Contest/ContestScore.h"
#include "Tallyrig/CrossCheck/CrossCheckReport.h"
#include "Tallyrig/CrossCheck/CrossCheckStatus.h"
#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Log/UUID.h"

#include <cstdint>
#include <unordered_map>

namespace tallyrig {

/// What a QSO costs that the other station's log does not confirm.
struct CrossCheckPenalties {
    bool removeBustedExchange = true;  ///< A busted exchange removes the QSO as a busted call does.
    // Multiples of the QSO's points that are taken away besides. Below 0 they are given.
    std::int64_t nilPenaltyFactor = 0;
    std::int64_t bustedPenaltyFactor = 0;

    friend bool operator==(const CrossCheckPenalties&, const CrossCheckPenalties&) = default;
};

/// Scores logs by the rules of one contest.
class ContestChecker {
  public:
    explicit ContestChecker(ContestRules rules);

    const ContestRules& rules() const { return contestRules; }

    /// The score as claimed. Cost: one pass over the records.
    ContestScore score(const ADIFDocument& log) const;
    /// The score with what a cross-check has found, by the ids of the records: QSOs not in the other log and
    /// busted ones are removed and cost their penalty.
    ContestScore score(const ADIFDocument& log, const std::unordered_map<UUID, CrossCheckStatus>& crossCheck,
                       const CrossCheckPenalties& penalties) const;
    /// The same with what the report says of the log of this id; of several findings on one record the first
    /// counts.
    ContestScore score(const ADIFDocument& log, const CrossCheckReport& adjudicatedBy, UUID logID,
                       const CrossCheckPenalties& penalties) const;
    /// What a log gives as it stands, and as a cross-check leaves it.
    struct ScorePair {
        ContestScore claimed;
        ContestScore checked;
    };
    /// The score as claimed and the one with what the report says. Cost: one pass over the records.
    ScorePair scorePair(const ADIFDocument& log, const CrossCheckReport& adjudicatedBy, UUID logID,
                        const CrossCheckPenalties& penalties) const;

    /// `record` with the entity of its call in `DXCC`, where that is empty and the call tells it.
    static ADIFRecord withDerivedDXCC(const ADIFRecord& record);

  private:
    ContestRules contestRules;
};

}  // namespace tallyrig
