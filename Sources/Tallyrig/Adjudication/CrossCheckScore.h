// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestScore.h"
#include "Tallyrig/Contest/ContestStation.h"
#include "Tallyrig/Contest/Saturation.h"
#include "Tallyrig/Log/UUID.h"

#include <cstdint>
#include <unordered_map>

namespace tallyrig {

/// What a log gives as its station claims it and as the cross-check leaves it.
struct CrossCheckScore {
    UUID logID;
    ContestStation station;  ///< As the rules took it for this log.
    ContestScore claimed;
    ContestScore checked;

    std::int64_t difference() const { return saturatedDifference(checked.total, claimed.total); }
    friend bool operator==(const CrossCheckScore&, const CrossCheckScore&) = default;
};

/// By the id of the log.
using CrossCheckScores = std::unordered_map<UUID, CrossCheckScore>;

}  // namespace tallyrig
