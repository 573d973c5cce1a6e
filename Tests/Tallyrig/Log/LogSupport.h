// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/ADIFRecord.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyrig::testing {

using Pairs = std::vector<std::pair<std::string, std::string>>;

/// Names and values from "NAME=value | NAME=value".
inline Pairs fields(std::string_view text) {
    constexpr std::string_view separator = " | ";
    Pairs result;
    while (!text.empty()) {
        const std::string_view field = text.substr(0, text.find(separator));
        const std::size_t equals = field.find('=');
        result.emplace_back(field.substr(0, equals), field.substr(equals + 1));
        text.remove_prefix(std::min(text.size(), field.size() + separator.size()));
    }
    return result;
}

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

/// The same from one text each, as of `fields`.
inline ADIFRecord recordOf(std::string_view text) {
    return record(fields(text));
}

inline ADIFDocument logOf(std::initializer_list<std::string_view> texts) {
    std::vector<Pairs> records;
    for (const std::string_view text : texts) {
        records.push_back(fields(text));
    }
    return document(records);
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
