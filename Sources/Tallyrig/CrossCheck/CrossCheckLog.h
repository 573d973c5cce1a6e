// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/UUID.h"

#include <optional>
#include <string>
#include <string_view>

namespace tallyrig {

/// The log of one station that takes part in a cross-check.
struct CrossCheckLog {
    UUID id;
    std::string name;   ///< To be shown: as a rule the name of the file.
    std::string owner;  ///< The station's call in upper case, not trimmed; empty if nobody knows it.
    ADIFDocument document;

    /// Without an owner, the one that the log names (`detectOwner`), if it does.
    CrossCheckLog(UUID logID, std::string displayName, ADIFDocument log,
                  std::optional<std::string_view> ownCall = std::nullopt);

    /// The call that most records name as their station's, or if none does as their operator's; at equal
    /// numbers the first in text order. Of several calls in one field the first counts. In upper case; absent
    /// if no record names any.
    static std::optional<std::string> detectOwner(const ADIFDocument& log);
};

}  // namespace tallyrig
