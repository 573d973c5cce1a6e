// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

/// Lines and the columns in them.
namespace tallyrig::text {

/// Takes the next line off the front of `rest`, without its line break; empty when none is left. Lines end at
/// LF, VT, FF, CR, U+0085, U+2028 and U+2029. Empty lines are passed over, and with them the LF of a CR LF.
/// The line refers to the text.
std::string_view takeLine(std::string_view& rest);

/// Finds the first pieces of `line` between blanks (U+0020) and tabs, as many as there is room for in
/// `pieces`; they refer to `line`. False if there are fewer, and then some of `pieces` may be those of an
/// earlier call.
bool splitAtBlanks(std::string_view line, std::span<std::string_view> pieces);

/// Appends `text` as a column of exactly `width` characters: cut, or filled up with blanks behind.
void appendColumn(std::string& line, std::string_view text, std::size_t width);

}  // namespace tallyrig::text
