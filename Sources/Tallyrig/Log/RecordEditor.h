// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Log/FieldTags.h"
#include "Tallyrig/Log/RecordSearch.h"
#include "Tallyrig/Log/RecordStorage.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace tallyrig {

/// Changes records by laying down new ones. One editor serves a whole column of them: the changed records
/// then share the names that were added, as those did that were read together.
///
/// Each operation gives the changed record, with the id of the one given, or nothing where that stays as it
/// is. An `index` is below the number of the record's fields.
class RecordEditor {
  public:
    ADIFRecord setValue(const ADIFRecord& record, const FieldName& name, std::string_view value);
    std::optional<ADIFRecord> rename(const ADIFRecord& record, const FieldName& from, const FieldName& to);
    std::optional<ADIFRecord> duplicate(const ADIFRecord& record, const FieldName& name, const FieldName& as);
    std::optional<ADIFRecord> remove(const ADIFRecord& record, const FieldName& name);

    ADIFRecord withValueAt(const ADIFRecord& record, std::size_t index, std::string_view value);
    ADIFRecord withField(const ADIFRecord& record, const ADIFField& field);
    ADIFRecord withoutFieldAt(const ADIFRecord& record, std::size_t index);
    ADIFRecord make(std::span<const ADIFField> fields, UUID id);

  private:
    void take(const ADIFRecord& record);
    FieldTags::Number tag(std::string_view name, std::optional<std::string_view> type,
                          const FieldTags::Value& sharedValue = {});
    void giveValue(FieldDraft& draft, std::string_view value);
    ADIFRecord laidDown(UUID id);

    RecordAllocator allocator;
    std::vector<FieldDraft> drafts;             ///< The record at hand.
    std::shared_ptr<const FieldTags> tags;      ///< Its tags, with what was added to them.
    std::shared_ptr<const FieldTags> extended;  ///< The tags that were last found wanting.
    std::shared_ptr<FieldTags> extension;       ///< Their copy, to which this editor adds.
};

}  // namespace tallyrig
