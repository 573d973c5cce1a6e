// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Text/ByteWords.h"

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Unicode text as all of the system understands it.
///
/// Text is UTF-8. Two texts are equal when they are canonically equivalent, so that the composed and the
/// decomposed form of a letter are the same. Logs are ASCII almost everywhere: each function passes over
/// ASCII text without asking the Unicode tables. Ill-formed UTF-8 never fails; what is done with the bad
/// bytes is not promised.
namespace tallyrig::text {

/// What the inline functions below are made of.
namespace detail {

/// Printable ASCII at both ends means that there is nothing to trim, whatever stands between.
inline bool needsNoTrimming(std::string_view text) {
    const auto isPlain = [](char c) { return c > 0x20 && c < 0x7F; };
    return text.empty() || (isPlain(text.front()) && isPlain(text.back()));
}

std::string_view upperSlowly(std::string_view text, std::string& buffer);
bool areEquivalent(std::string_view left, std::string_view right);
std::string_view trimmedSlowly(std::string_view text);
std::string_view trimmedOfBlanksSlowly(std::string_view text);

}  // namespace detail

/// Whether every byte of `text` is below 128.
inline bool isASCII(std::string_view text) {
    std::uint64_t seen = 0;
    forEachWord(text, [&](std::uint64_t word) { seen |= word; });
    return (seen & everyByte(0x80)) == 0;
}

/// Whether `text` is ASCII without a lower-case letter, so that it is its own upper case and canonical.
inline bool isUpperASCII(std::string_view text) {
    std::uint64_t seen = 0;
    forEachWord(text, [&](std::uint64_t word) {
        // In the highest bit of each byte of ASCII: whether it is "a" or above, and whether it is above "z".
        const std::uint64_t low = word & everyByte(0x7F);
        const std::uint64_t fromA = low + everyByte(0x80 - 'a');
        const std::uint64_t beyondZ = low + everyByte(0x7F - 'z');
        seen |= word | (fromA & ~beyondZ);
    });
    return (seen & everyByte(0x80)) == 0;
}

/// The full Unicode upper-case mapping, independent of locale: "ß" gives "SS".
std::string upper(std::string_view text);
/// The same without a copy where `text` is in upper case already: the result refers to `text` or to `buffer`.
inline std::string_view upper(std::string_view text, std::string& buffer) {
    return isUpperASCII(text) ? text : detail::upperSlowly(text, buffer);
}

/// The full Unicode lower-case mapping, independent of locale.
std::string lower(std::string_view text);

/// Canonical equivalence.
inline bool equal(std::string_view left, std::string_view right) {
    return areSameBytes(left, right) || detail::areEquivalent(left, right);
}

/// One text for all canonically equivalent spellings (the canonical composed form), to be used as a hash key
/// wherever `equal` is the equality that is meant.
std::string canonicalKey(std::string_view text);

/// Text order: by the code points of the canonical composed forms. Gives `equal` exactly where `equal` does.
std::strong_ordering compare(std::string_view left, std::string_view right);

/// Whether `part` stands anywhere in `text`, code point by code point, so that another spelling of it is not
/// found; the empty part always does.
inline bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

/// `text` without white space and line ends at both ends: Unicode category Z, U+0009 to U+000D and U+0085.
/// The result refers to `text`.
inline std::string_view trimmed(std::string_view text) {
    return detail::needsNoTrimming(text) ? text : detail::trimmedSlowly(text);
}

/// `text` without blanks and tabs at both ends: Unicode category Zs and U+0009. The result refers to `text`.
inline std::string_view trimmedOfBlanks(std::string_view text) {
    return detail::needsNoTrimming(text) ? text : detail::trimmedOfBlanksSlowly(text);
}

/// The pieces between the separators, empty ones included: at least one, and one more than there are
/// separators. The pieces refer to `text`.
std::vector<std::string_view> split(std::string_view text, char separator);

}  // namespace tallyrig::text
