// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Catalogue/Contests.h"
#include "Quillon/Catalogue/GenericContest.h"
#include "Tallyrig/Adjudication/CrossCheckScore.h"
#include "Tallyrig/Contest/ContestChecker.h"
#include "Tallyrig/Contest/ContestRules.h"
#include "Tallyrig/Contest/ContestStation.h"
#include "Tallyrig/CrossCheck/CrossCheckLog.h"
#include "Tallyrig/CrossCheck/CrossCheckOptions.h"
#include "Tallyrig/CrossCheck/CrossCheckReport.h"
#include "Tallyrig/CrossCheck/LogWork.h"

#include <atomic>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// The contest that logs are scored by, and what is said of their stations in common.
struct ContestChoice {
    Contest contest = Contest::helvetia;
    GenericContest genericContest;
    tallyrig::ContestStation station;

    tallyrig::ContestRules rules(const tallyrig::ContestStation& ofStation) const {
        return rulesOf(contest, genericContest, ofStation);
    }
    friend bool operator==(const ContestChoice&, const ContestChoice&) = default;
};

/// All that a cross-check depends on. Copies share the logs' documents and may be used on any thread.
struct CrossCheckInput {
    std::vector<tallyrig::CrossCheckLog> logs;
    tallyrig::CrossCheckOptions options;
    bool isScored = true;
    tallyrig::CrossCheckPenalties penalties;
    ContestChoice contest;

    /// Whether both give the same result: false also for equal documents of which none is a copy of the
    /// other. Cost: some words for each log.
    bool isSameAs(const CrossCheckInput& other) const;
};

/// A finished cross-check, with what it was made of.
struct CrossCheckEvaluation {
    CrossCheckInput input;
    tallyrig::CrossCheckReport report;
    tallyrig::CrossCheckScores scores;  ///< Empty without scoring.
    std::string contestName;
};

/// How far an evaluation is, and whether it is still wanted. Belongs to one caller, as `LogWork` does, and is
/// used once.
class EvaluationWork {
  public:
    /// On at most so many threads, or with 0 on as many as the machine has.
    explicit EvaluationWork(std::size_t mostThreads = 0) : checking(mostThreads), scoring(mostThreads) {}

    /// The part that is done, from 0 to 1. It never falls.
    double progress() const;
    void cancel();

  private:
    friend std::optional<CrossCheckEvaluation> evaluated(CrossCheckInput input, EvaluationWork& work);

    tallyrig::LogWork checking;
    tallyrig::LogWork scoring;
    std::atomic<bool> isScored = true;
};

/// Checks and scores the logs; absent if the work was cancelled. May run on any thread.
std::optional<CrossCheckEvaluation> evaluated(CrossCheckInput input, EvaluationWork& work);

}  // namespace quillon
