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
        values.emplace_back();
    }
    return index;
}

void RecordValues::read(const ADIFRecord& record) {
    std::ranges::fill(values, std::nullopt);
    const RecordStorage& stored = record.stored();
    const std::size_t* const indexByTag =
        indices.of(stored.tags(), [this](const FieldTag& tag) { return indexOf(tag); });
    std::size_t missing = values.size();
    for (std::size_t field = 0; field < stored.fieldCount() && missing > 0; ++field) {
        const std::size_t index = indexByTag[stored.tagNumber(field)];
        if (index < values.size() && !values[index]) {
            values[index] = stored.value(field);
            --missing;
        }
    }
}

std::size_t RecordValues::indexOf(const FieldTag& tag) const {
    const auto found =
        std::ranges::find_if(names, [&](const std::string& name) { return text::equal(tag.name, name); });
    return static_cast<std::size_t>(found - names.begin());
}

}  // namespace tallyrig
