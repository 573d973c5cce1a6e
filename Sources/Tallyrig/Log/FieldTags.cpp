#include "Tallyrig/Log/FieldTags.h"

#include "Tallyrig/Text/Text.h"

namespace tallyrig {

namespace {

/// Neither U+0000 nor U+0001 in front can be mistaken for the other case, whatever stands in the name: the
/// name's length comes first.
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
