#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/ADIFRecord.h"

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace tallyrig::testing {

using Pairs = std::vector<std::pair<std::string, std::string>>;

/// A record of names and values, without types.
inline ADIFRecord record(const Pairs& pairs) {
    std::vector<ADIFField> fields;
    for (const auto& [name, value] : pairs) {
        fields.emplace_back(name, value);
    }
    return ADIFRecord(fields);
}

inline ADIFDocument document(const std::vector<Pairs>& records) {
    std::vector<ADIFRecord> list;
    for (const Pairs& pairs : records) {
        list.push_back(record(pairs));
    }
    return {"", {}, ADIFRecordList(std::move(list))};
}

/// The names and values of a record in their order.
inline Pairs pairs(const ADIFRecord& record) {
    Pairs result;
    for (const ADIFFieldView& field : record.fields()) {
        result.emplace_back(field.name, field.value);
    }
    return result;
}

/// The same of all records.
inline std::vector<Pairs> pairs(const ADIFDocument& document) {
    std::vector<Pairs> result;
    for (const ADIFRecord& record : document.records()) {
        result.push_back(pairs(record));
    }
    return result;
}

}  // namespace tallyrig::testing
