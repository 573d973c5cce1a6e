// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tallyrig::text {

/// `text` for one line on a screen, with a sign in the place of every character that is not seen but acts on
/// the text around it. Logs come from anywhere, and such characters clear a terminal or turn round what is
/// read.
///
/// A line break (LF, CR LF, U+2028, U+2029) becomes "⏎", the other control characters of ASCII the pictures
/// of them ("␛"), those above it U+FFFD, and the characters that direct the reading order their names
/// ("⟨RLO⟩"). Words that are written from right to left are put between U+2068 and U+2069, so that they turn
/// round nothing beside them. Everything else stays as it is. `text` is well-formed UTF-8.
std::string visibleText(std::string_view text);

/// The same for bytes as they stand in a file: those that are no UTF-8 are shown by their value, such as
/// "⟨FC⟩".
std::string visibleBytes(std::string_view bytes);

/// Whether `text`, well-formed UTF-8, holds a character for which `visibleText` has a sign.
bool holdsUnseen(std::string_view text);

}  // namespace tallyrig::text
