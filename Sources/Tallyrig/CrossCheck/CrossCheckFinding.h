// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/CrossCheck/CrossCheckStatus.h"
#include "Tallyrig/Log/UUID.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tallyrig {

/// What the logs of the others say of one QSO.
struct CrossCheckFinding {
    UUID id;                ///< That of the record.
    UUID logID;             ///< The log that it stands in.
    std::size_t index = 0;  ///< The position of the record in that log, from 0.
    std::string call;       ///< As logged, trimmed and in upper case.
    CrossCheckStatus status = CrossCheckStatus::unique;
    std::vector<std::string> notes;  ///< German remarks for a person, each a line.
    // The QSO that was found in another log: both or none.
    std::optional<UUID> counterpartLogID;
    std::optional<std::size_t> counterpartIndex;

    friend bool operator==(const CrossCheckFinding&, const CrossCheckFinding&) = default;
};

}  // namespace tallyrig
