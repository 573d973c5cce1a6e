// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Log/PerTag.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tallyrig {

/// Picks out of record after record the fields that have one of many names, without comparing names record by
/// record.
///
/// What it learns of a log it keeps by address (`PerTag`): it must not outlive the document, nor serve
/// another one when that is gone.
class NamedFields {
  public:
    /// The position of a name is its index; of names that are equal in upper case that of the first.
    explicit NamedFields(std::span<const std::string> names);

    /// Absent if it is none of the names.
    std::optional<std::size_t> positionOf(std::string_view name) const;

    /// Calls `visit(position, value)` for each field of `record` that has one of the names, in their order.
    /// The values refer to the record. Cost: a look at each field.
    template <typename Visit>
    void visit(const ADIFRecord& record, Visit visit) {
        const RecordStorage& stored = record.stored();
        const std::size_t* const positionByTag = positions.of(
            stored.tags(), [this](const FieldTag& tag) { return positionOf(tag.name).value_or(none); });
        for (std::size_t field = 0; field < stored.fieldCount(); ++field) {
            if (const std::size_t position = positionByTag[stored.tagNumber(field)]; position != none) {
                visit(position, stored.value(field));
            }
        }
    }

  private:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    std::unordered_map<std::string, std::size_t>
        positionByKey;  ///< By canonical key of the upper-cased name.
    PerTag<std::size_t> positions;
};

}  // namespace tallyrig
