#include "Tallyrig/Validation/RecordColumns.h"

#include "Tallyrig/Log/RecordSearch.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>

namespace tallyrig {

std::size_t RecordColumns::add(std::string_view name) {
    const std::string upperName = text::upper(name);
    const auto known =
        std::ranges::find_if(names, [&](const std::string& other) { return text::equal(other, upperName); });
    const auto column = static_cast<std::size_t>(known - names.begin());
    if (known == names.end()) {
        names.push_back(upperName);
        values.emplace_back();
    }
    return column;
}

void RecordColumns::read(const ADIFRecord& record) {
    std::ranges::fill(values, std::string_view());
    const RecordStorage& stored = record.stored();
    const std::size_t* const columnByTag =
        columns.of(stored.tags(), [this](const FieldTag& tag) { return columnOf(tag); });
    for (std::size_t index = 0; index < stored.fieldCount(); ++index) {
        const std::size_t column = columnByTag[stored.tagNumber(index)];
        if (column < values.size() && values[column].data() == nullptr) {
            values[column] = text::trimmed(stored.value(index));
        }
    }
}

std::size_t RecordColumns::columnOf(const FieldTag& tag) const {
    const auto found =
        std::ranges::find_if(names, [&](const std::string& name) { return isNamed(tag, name); });
    return static_cast<std::size_t>(found - names.begin());
}

}  // namespace tallyrig
