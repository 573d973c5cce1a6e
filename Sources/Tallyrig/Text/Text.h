#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <cstring>
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

std::string_view trimmedSlowly(std::string_view text);
std::string_view trimmedOfBlanksSlowly(std::string_view text);

}  // namespace detail

/// Whether every byte of `text` is below 128.
inline bool isASCII(std::string_view text) {
    const char* at = text.data();
    std::size_t left = text.size();
    std::uint64_t seen = 0;
    for (; left >= sizeof seen; at += sizeof seen, left -= sizeof seen) {
        std::uint64_t word = 0;
        std::memcpy(&word, at, sizeof word);
        seen |= word;
    }
    for (; left > 0; ++at, --left) {
        seen |= static_cast<std::uint8_t>(*at);
    }
    return (seen & 0x8080808080808080U) == 0;
}

/// The full Unicode upper-case mapping, independent of locale: "ß" gives "SS".
std::string upper(std::string_view text);
/// The same without a copy where `text` is in upper case already: the result refers to `text` or to `buffer`.
std::string_view upper(std::string_view text, std::string& buffer);

/// The full Unicode lower-case mapping, independent of locale.
std::string lower(std::string_view text);

/// Canonical equivalence.
bool equal(std::string_view left, std::string_view right);

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
