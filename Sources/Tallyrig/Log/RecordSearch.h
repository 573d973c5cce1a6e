#pragma once

#include "Tallyrig/Log/RecordStorage.h"
#include "Tallyrig/Text/Text.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace tallyrig {

/// Whether the stored name of `tag` is `name`, which is in upper case already.
inline bool isNamed(const FieldTag& tag, std::string_view name) {
    return tag.name == name || (!tag.hasASCIIName && text::equal(tag.name, name));
}

/// The index of the first field called `name`, which is in upper case already; absent if there is none.
inline std::optional<std::size_t> indexOfField(const RecordStorage& record, std::string_view name) {
    const FieldTags& tags = record.tags();
    for (std::size_t index = 0; index < record.fieldCount(); ++index) {
        if (isNamed(tags[record.tagNumber(index)], name)) {
            return index;
        }
    }
    return std::nullopt;
}

}  // namespace tallyrig
