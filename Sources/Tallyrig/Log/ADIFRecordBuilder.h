#pragma once

#include "Tallyrig/Log/ADIFField.h"
#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Log/FieldTags.h"
#include "Tallyrig/Log/RecordStorage.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// Makes the records of one log, field by field, so that they share their names and lie close together in
/// memory. This is what a reader uses; a record made by `ADIFRecord`'s constructor is the same, only by
/// itself.
class ADIFRecordBuilder {
  public:
    ADIFRecordBuilder();

    /// The number by which `addField` knows this name (upper-cased here) and type.
    FieldTags::Number tag(std::string_view name, std::optional<std::string_view> type = std::nullopt);

    /// Adds a field to the record at hand. A value that is no well-formed UTF-8 is taken as ISO 8859-1.
    void addField(FieldTags::Number tag, std::string_view value);
    void addField(std::string_view name, std::string_view value,
                  std::optional<std::string_view> type = std::nullopt) {
        addField(tag(name, type), value);
    }

    /// Whether the record at hand has no fields.
    bool isEmpty() const { return tagNumbers.empty(); }
    std::size_t fieldCount() const { return tagNumbers.size(); }
    /// The record of the fields added since the last one, with fresh ids; the next begins without fields.
    ADIFRecord takeRecord();
    /// The same fields standing on their own, for a header.
    std::vector<ADIFField> takeFields();

  private:
    void decodeValues();
    void clear();

    std::shared_ptr<FieldTags> tags;
    RecordAllocator allocator;
    std::vector<FieldTags::Number> tagNumbers;
    std::vector<std::uint32_t> valueEnds;
    std::string values;
};

}  // namespace tallyrig
