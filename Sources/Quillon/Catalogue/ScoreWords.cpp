// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/ScoreWords.h"

#include <cstddef>

namespace quillon {

std::string ScoreWords::number(std::int64_t number) {
    std::string digits = std::to_string(number);
    const std::size_t first = number < 0 ? 1 : 0;
    for (std::size_t at = digits.size(); at > first + 3;) {
        at -= 3;
        digits.insert(at, ".");
    }
    return digits;
}

std::string ScoreWords::formula(const tallyrig::ContestScore& score) {
    const std::string points = number(score.qsoPoints) + " QSO-Punkte";
    return score.multiplierCount < 1 && score.multiplierBreakdown.empty()
               ? points + " (keine Multiplikatoren)"
               : points + " × " + number(score.multiplierCount) + " Multiplikatoren";
}

std::string ScoreWords::reason(const tallyrig::ContestQSOResult& qso) {
    std::string reason = qso.isDupe ? "Dublette" : "";
    for (const std::string& problem : qso.problems) {
        reason += (reason.empty() ? "" : ", ") + problem;
    }
    return reason;
}

}  // namespace quillon
