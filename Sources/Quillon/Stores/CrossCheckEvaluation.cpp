// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/CrossCheckEvaluation.h"

#include "Tallyrig/Adjudication/CrossCheckScoring.h"
#include "Tallyrig/CrossCheck/ContestCrossChecker.h"

#include <algorithm>
#include <utility>

namespace quillon {

bool CrossCheckInput::isSameAs(const CrossCheckInput& other) const {
    const auto isSameLog = [](const tallyrig::CrossCheckLog& left, const tallyrig::CrossCheckLog& right) {
        return left.id == right.id && left.name == right.name && left.owner == right.owner &&
               left.document.isSameAs(right.document);
    };
    return options == other.options && isScored == other.isScored && penalties == other.penalties &&
           contest == other.contest && std::ranges::equal(logs, other.logs, isSameLog);
}

double EvaluationWork::progress() const {
    // Scoring takes about half as long as checking.
    const double checkingPart = isScored.load(std::memory_order_relaxed) ? 2.0 / 3 : 1;
    return checkingPart * checking.progress() + (1 - checkingPart) * scoring.progress();
}

void EvaluationWork::cancel() {
    checking.cancel();
    scoring.cancel();
}

std::optional<CrossCheckEvaluation> evaluated(CrossCheckInput input, EvaluationWork& work) {
    work.isScored.store(input.isScored, std::memory_order_relaxed);
    auto report = tallyrig::ContestCrossChecker(input.options).check(input.logs, work.checking);
    if (!report) {
        return std::nullopt;
    }
    const auto& contest = input.contest;
    std::optional<tallyrig::CrossCheckScores> scores(std::in_place);
    if (input.isScored) {
        const auto rules = [&](const tallyrig::ContestStation& station) { return contest.rules(station); };
        scores = tallyrig::crossCheckScores(input.logs, *report, input.penalties, contest.station, rules,
                                            work.scoring);
    }
    if (!scores) {
        return std::nullopt;
    }
    std::string contestName = contest.rules(contest.station).name;
    return CrossCheckEvaluation{std::move(input), std::move(*report), std::move(*scores),
                                std::move(contestName)};
}

}  // namespace quillon
