// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Adjudication/CrossCheckScoring.h"

#include "Tallyrig/CrossCheck/LogWork.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace tallyrig {

CrossCheckScores crossCheckScores(std::span<const CrossCheckLog> logs, const CrossCheckReport& report,
                                  const CrossCheckPenalties& penalties, const ContestStation& baseStation,
                                  const std::function<ContestRules(const ContestStation&)>& rules) {
    LogWork work;
    return crossCheckScores(logs, report, penalties, baseStation, rules, work).value_or(CrossCheckScores());
}

std::optional<CrossCheckScores> crossCheckScores(
    std::span<const CrossCheckLog> logs, const CrossCheckReport& report, const CrossCheckPenalties& penalties,
    const ContestStation& baseStation, const std::function<ContestRules(const ContestStation&)>& rules,
    LogWork& work) {
    std::size_t count = 0;
    for (const CrossCheckLog& log : logs) {
        count += log.document.records().size();
    }
    work.start(count);
    std::vector<CrossCheckScore> list(logs.size());
    work.forEach(logs.size(), [&](std::size_t position) {
        const CrossCheckLog& log = logs[position];
        CrossCheckScore& score = list[position];
        score.logID = log.id;
        score.station = baseStation.adapted(log.owner, log.document);
        const ContestChecker checker(rules(score.station));
        ContestChecker::ScorePair pair = checker.scorePair(log.document, report, log.id, penalties);
        score.claimed = std::move(pair.claimed);
        score.checked = std::move(pair.checked);
        work.addDone(log.document.records().size());
    });
    if (work.isCancelled()) {
        return std::nullopt;
    }
    CrossCheckScores scores;
    scores.reserve(list.size());
    for (CrossCheckScore& score : list) {
        const UUID id = score.logID;
        scores.emplace(id, std::move(score));
    }
    return scores;
}

}  // namespace tallyrig
