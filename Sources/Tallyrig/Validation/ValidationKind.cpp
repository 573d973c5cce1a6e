#include "Tallyrig/Validation/ValidationKind.h"

#include "Tallyrig/Text/Text.h"

#include <algorithm>

namespace tallyrig {

namespace finding {

bool areEqual(const std::string& left, const std::string& right) {
    return text::equal(left, right);
}

bool areEqual(const std::vector<std::string>& left, const std::vector<std::string>& right) {
    return std::ranges::equal(left, right, text::equal);
}

bool areEqual(const OtherRecordNumbers& left, const OtherRecordNumbers& right) {
    return left == right;
}

std::size_t hashOf(const std::string& text) {
    return std::hash<std::string>()(text::canonicalKey(text));
}

std::size_t hashOf(const std::vector<std::string>& texts) {
    std::size_t hash = texts.size();
    for (const std::string& text : texts) {
        hash = hash * 31 + hashOf(text);
    }
    return hash;
}

std::size_t hashOf(const OtherRecordNumbers& numbers) {
    std::size_t hash = numbers.size();
    for (const std::size_t number : numbers) {
        hash = hash * 31 + number;
    }
    return hash;
}

}  // namespace finding

ValidationSeverity severityOf(const ValidationKind& kind) {
    return std::visit([](const auto& payload) { return payload.severity; }, kind);
}

std::string_view nameOf(const ValidationKind& kind) {
    return std::visit([](const auto& payload) { return payload.name; }, kind);
}

}  // namespace tallyrig
