// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecordList.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace quillon {

enum class SortDirection { ascending, descending };

/// `rows`, positions in `records`, in the natural order of the values of one column, a name in upper case.
/// Rows with level values keep their order, and rows without a value come last in both directions.
std::vector<std::uint32_t> sortedByColumn(const tallyrig::ADIFRecordList& records,
                                          const std::vector<std::uint32_t>& rows, std::string_view column,
                                          SortDirection direction);

}  // namespace quillon
