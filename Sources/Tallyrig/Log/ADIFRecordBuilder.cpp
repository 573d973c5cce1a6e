#include "Tallyrig/Log/ADIFRecordBuilder.h"

#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Text.h"

#include <limits>
#include <utility>

namespace tallyrig {

namespace {

constexpr std::size_t longestValues = std::numeric_limits<std::uint32_t>::max();

}  // namespace

ADIFRecordBuilder::ADIFRecordBuilder() : tags(std::make_shared<FieldTags>()) {}

FieldTags::Number ADIFRecordBuilder::tag(std::string_view name, std::optional<std::string_view> type) {
    return tags->add(text::upper(name), type);
}

void ADIFRecordBuilder::addField(FieldTags::Number tag, std::string_view value) {
    values.append(value.substr(0, longestValues - values.size()));
    tagNumbers.push_back(tag);
    valueEnds.push_back(static_cast<std::uint32_t>(values.size()));
}

ADIFRecord ADIFRecordBuilder::takeRecord() {
    // One look at the whole record: nearly all are ASCII.
    if (!text::isASCII(values)) {
        decodeValues();
    }
    const UUID id = UUID::freshRun(tagNumbers.size() + 1);
    ADIFRecord record(allocator.allocate(id, tagNumbers, valueEnds, values, tags));
    clear();
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
    for (std::uint32_t& end : valueEnds) {
        const std::string_view value(bytes.data() + begin, end - begin);
        begin = end;
        values += text::decoded(value);
        if (values.size() > longestValues) {
            values.resize(longestValues);
        }
        end = static_cast<std::uint32_t>(values.size());
    }
}

void ADIFRecordBuilder::clear() {
    tagNumbers.clear();
    valueEnds.clear();
    values.clear();
}

}  // namespace tallyrig
