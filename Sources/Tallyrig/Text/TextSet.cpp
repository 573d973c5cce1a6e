// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Text/TextSet.h"

#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <utility>

namespace tallyrig {

namespace {

std::vector<std::string> upperCased(std::span<const std::string_view> texts) {
    std::vector<std::string> result;
    for (const std::string_view text : texts) {
        result.push_back(text::upper(text));
    }
    return result;
}

}  // namespace

TextSet::TextSet(std::initializer_list<std::string_view> texts)
    : TextSet(std::span(texts.begin(), texts.size())) {}

TextSet::TextSet(std::span<const std::string_view> texts)
    : TextSet(std::vector<std::string>(texts.begin(), texts.end())) {}

TextSet::TextSet(std::vector<std::string> texts) : members(std::move(texts)) {
    for (std::string& text : members) {
        text = text::canonicalKey(text);
    }
    std::ranges::sort(members);
    members.erase(std::unique(members.begin(), members.end()), members.end());
}

bool TextSet::contains(std::string_view text) const {
    return text::isASCII(text) ? std::ranges::binary_search(members, text)
                               : std::ranges::binary_search(members, text::canonicalKey(text));
}

UpperTextSet::UpperTextSet(std::initializer_list<std::string_view> texts)
    : UpperTextSet(std::span(texts.begin(), texts.size())) {}

UpperTextSet::UpperTextSet(std::span<const std::string_view> texts) : TextSet(upperCased(texts)) {}

}  // namespace tallyrig
