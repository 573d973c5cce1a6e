// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/FieldTags.h"

#include "Tallyrig/Text/Text.h"

#include <functional>

namespace tallyrig {

FieldTags::FieldTags(const FieldTags& other) : tags(other.tags) {
    numbers.reserve(tags.size());
    for (std::size_t number = 0; number < tags.size(); ++number) {
        numbers.insert(static_cast<Number>(number));
    }
}

FieldTags::Key FieldTags::keyOf(const FieldTag& tag) {
    return {tag.name, tag.type ? std::optional<std::string_view>(*tag.type) : std::nullopt,
            tag.sharedValue.get()};
}

std::size_t FieldTags::Hash::operator()(const Key& key) const {
    const std::hash<std::string_view> hash;
    return hash(key.name) ^ (hash(key.type.value_or("-")) * 31) ^
           std::hash<const std::string*>()(key.sharedValue);
}

FieldTags::Number FieldTags::add(std::string_view name, std::optional<std::string_view> type,
                                 const Value& sharedValue) {
    if (const auto known = find(name, type, sharedValue)) {
        return *known;
    }
    const auto number = static_cast<Number>(tags.size());
    tags.push_back({std::string(name), type ? std::optional(std::string(*type)) : std::nullopt, sharedValue,
                    text::isASCII(name)});
    numbers.insert(number);
    return number;
}

std::optional<FieldTags::Number> FieldTags::find(std::string_view name, std::optional<std::string_view> type,
                                                 const Value& sharedValue) const {
    const auto found = numbers.find(Key{name, type, sharedValue.get()});
    return found == numbers.end() ? std::nullopt : std::optional(*found);
}

}  // namespace tallyrig
