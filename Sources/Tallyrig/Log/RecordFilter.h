// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecordList.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace tallyrig {

/// The positions, ascending, of the records in which a value or the name of a field contains `searchText`,
/// without regard to case. `searchText` is not empty. Cost: about one pass over the bytes of the values.
std::vector<std::uint32_t> recordsContaining(const ADIFRecordList& records, std::string_view searchText);

}  // namespace tallyrig
