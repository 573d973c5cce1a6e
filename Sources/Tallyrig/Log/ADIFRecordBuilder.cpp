// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADIFRecordBuilder.h"

#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Text.h"

#include <utility>

namespace tallyrig {

ADIFRecordBuilder::ADIFRecordBuilder() : tags(std::make_shared<FieldTags>()) {}

FieldTags::Number ADIFRecordBuilder::tag(std::string_view name, std::optional<std::string_view> type) {
    return tags->add(text::upper(name), type);
}

void ADIFRecordBuilder::copyFields(std::size_t firstField, Run& run) {
    // As much as what a log usually says of all its QSOs; beyond that a few bytes of a line could stand for
    // any number of them.
    constexpr std::size_t longestCopy = 64;
    run.entries.clear();
    run.values.clear();
    std::uint32_t begin = firstField == 0 ? 0 : entries[firstField - 1].end;
    for (std::size_t index = firstField; index < entries.size(); ++index) {
        const std::string_view value(values.data() + begin, entries[index].end - begin);
        begin = entries[index].end;
        FieldTags::Number number = entries[index].tag;
        if (run.values.size() + value.size() <= longestCopy) {
            run.values += value;
        } else {
            const FieldTag& own = (*tags)[number];
            number = tags->add(own.name, own.type, std::make_shared<const std::string>(text::decoded(value)));
        }
        run.entries.push_back({number, static_cast<std::uint32_t>(run.values.size())});
    }
}

void ADIFRecordBuilder::addRun(const Run& run) {
    if (run.values.size() > longestValues - values.size()) {
        std::uint32_t begin = 0;
        for (const RecordStorage::Entry& entry : run.entries) {
            addField(entry.tag, {run.values.data() + begin, entry.end - begin});
            begin = entry.end;
        }
        return;
    }
    const auto before = static_cast<std::uint32_t>(values.size());
    for (const RecordStorage::Entry& entry : run.entries) {
        entries.push_back({entry.tag, before + entry.end});
    }
    values += run.values;
}

ADIFRecord ADIFRecordBuilder::takeRecord() {
    // One look at the whole record: nearly all are ASCII.
    if (!text::isASCII(values)) {
        decodeValues();
    }
    const UUID id = UUID::freshRun(entries.size() + 1);
    ADIFRecord record(allocator.allocate(id, entries, values, tags));
    dropFields();
    return record;
}

std::vector<ADIFField> ADIFRecordBuilder::takeFields() {
    std::vector<ADIFField> fields;
    const ADIFRecord record = takeRecord();
    for (const ADIFFieldView& field : record.fields()) {
        fields.push_back(field.field());
    }
    return fields;
}

void ADIFRecordBuilder::decodeValues() {
    const std::string bytes = std::exchange(values, {});
    std::size_t begin = 0;
    for (RecordStorage::Entry& entry : entries) {
        const std::string_view value(bytes.data() + begin, entry.end - begin);
        begin = entry.end;
        values += text::decoded(value);
        if (values.size() > longestValues) {
            values.resize(longestValues);
        }
        entry.end = static_cast<std::uint32_t>(values.size());
    }
}

void ADIFRecordBuilder::dropFields() {
    entries.clear();
    values.clear();
}

}  // namespace tallyrig
