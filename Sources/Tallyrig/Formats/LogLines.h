// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

/// What the readers and writers of the line-by-line contest formats, Cabrillo and EDI, have in common.
namespace tallyrig {

/// The numeric characters of a time column, with the seconds "00" behind four.
std::string timeOfColumn(std::string_view column);

/// The records by the text of `QSO_DATE` and `TIME_ON` together, an absent field counting as empty. Those of
/// one moment keep the order of the log.
std::vector<ADIFRecord> inTimeOrder(const ADIFRecordList& records);

/// The first value in the log that is not empty: record by record, in each `record[name]` for one name after
/// the other. Empty if there is none. Refers to the document.
std::string_view firstValue(const ADIFDocument& document, std::initializer_list<std::string_view> names);

}  // namespace tallyrig
