#include "Tallyrig/Log/ADIFRecordBuilder.h"

#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Text.h"

#include <utility>

namespace tallyrig {

ADIFRecordBuilder::ADIFRecordBuilder() : tags(std::make_shared<FieldTags>()) {}

FieldTags::Number ADIFRecordBuilder::tag(std::string_view name, std::optional<std::string_view> type) {
    return tags->add(text::upper(name), type);
}

void ADIFRecordBuilder::copyFields(std::size_t firstField, Run& run) const {
    const std::uint32_t begin = firstField == 0 ? 0 : entries[firstField - 1].end;
    run.values.assign(values, begin);
    run.entries.assign(entries.begin() + static_cast<std::ptrdiff_t>(firstField), entries.end());
    for (RecordStorage::Entry& entry : run.entries) {
        entry.end -= begin;
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
