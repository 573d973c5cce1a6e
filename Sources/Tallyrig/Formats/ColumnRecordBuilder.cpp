// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/ColumnRecordBuilder.h"

#include "Tallyrig/Formats/LogLines.h"
#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

namespace tallyrig {

void ColumnRecordBuilder::addUpper(FieldTags::Number tag, std::string_view column) {
    std::string buffer;
    addColumn(tag, text::upper(column, buffer));
}

void ColumnRecordBuilder::addTime(FieldTags::Number tag, std::string_view column) {
    if (column.size() == 4 && std::ranges::all_of(column, text::isASCIIDigit)) {
        const std::array<char, 6> time = {column[0], column[1], column[2], column[3], '0', '0'};
        addField(tag, {time.data(), time.size()});
    } else {
        addColumn(tag, timeOfColumn(column));
    }
}

void ColumnRecordBuilder::addSerial(FieldTags::Number tag, std::string_view column) {
    constexpr std::size_t mostDigits = 18;
    if (column.size() <= mostDigits && std::ranges::all_of(column, text::isASCIIDigit)) {
        const std::size_t zeros = std::min(column.find_first_not_of('0'), column.size());
        addColumn(tag, zeros == column.size() && zeros > 0 ? "0" : column.substr(zeros));
    } else {
        addColumn(tag, std::to_string(text::integer(column).value_or(0)));
    }
}

}  // namespace tallyrig
