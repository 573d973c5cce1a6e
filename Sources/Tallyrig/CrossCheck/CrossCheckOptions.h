// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace tallyrig {

/// How closely two logs have to agree.
struct CrossCheckOptions {
    std::int64_t timeToleranceMinutes = 5;       ///< The largest difference of a regular match.
    std::int64_t extendedToleranceMinutes = 30;  ///< The largest that is still reported as one of time.
    bool compareMode = true;                     ///< Besides the band, the mode category has to agree.
    bool checkExchange = true;
    bool checkRST = false;             ///< Besides the exchange, the reports have to agree.
    std::int64_t maxCallDistance = 2;  ///< The most characters that tell a call from one mistyped.

    friend bool operator==(const CrossCheckOptions&, const CrossCheckOptions&) = default;
};

}  // namespace tallyrig
