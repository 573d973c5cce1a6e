// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFField.h"
#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Log/FieldTags.h"
#include "Tallyrig/Log/RecordStorage.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <span>
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
    void addField(FieldTags::Number tag, std::string_view value) {
        values.append(value.substr(0, longestValues - values.size()));
        entries.push_back({tag, static_cast<std::uint32_t>(values.size())});
    }
    void addField(std::string_view name, std::string_view value,
                  std::optional<std::string_view> type = std::nullopt) {
        addField(tag(name, type), value);
    }

    /// Neighbouring fields that come again in other records of the same log. Long values among them are
    /// stored once for all those records.
    struct Run {
        std::vector<RecordStorage::Entry> entries;
        std::string values;
    };
    /// Makes `run` the fields of the record at hand from the one at `firstField` on, at most `fieldCount()`.
    void copyFields(std::size_t firstField, Run& run);
    /// Adds all fields of a run of this builder. Cheaper than one by one.
    void addRun(const Run& run);

    /// Whether the record at hand has no fields.
    bool isEmpty() const { return entries.empty(); }
    std::size_t fieldCount() const { return entries.size(); }
    /// The fields of the record at hand by tag and by where their values end, and the bytes of all values.
    /// Good until the next change.
    std::span<const RecordStorage::Entry> entriesAtHand() const { return entries; }
    std::string_view valuesAtHand() const { return values; }
    /// Makes the record at hand one without fields.
    void dropFields();
    /// The record of the fields added since the last one, with fresh ids; the next begins without fields.
    ADIFRecord takeRecord();
    /// The same fields standing on their own, for a header.
    std::vector<ADIFField> takeFields();

  private:
    static constexpr std::size_t longestValues = std::numeric_limits<std::uint32_t>::max();

    void decodeValues();

    std::shared_ptr<FieldTags> tags;
    RecordAllocator allocator;
    std::vector<RecordStorage::Entry> entries;
    std::string values;
};

}  // namespace tallyrig
