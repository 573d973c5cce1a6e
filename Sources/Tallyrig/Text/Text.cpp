// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Text/Text.h"

#include "Tallyrig/Text/ASCII.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/normalizer2.h>
#include <unicode/stringpiece.h>
#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>

namespace tallyrig::text {

namespace {

/// ICU counts bytes in 32 bits; a text beyond that is left as it is.
bool isWithinReach(std::string_view text) {
    return text.size() < 0x40000000;
}

icu::StringPiece piece(std::string_view text) {
    return {text.data(), static_cast<std::int32_t>(text.size())};
}

/// The instance is created by ICU once for the process and is safe to share.
const icu::Normalizer2* composition() {
    static const icu::Normalizer2* const instance = [] {
        UErrorCode status = U_ZERO_ERROR;
        return icu::Normalizer2::getNFCInstance(status);
    }();
    return instance;
}

bool isBlank(UChar32 c) {
    return c == 0x09 || u_charType(c) == U_SPACE_SEPARATOR;
}

bool isWhiteSpaceOrLineEnd(UChar32 c) {
    return (c >= 0x09 && c <= 0x0D) || c == 0x85 || (U_MASK(u_charType(c)) & U_GC_Z_MASK) != 0;
}

template <typename Predicate>
std::string_view trimmedOf(std::string_view text, Predicate isTrimmed) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    std::size_t begin = 0;
    std::size_t end = text.size();
    while (begin < end) {
        std::size_t next = begin;
        UChar32 c = 0;
        U8_NEXT_OR_FFFD(bytes, next, end, c);
        if (!isTrimmed(c)) {
            break;
        }
        begin = next;
    }
    while (end > begin) {
        // The macros of ICU that step backwards count in 32 bits; no code point is longer than four bytes.
        const std::size_t window = std::min<std::size_t>(end - begin, 4);
        auto previous = static_cast<std::int32_t>(window);
        UChar32 c = 0;
        U8_PREV_OR_FFFD(bytes + end - window, 0, previous, c);
        if (!isTrimmed(c)) {
            break;
        }
        end -= window - static_cast<std::size_t>(previous);
    }
    return text.substr(begin, end - begin);
}

}  // namespace

std::string upper(std::string_view text) {
    std::string result;
    if (isASCII(text)) {
        result.resize(text.size());
        std::ranges::transform(text, result.begin(), upperASCII);
        return result;
    }
    if (!isWithinReach(text)) {
        return std::string(text);
    }
    UErrorCode status = U_ZERO_ERROR;
    icu::StringByteSink<std::string> sink(&result);
    icu::CaseMap::utf8ToUpper("", 0, piece(text), sink, nullptr, status);
    return result;
}

std::string_view detail::upperSlowly(std::string_view text, std::string& buffer) {
    if (!isASCII(text)) {
        buffer = upper(text);
        return buffer;
    }
    buffer.resize(text.size());
    std::ranges::transform(text, buffer.begin(), upperASCII);
    return buffer;
}

std::string lower(std::string_view text) {
    std::string result;
    if (isASCII(text)) {
        result.resize(text.size());
        std::ranges::transform(text, result.begin(), lowerASCII);
        return result;
    }
    if (!isWithinReach(text)) {
        return std::string(text);
    }
    UErrorCode status = U_ZERO_ERROR;
    icu::StringByteSink<std::string> sink(&result);
    icu::CaseMap::utf8ToLower("", 0, piece(text), sink, nullptr, status);
    return result;
}

bool detail::areEquivalent(std::string_view left, std::string_view right) {
    // No ASCII text is canonically equivalent to another text but for a few singletons such as U+212A, KELVIN
    // SIGN; two unequal ASCII texts never are.
    if (isASCII(left) && isASCII(right)) {
        return false;
    }
    return canonicalKey(left) == canonicalKey(right);
}

std::string canonicalKey(std::string_view text) {
    if (isASCII(text) || !isWithinReach(text)) {
        return std::string(text);
    }
    std::string result;
    UErrorCode status = U_ZERO_ERROR;
    icu::StringByteSink<std::string> sink(&result);
    composition()->normalizeUTF8(0, piece(text), sink, nullptr, status);
    return U_SUCCESS(status) ? result : std::string(text);
}

std::strong_ordering compare(std::string_view left, std::string_view right) {
    // UTF-8 sorts by bytes as its code points do.
    if (isASCII(left) && isASCII(right)) {
        return left <=> right;
    }
    return canonicalKey(left) <=> canonicalKey(right);
}

std::string_view detail::trimmedSlowly(std::string_view text) {
    return trimmedOf(text, isWhiteSpaceOrLineEnd);
}

std::string_view detail::trimmedOfBlanksSlowly(std::string_view text) {
    return trimmedOf(text, isBlank);
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    while (true) {
        const std::size_t at = text.find(separator);
        pieces.push_back(text.substr(0, at));
        if (at == std::string_view::npos) {
            return pieces;
        }
        text.remove_prefix(at + 1);
    }
}

}  // namespace tallyrig::text
