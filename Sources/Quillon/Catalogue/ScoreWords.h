// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestScore.h"

#include <cstdint>
#include <string>

namespace quillon {

/// How a score is told to a person, in German.
struct ScoreWords {
    /// With digits in groups of three: "1.234.567".
    static std::string number(std::int64_t number);
    /// How the total comes about, such as "1.200 QSO-Punkte × 15 Multiplikatoren". Where the bands are summed
    /// one by one it stands for that too.
    static std::string formula(const tallyrig::ContestScore& score);
    /// Why a QSO does not count: "Dublette", then its problems. Empty if there is nothing to say.
    static std::string reason(const tallyrig::ContestQSOResult& qso);
};

}  // namespace quillon
