// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Adjudication/CrossCheckScore.h"
#include "Tallyrig/Contest/ContestChecker.h"
#include "Tallyrig/Contest/ContestRules.h"
#include "Tallyrig/Contest/ContestStation.h"
#include "Tallyrig/CrossCheck/CrossCheckLog.h"
#include "Tallyrig/CrossCheck/CrossCheckReport.h"

#include <functional>
#include <optional>
#include <span>

namespace tallyrig {

class LogWork;

/// Scores each log twice by the rules of its own station. What `baseStation` says is common to all logs holds
/// where a log does not tell better (`ContestStation::adapted`). `rules` gives the rules for a station, and
/// is asked by several threads at once. Cost: a pass over each log, on all cores.
CrossCheckScores crossCheckScores(std::span<const CrossCheckLog> logs, const CrossCheckReport& report,
                                  const CrossCheckPenalties& penalties, const ContestStation& baseStation,
                                  const std::function<ContestRules(const ContestStation&)>& rules);
/// The same as `work` has it; absent if that was cancelled.
std::optional<CrossCheckScores> crossCheckScores(
    std::span<const CrossCheckLog> logs, const CrossCheckReport& report, const CrossCheckPenalties& penalties,
    const ContestStation& baseStation, const std::function<ContestRules(const ContestStation&)>& rules,
    LogWork& work);

}  // namespace tallyrig
