// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Validation/ValidationKind.h"

#include "Tallyrig/Text/Text.h"

#include <algorithm>

namespace tallyrig {

namespace finding {

bool areEqual(std::string_view left, std::string_view right) {
    return text::equal(left, right);
}

bool areEqual(const std::vector<std::string>& left, const std::vector<std::string>& right) {
    return std::ranges::equal(left, right, text::equal);
}

bool areEqual(const OtherRecordNumbers& left, const OtherRecordNumbers& right) {
    return left == right;
}

std::size_t hashOf(std::string_view text) {
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
    // Not all of them: a group of many would be walked once for each of its members.
    const std::size_t size = numbers.size();
    return size == 0 ? 0 : (size * 31 + numbers[0]) * 31 + numbers[size - 1];
}

}  // namespace finding

ValidationSeverity severityOf(const ValidationKind& kind) {
    return std::visit([](const auto& payload) { return payload.severity; }, kind);
}

std::string_view nameOf(const ValidationKind& kind) {
    return std::visit([](const auto& payload) { return payload.name; }, kind);
}

}  // namespace tallyrig
