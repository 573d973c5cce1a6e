// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Text as a reader sees it: characters are extended grapheme clusters (Unicode Standard Annex 29), so that a
/// letter with its combining marks is one character and so is CR LF.
namespace tallyrig::text {

/// The number of characters in `text`.
std::size_t characterCount(std::string_view text);

/// Whether `text` is `count` characters long.
bool hasLength(std::string_view text, std::size_t count);

/// The characters of `text` in order. They refer to `text` and, joined, are `text` again.
std::vector<std::string_view> characters(std::string_view text);

/// The front of `text`, `count` characters long, or all of it where it is shorter.
std::string_view firstCharacters(std::string_view text, std::size_t count);

/// The front of `text` (UTF-8), `mostBytes` at most, with no code point cut in two.
std::string_view beginning(std::string_view text, std::size_t mostBytes);

/// Whether the first code point of `character` is a letter (Unicode category L). False for empty text.
bool isLetter(std::string_view character);

/// Whether the first code point of `character` has a Unicode numeric type: digits of any script, fractions,
/// Roman numerals. False for empty text.
bool isNumeric(std::string_view character);

/// The last character of `text` that is numeric, empty if there is none. It refers to `text`.
std::string_view lastNumeric(std::string_view text);

/// The numeric characters of `text` in order, without all others.
std::string numericCharacters(std::string_view text);

/// Whether every character of `text` is numeric, which is true of empty text.
bool isAllNumeric(std::string_view text);

/// Whether every character of `text` is a letter, which is true of empty text.
bool isAllLetters(std::string_view text);

/// Whether any character of `text` is a letter.
bool hasLetter(std::string_view text);

}  // namespace tallyrig::text
