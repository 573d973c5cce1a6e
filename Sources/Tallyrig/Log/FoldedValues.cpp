// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/FoldedValues.h"

#include "Tallyrig/Text/Text.h"

namespace tallyrig {

namespace {

constexpr std::size_t longest = 64;
constexpr char separator = '\x1F';
/// Stands in front of a number. No text has this byte, as it is none of UTF-8.
constexpr char numberSign = '\xFF';

}  // namespace

std::string_view FoldedValues::piece(std::string_view value) {
    if (value.size() > longest) {
        const auto [place, isNew] = longValues.try_emplace(value.data());
        if (isNew) {
            place->second = shortened(text::canonicalKey(text::upper(value)));
        }
        return place->second;
    }
    std::string_view folded = text::upper(value, upperText);
    if (!text::isASCII(folded)) {
        folded = canonicalText = text::canonicalKey(folded);
    }
    // Upper case may be longer: "ß" becomes "SS".
    if (folded.size() > longest) {
        folded = canonicalText = shortened(folded);
    }
    return folded;
}

/// Each part between separators by itself: a separator in a value ends a part of the key as one between two
/// values does.
std::string FoldedValues::shortened(std::string_view folded) {
    std::string result;
    for (const std::string_view part : text::split(folded, separator)) {
        if (part.size() <= longest) {
            result += part;
        } else {
            const auto known = longTexts.try_emplace(std::string(part), longTexts.size()).first;
            result += numberSign + std::to_string(known->second);
        }
        result += separator;
    }
    result.pop_back();
    return result;
}

}  // namespace tallyrig
