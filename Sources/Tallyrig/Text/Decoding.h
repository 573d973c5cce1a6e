// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tallyrig::text {

/// Whether `bytes` are well-formed UTF-8 (no overlong forms, no surrogates, nothing above U+10FFFF).
bool isUTF8(std::string_view bytes);

/// Text of bytes in the encoding that they show: strict UTF-8 if they are that throughout, otherwise ISO
/// 8859-1, one byte to one character. The result is always well-formed UTF-8.
std::string decoded(std::string_view bytes);

/// The same without a copy where the bytes are UTF-8: the result refers to `bytes` or to `buffer`.
std::string_view decoded(std::string_view bytes, std::string& buffer);

/// Text of bytes as UTF-8, in which each ill-formed sequence becomes U+FFFD.
std::string repaired(std::string_view bytes);

/// `bytes` without the UTF-8 byte order mark at their head, if there is one: it is no text.
std::string_view withoutByteOrderMark(std::string_view bytes);

/// Text of UTF-16 bytes in the byte order of the mark at their head, without the mark. A lone surrogate and
/// half a unit at the end become U+FFFD. Absent if there is no such mark.
std::optional<std::string> fromUTF16(std::string_view bytes);

/// Appends the code points of ISO 8859-1 `bytes` to `text` as UTF-8.
void appendLatin1(std::string& text, std::string_view bytes);

}  // namespace tallyrig::text
