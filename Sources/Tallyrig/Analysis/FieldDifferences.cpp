// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Analysis/FieldDifferences.h"

#include "Tallyrig/Text/Text.h"

#include <algorithm>

namespace tallyrig {

namespace {

constexpr std::uint64_t valueStandsWithTag = 1;

/// Whether both have fields of the same names in the same order with the same bytes in them, as nearly all
/// pairs do. False also where a value stands with its tag, which is not looked at.
bool haveSameFields(const RecordStorage& left, const std::uint64_t* leftTags, const RecordStorage& right,
                    const std::uint64_t* rightTags) {
    if (left.fieldCount() != right.fieldCount() || left.allValues().size() != right.allValues().size()) {
        return false;
    }
    // Without a branch for each field: mostly all are compared.
    std::uint64_t unlike = 0;
    for (std::size_t field = 0; field < left.fieldCount(); ++field) {
        const std::uint64_t leftTag = leftTags[left.tagNumber(field)];
        unlike |= (leftTag ^ rightTags[right.tagNumber(field)]) | (leftTag & valueStandsWithTag) |
                  (left.ownValue(field).size() ^ right.ownValue(field).size());
    }
    return unlike == 0 && left.allValues() == right.allValues();
}

bool haveSameValue(std::string_view left, std::string_view right) {
    return (left.data() == right.data() && left.size() == right.size()) ||
           text::equal(text::trimmedOfBlanks(left), text::trimmedOfBlanks(right));
}

}  // namespace

FieldDifferences::FieldDifferences(std::span<const std::string> names) : places(names.size()) {
    for (const std::string& name : names) {
        numbers.try_emplace(text::canonicalKey(name), static_cast<Number>(numbers.size()));
    }
}

/// A table of tags may have some that no record uses any more; of those nothing is asked.
FieldDifferences::TagNumber FieldDifferences::numberOf(const FieldTag& tag) const {
    const auto found = numbers.find(text::canonicalKey(tag.name));
    const TagNumber number = found == numbers.end() ? TagNumber{places.size()} : TagNumber{found->second};
    return number << 1U | (tag.sharedValue ? valueStandsWithTag : 0);
}

std::span<const FieldDifferences::Number> FieldDifferences::between(const ADIFRecord& left,
                                                                    const ADIFRecord& right) {
    const auto work = [this](const FieldTag& tag) { return numberOf(tag); };
    const TagNumber* const leftNumbers = leftTags.of(left.stored().tags(), work);
    const TagNumber* const rightNumbers = rightTags.of(right.stored().tags(), work);
    differing.clear();
    if (left.isSameAs(right) || haveSameFields(left.stored(), leftNumbers, right.stored(), rightNumbers)) {
        return differing;
    }
    ++pairCount;
    met.clear();
    gather(left.stored(), leftNumbers, 0);
    gather(right.stored(), rightNumbers, 1);
    for (const Number number : met) {
        const auto& values = places[number].values;
        if (!haveSameValue(values[0], values[1])) {
            differing.push_back(number);
        }
    }
    std::ranges::sort(differing);
    return differing;
}

void FieldDifferences::gather(const RecordStorage& record, const TagNumber* tags, std::size_t side) {
    for (std::size_t field = 0; field < record.fieldCount(); ++field) {
        const auto number = static_cast<Number>(tags[record.tagNumber(field)] >> 1U);
        Place& place = places[number];
        if (place.pair != pairCount) {
            place = {pairCount, {}, {}};
            met.push_back(number);
        }
        if (!place.isThere[side]) {
            place.isThere[side] = true;
            place.values[side] = record.value(field);
        }
    }
}

}  // namespace tallyrig
