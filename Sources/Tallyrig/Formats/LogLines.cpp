// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/LogLines.h"

#include "Tallyrig/Log/RecordValues.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <utility>

namespace tallyrig {

namespace {

struct TimedRecord {
    std::string time;
    const ADIFRecord* record = nullptr;
};

}  // namespace

std::string timeOfColumn(std::string_view column) {
    std::string digits = text::numericCharacters(column);
    if (text::hasLength(digits, 4)) {
        digits += "00";
    }
    return digits;
}

std::vector<ADIFRecord> inTimeOrder(const ADIFRecordList& records) {
    std::vector<TimedRecord> timed;
    timed.reserve(records.size());
    RecordValues values({"QSO_DATE", "TIME_ON"});
    for (const ADIFRecord& record : records) {
        values.read(record);
        std::string time(values.valueOrEmpty(0));
        time += values.valueOrEmpty(1);
        if (!text::isASCII(time)) {
            time = text::canonicalKey(time);
        }
        timed.push_back({std::move(time), &record});
    }
    // The bytes of UTF-8 stand in the order of its code points.
    std::ranges::stable_sort(timed, {}, &TimedRecord::time);
    std::vector<ADIFRecord> sorted;
    sorted.reserve(timed.size());
    for (const TimedRecord& entry : timed) {
        sorted.push_back(*entry.record);
    }
    return sorted;
}

std::string_view firstValue(const ADIFDocument& document, std::initializer_list<std::string_view> names) {
    for (const ADIFRecord& record : document.records()) {
        for (const std::string_view name : names) {
            const std::string_view value = record.valueOrEmpty(name);
            if (!value.empty()) {
                return value;
            }
        }
    }
    return {};
}

}  // namespace tallyrig
