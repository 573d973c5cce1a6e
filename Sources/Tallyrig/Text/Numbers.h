// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tallyrig::text {

/// The whole of `text` as an integer: an optional sign and ASCII digits, nothing around them, within 64 bits.
/// Absent for anything else.
std::optional<std::int64_t> integer(std::string_view text);

/// The whole of `text` as a floating-point number by the rules of `strtod` in the C locale: white space in
/// front is taken, anything behind makes it no number; hexadecimal forms, infinity and not-a-number are
/// numbers. A number too large is infinite, one too small is zero or the nearest tiny number. Absent for
/// anything else.
std::optional<double> number(std::string_view text);

/// `number`, which has no fraction, in 64 bits; absent for infinity, not-a-number and what lies beyond.
std::optional<std::int64_t> wholeNumber(double number);

}  // namespace tallyrig::text
