// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Log/PerTag.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tallyrig {

/// Finds the fields in which two records differ, for pair after pair of two logs.
///
/// What it learns of the logs it keeps by address (`PerTag`): it must not outlive them.
class FieldDifferences {
  public:
    using Number = std::uint32_t;

    /// `names` are those of all fields that any of the records has, different ones. Each is known by its
    /// position.
    explicit FieldDifferences(std::span<const std::string> names);

    /// The numbers of the fields whose values differ, letter case counting but not blanks around them. An
    /// absent field counts as empty, and of fields with one name the first. Ascending, good until the next
    /// call.
    std::span<const Number> between(const ADIFRecord& left, const ADIFRecord& right);

  private:
    /// What a tag says about a field: the number of its name, shifted, and in the lowest bit whether the
    /// value stands with the tag.
    using TagNumber = std::uint64_t;

    /// A name in the pair at hand.
    struct Place {
        std::uint64_t pair = 0;  ///< The last pair in which it was met.
        std::array<bool, 2> isThere{};
        std::array<std::string_view, 2> values;
    };

    TagNumber numberOf(const FieldTag& tag) const;
    void gather(const RecordStorage& record, const TagNumber* tags, std::size_t side);

    std::unordered_map<std::string, Number> numbers;  ///< By canonical key of the name.
    PerTag<TagNumber> leftTags;
    PerTag<TagNumber> rightTags;
    std::vector<Place> places;  ///< By number of the name.
    std::vector<Number> met;    ///< The names of the pair at hand.
    std::vector<Number> differing;
    std::uint64_t pairCount = 0;
};

}  // namespace tallyrig
