// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Validation/ValidationKind.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace tallyrig {

/// Where in its record a finding is to be looked at.
struct FindingPlace {
    std::string_view field;               ///< The name; refers to the finding or lasts for ever.
    std::optional<std::size_t> position;  ///< In the record; absent if it has no such field.
};

/// The field of `record` that `kind` is about. Of several fields of that name the one with the value that was
/// found, otherwise the first. A finding about several fields is looked at in the first of them.
FindingPlace placeOf(const ValidationKind& kind, const ADIFRecord& record);

}  // namespace tallyrig
