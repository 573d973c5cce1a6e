// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Text/Lines.h"

#include "Tallyrig/Text/Characters.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace tallyrig::text {

namespace {

/// The number of bytes of the line break at the front of `text`, 0 if there is none.
std::size_t lineBreakLength(std::string_view text) {
    if (text.front() >= '\n' && text.front() <= '\r') {
        return 1;
    }
    if (text.starts_with("\u0085")) {
        return 2;
    }
    return text.starts_with("\u2028") || text.starts_with("\u2029") ? 3 : 0;
}

/// The first byte from `at` on that may end a line, or `end`. Nearly all bytes of a log are none, being
/// printable ASCII, so that they are looked at eight at a time.
const char* nextCandidate(const char* at, const char* end) {
    constexpr std::uint64_t highBits = 0x8080808080808080;
    constexpr std::uint64_t lowest = 0x1010101010101010;
    for (; end - at >= 8; at += 8) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, at, sizeof bytes);
        if (((bytes | (bytes - lowest)) & highBits) != 0) {
            break;
        }
    }
    return std::find_if(at, end, [](char c) { return static_cast<std::uint8_t>(c - 0x10) >= 0x70; });
}

bool isBlankOrTab(char c) {
    return c == ' ' || c == '\t';
}

}  // namespace

std::string_view takeLine(std::string_view& rest) {
    const char* begin = rest.data();
    const char* const end = begin + rest.size();
    const auto textFrom = [&](const char* at) {
        return std::string_view(at, static_cast<std::size_t>(end - at));
    };
    for (const char* at = nextCandidate(begin, end); at != end; at = nextCandidate(at, end)) {
        const std::size_t length = lineBreakLength(textFrom(at));
        if (length == 0) {
            ++at;
        } else if (at == begin) {
            at += length;
            begin = at;
        } else {
            rest = textFrom(at + length);
            return {begin, static_cast<std::size_t>(at - begin)};
        }
    }
    rest = {};
    return textFrom(begin);
}

bool splitAtBlanks(std::string_view line, std::span<std::string_view> pieces) {
    const char* at = line.data();
    const char* const end = at + line.size();
    for (std::string_view& piece : pieces) {
        while (at != end && isBlankOrTab(*at)) {
            ++at;
        }
        const char* const begin = at;
        at = std::find_if(at, end, isBlankOrTab);
        if (at == begin) {
            return false;
        }
        piece = {begin, static_cast<std::size_t>(at - begin)};
    }
    return true;
}

void appendColumn(std::string& line, std::string_view text, std::size_t width) {
    const std::string_view shown = firstCharacters(text, width);
    line += shown;
    line.append(width - characterCount(shown), ' ');
}

}  // namespace tallyrig::text
