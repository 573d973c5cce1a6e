#include "Tallyrig/Formats/RecordValues.h"

#include "Tallyrig/Log/RecordSearch.h"

#include <algorithm>

namespace tallyrig {

RecordValues::RecordValues(std::initializer_list<std::string_view> upperNames)
    : names(upperNames), values(upperNames.size()) {}

void RecordValues::read(const ADIFRecord& record) {
    std::ranges::fill(values, std::nullopt);
    const RecordStorage& stored = record.stored();
    const std::size_t* const indexByTag =
        indices.of(stored.tags(), [this](const FieldTag& tag) { return indexOf(tag); });
    for (std::size_t field = 0; field < stored.fieldCount(); ++field) {
        const std::size_t index = indexByTag[stored.tagNumber(field)];
        if (index < values.size() && !values[index]) {
            values[index] = stored.value(field);
        }
    }
}

std::size_t RecordValues::indexOf(const FieldTag& tag) const {
    const auto found = std::ranges::find_if(names, [&](std::string_view name) { return isNamed(tag, name); });
    return static_cast<std::size_t>(found - names.begin());
}

}  // namespace tallyrig
