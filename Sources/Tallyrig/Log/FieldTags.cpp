#include "Tallyrig/Log/FieldTags.h"

#include "Tallyrig/Text/Text.h"

namespace tallyrig {

namespace {

/// One text for a name and a type that no other two have: the name's length in front says where it ends,
/// whatever stands in it, and the letter behind whether there is a type.
std::string key(std::string_view name, std::optional<std::string_view> type) {
    std::string text = std::to_string(name.size());
    text += type ? 't' : 'n';
    text += name;
    text += type.value_or(std::string_view());
    return text;
}

}  // namespace

FieldTags::FieldTags(const FieldTags& other) : tags(other.tags), numbers(other.numbers) {}

FieldTags::Number FieldTags::add(std::string_view name, std::optional<std::string_view> type) {
    const auto [found, isNew] = numbers.try_emplace(key(name, type), static_cast<Number>(tags.size()));
    if (isNew) {
        tags.push_back({std::string(name), type ? std::optional(std::string(*type)) : std::nullopt,
                        text::isASCII(name)});
    }
    return found->second;
}

std::optional<FieldTags::Number> FieldTags::find(std::string_view name,
                                                 std::optional<std::string_view> type) const {
    const auto found = numbers.find(key(name, type));
    return found == numbers.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace tallyrig
