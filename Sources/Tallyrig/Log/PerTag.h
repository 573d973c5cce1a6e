// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/FieldTags.h"

#include <cstddef>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tallyrig {

/// What a pass over a log has to know of each tag, worked out once for each table of tags instead of once for
/// each field. The records of a log share one table, or a few after it was edited; a log put together from
/// single records has as many as records, so only so many are kept.
///
/// Tables are known by their address, so that one that is gone may be mistaken for another: this must not
/// outlive the document whose records it was asked about, and belongs to one thread.
template <typename Knowledge>
class PerTag {
  public:
    /// What `workOut` gives for each tag of the table, by tag number. Good until the next call.
    template <typename WorkOut>
    const Knowledge* of(const FieldTags& tags, WorkOut workOut) {
        if (&tags != currentTags) {
            if (tables.size() >= mostTables) {
                tables.clear();
            }
            const auto [entry, isNew] = tables.try_emplace(&tags);
            if (isNew) {
                entry->second.reserve(tags.size());
                for (std::size_t number = 0; number < tags.size(); ++number) {
                    entry->second.push_back(workOut(tags[static_cast<FieldTags::Number>(number)]));
                }
            }
            currentTags = &tags;
            current = entry->second.data();
        }
        return current;
    }

  private:
    static constexpr std::size_t mostTables = 64;

    std::unordered_map<const FieldTags*, std::vector<Knowledge>> tables;
    const FieldTags* currentTags = nullptr;
    const Knowledge* current = nullptr;
};

}  // namespace tallyrig
