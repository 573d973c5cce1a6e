// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecordList.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tallyrig {

/// The positions of the records that agree in all of these fields, trimmed and in upper case: groups of two
/// or more, each ascending, in the order of their first records. A record in which one of the fields is
/// missing or empty is in no group. Without key fields all records agree.
std::vector<std::vector<std::size_t>> duplicateGroups(const ADIFRecordList& records,
                                                      const std::vector<std::string>& keyFields);

}  // namespace tallyrig
