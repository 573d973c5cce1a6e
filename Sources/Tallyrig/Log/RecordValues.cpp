// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/RecordValues.h"

#include <algorithm>

namespace tallyrig {

RecordValues::RecordValues(std::initializer_list<std::string_view> fieldNames) {
    for (const std::string_view name : fieldNames) {
        add(name);
    }
}

std::size_t RecordValues::add(std::string_view name) {
    const std::string upperName = text::upper(name);
    const auto known =
        std::ranges::find_if(names, [&](const std::string& other) { return text::equal(other, upperName); });
    const auto index = static_cast<std::size_t>(known - names.begin());
    if (known == names.end()) {
        names.push_back(upperName);
    }
    return index;
}

void RecordValues::read(const ADIFRecord& record) {
    stored = &record.stored();
    Shape& shape = shapes[stored->fieldCount() % shapes.size()];
    if (!shape.isOf(*stored)) {
        learn(shape, *stored);
    }
    positions = shape.positions.data();
}

bool RecordValues::Shape::isOf(const RecordStorage& record) const {
    if (&record.tags() != tags || record.fieldCount() < tagNumbers.size() ||
        (isWhole && record.fieldCount() > tagNumbers.size())) {
        return false;
    }
    // Without a branch for each field: mostly all are compared.
    FieldTags::Number difference = 0;
    for (std::size_t field = 0; field < tagNumbers.size(); ++field) {
        difference |= record.tagNumber(field) ^ tagNumbers[field];
    }
    return difference == 0;
}

void RecordValues::learn(Shape& shape, const RecordStorage& record) {
    const std::size_t* const indexByTag =
        indices.of(record.tags(), [this](const FieldTag& tag) { return indexOf(tag); });
    shape.tags = &record.tags();
    shape.tagNumbers.clear();
    shape.positions.assign(names.size(), absent);
    std::size_t missing = names.size();
    for (std::size_t field = 0; field < record.fieldCount() && missing > 0; ++field) {
        const FieldTags::Number tag = record.tagNumber(field);
        shape.tagNumbers.push_back(tag);
        const std::size_t index = indexByTag[tag];
        if (index < names.size() && shape.positions[index] == absent) {
            shape.positions[index] = static_cast<Position>(field);
            --missing;
        }
    }
    shape.isWhole = missing > 0;
}

std::size_t RecordValues::indexOf(const FieldTag& tag) const {
    const auto found =
        std::ranges::find_if(names, [&](const std::string& name) { return text::equal(tag.name, name); });
    return static_cast<std::size_t>(found - names.begin());
}

}  // namespace tallyrig
