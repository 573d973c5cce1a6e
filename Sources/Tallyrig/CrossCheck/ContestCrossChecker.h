// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/CrossCheck/CrossCheckLog.h"
#include "Tallyrig/CrossCheck/CrossCheckOptions.h"
#include "Tallyrig/CrossCheck/CrossCheckReport.h"

#include <optional>
#include <span>

namespace tallyrig {

class LogWork;

/// Compares each QSO of the logs of one contest with the log of the station worked.
///
/// Logs whose owners have one base call are one station's. What is found depends on nothing but the logs, in
/// their order, and the options: neither on the number of threads nor on the run.
class ContestCrossChecker {
  public:
    explicit ContestCrossChecker(CrossCheckOptions checkOptions) : crossCheckOptions(checkOptions) {}

    const CrossCheckOptions& options() const { return crossCheckOptions; }

    /// A finding for each record of each log. The ids of the logs are all different; those of the records
    /// need not be, and a record that stands in several logs vouches for one QSO of a log at most. Cost:
    /// some look-ups for each QSO, on all cores, and 60 bytes until it is done.
    CrossCheckReport check(std::span<const CrossCheckLog> logs) const;
    /// The same as `work` has it; absent if that was cancelled.
    std::optional<CrossCheckReport> check(std::span<const CrossCheckLog> logs, LogWork& work) const;

  private:
    CrossCheckOptions crossCheckOptions;
};

}  // namespace tallyrig
