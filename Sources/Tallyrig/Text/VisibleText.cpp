// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Text/VisibleText.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace tallyrig::text {

namespace {

/// What is not ASCII and has a sign of its own.
constexpr std::array<std::pair<std::string_view, std::string_view>, 14> signs = {{
    {"\u061C", "⟨ALM⟩"},
    {"\u200E", "⟨LRM⟩"},
    {"\u200F", "⟨RLM⟩"},
    {"\u2028", "⏎"},
    {"\u2029", "⏎"},
    {"\u202A", "⟨LRE⟩"},
    {"\u202B", "⟨RLE⟩"},
    {"\u202C", "⟨PDF⟩"},
    {"\u202D", "⟨LRO⟩"},
    {"\u202E", "⟨RLO⟩"},
    {"\u2066", "⟨LRI⟩"},
    {"\u2067", "⟨RLI⟩"},
    {"\u2068", "⟨FSI⟩"},
    {"\u2069", "⟨PDI⟩"},
}};

constexpr char firstOfHigherControls = '\xC2';

/// Whether a character that has a sign may begin with `byte`.
bool mayNeedSign(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return code < 0x20 || code == 0x7F || byte == firstOfHigherControls || byte == '\xD8' || byte == '\xE2';
}

/// Appends the sign for the character at the front of `text`, if it needs one, and returns how many bytes it
/// stands for, otherwise 0.
std::size_t appendSign(std::string& shown, std::string_view text) {
    const auto code = static_cast<unsigned char>(text.front());
    if (text.starts_with("\r\n") || code == '\n') {
        shown += "⏎";
        return code == '\n' ? 1 : 2;
    }
    if (code < 0x20) {
        // U+2400 and on are the pictures of the control characters, in their order.
        shown += {'\xE2', '\x90', static_cast<char>(0x80 + code)};
        return 1;
    }
    if (code == 0x7F) {
        shown += "\u2421";
        return 1;
    }
    if (text.size() > 1 && text[0] == firstOfHigherControls && static_cast<unsigned char>(text[1]) < 0xA0) {
        shown += "\uFFFD";
        return 2;
    }
    const auto* const sign =
        std::ranges::find_if(signs, [text](const auto& entry) { return text.starts_with(entry.first); });
    if (sign == signs.end()) {
        return 0;
    }
    shown += sign->second;
    return sign->first.size();
}

/// Whether the character is written from right to left, as the letters of Hebrew and Arabic are.
bool isRightToLeft(UChar32 character) {
    const UCharDirection direction = u_charDirection(character);
    return direction == U_RIGHT_TO_LEFT || direction == U_RIGHT_TO_LEFT_ARABIC;
}

/// Words that are written from right to left stand by themselves and leave the order of what is around them.
std::string withIsolatedWords(const std::string& text) {
    constexpr char leastLeadByte = '\xD6';  // Of the first letter that is written so, U+05BE.
    if (std::ranges::none_of(text, [](char byte) {
            return static_cast<unsigned char>(byte) >= static_cast<unsigned char>(leastLeadByte);
        })) {
        return text;
    }
    std::string isolated;
    std::size_t copied = 0;
    std::size_t wordsEnd = 0;  ///< Behind the last such letter of the words begun; 0 outside of any.
    const auto endWords = [&] {
        if (wordsEnd > 0) {
            isolated.append(text, copied, wordsEnd - copied) += "\u2069";
            copied = std::exchange(wordsEnd, 0);
        }
    };
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        UChar32 character = 0;
        U8_NEXT(bytes, position, text.size(), character);
        if (character >= 0 && isRightToLeft(character)) {
            if (wordsEnd == 0) {
                isolated.append(text, copied, start - copied) += "\u2068";
                copied = start;
            }
            wordsEnd = position;
        } else if (character >= 0 && u_charDirection(character) == U_LEFT_TO_RIGHT) {
            endWords();
        }
    }
    endWords();
    return isolated.append(text, copied);
}

}  // namespace

bool holdsUnseen(std::string_view text) {
    std::string sign;
    while (!text.empty() && sign.empty()) {
        const auto* const doubtful = std::ranges::find_if(text, mayNeedSign);
        text.remove_prefix(static_cast<std::size_t>(doubtful - text.begin()));
        if (!text.empty()) {
            text.remove_prefix(std::max<std::size_t>(1, appendSign(sign, text)));
        }
    }
    return !sign.empty();
}

std::string visibleText(std::string_view text) {
    std::string shown;
    while (!text.empty()) {
        const auto* const doubtful = std::ranges::find_if(text, mayNeedSign);
        shown.append(text.begin(), doubtful);
        text.remove_prefix(static_cast<std::size_t>(doubtful - text.begin()));
        if (text.empty()) {
            break;
        }
        std::size_t length = appendSign(shown, text);
        if (length == 0) {
            shown += text.front();
            length = 1;
        }
        text.remove_prefix(length);
    }
    return withIsolatedWords(shown);
}

std::string visibleBytes(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string shown;
    std::size_t begin = 0;  ///< Of the text up to the next byte that is none.
    const auto* at = reinterpret_cast<const std::uint8_t*>(bytes.data());
    for (std::size_t next = 0; next < bytes.size();) {
        std::size_t start = next;
        UChar32 character = 0;
        U8_NEXT(at, next, bytes.size(), character);
        if (character >= 0) {
            continue;
        }
        shown += visibleText(bytes.substr(begin, start - begin));
        for (begin = next; start < next; ++start) {
            shown += "⟨";
            shown += digits[at[start] >> 4U];
            shown += digits[at[start] & 0xFU];
            shown += "⟩";
        }
    }
    return shown + visibleText(bytes.substr(begin));
}

}  // namespace tallyrig::text
