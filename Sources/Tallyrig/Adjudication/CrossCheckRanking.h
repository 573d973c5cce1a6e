// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Adjudication/CrossCheckScore.h"
#include "Tallyrig/CrossCheck/CrossCheckLog.h"
#include "Tallyrig/CrossCheck/CrossCheckReport.h"
#include "Tallyrig/CrossCheck/CrossCheckSummary.h"
#include "Tallyrig/Log/UUID.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tallyrig {

/// One station in the ranking, with all its logs.
struct CrossCheckEntry {
    std::size_t rank = 0;      ///< From 1, without two on one place.
    std::string owner;         ///< The call as its first log has it; empty for the logs that nobody owns.
    std::vector<UUID> logIDs;  ///< In the order of the logs.
    CrossCheckCounts counts;
    // The totals of all its logs that have a score; absent if none has.
    std::optional<std::int64_t> claimed;
    std::optional<std::int64_t> checked;

    friend bool operator==(const CrossCheckEntry&, const CrossCheckEntry&) = default;
};

/// The stations by their checked points, then by the share of QSOs without an error, then in text order. Logs
/// whose owners have one base call are one station's, and so are all without an owner.
std::vector<CrossCheckEntry> crossCheckRanking(const CrossCheckReport& report,
                                               std::span<const CrossCheckLog> logs,
                                               const CrossCheckScores& scores);

}  // namespace tallyrig
