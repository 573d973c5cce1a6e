// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Text/Numbers.h"

#include "Tallyrig/Text/ASCII.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

namespace tallyrig::text {

namespace {

bool isSpaceOfC(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// What follows "nan": nothing, or letters, digits and underscores in brackets.
bool isNaNTail(std::string_view tail) {
    if (tail.empty()) {
        return true;
    }
    if (tail.size() < 2 || tail.front() != '(' || tail.back() != ')') {
        return false;
    }
    for (const char c : tail.substr(1, tail.size() - 2)) {
        if (!isASCIILetter(c) && !isASCIIDigit(c) && c != '_') {
            return false;
        }
    }
    return true;
}

/// A number out of range: `from_chars` does not say on which side, so compare the size of its scale with 1.
/// The text has been found well-formed and without sign.
double outOfRange(std::string_view digits, bool isHexadecimal) {
    const std::string_view exponentMarks = isHexadecimal ? "pP" : "eE";
    const auto mark = digits.find_first_of(exponentMarks);
    const std::string_view mantissa = digits.substr(0, mark);
    const auto point = mantissa.find('.');
    const auto firstDigit = mantissa.find_first_not_of("0.");
    // The place of the first significant digit, in digits left of the point.
    const double wholeDigits = static_cast<double>(point == std::string_view::npos ? mantissa.size() : point);
    double scale = wholeDigits - static_cast<double>(firstDigit);
    scale *= isHexadecimal ? 4 : 1;
    if (mark != std::string_view::npos) {
        std::string_view exponent = digits.substr(mark + 1);
        const bool isNegative = exponent.starts_with('-');
        if (isNegative || exponent.starts_with('+')) {
            exponent.remove_prefix(1);
        }
        double size = 0;
        for (const char c : exponent) {
            size = size * 10 + (c - '0');
        }
        scale += isNegative ? -size : size;
    }
    return scale > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

}  // namespace

std::optional<std::int64_t> integer(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return std::nullopt;
        }
    }
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

std::optional<double> number(std::string_view text) {
    while (!text.empty() && isSpaceOfC(text.front())) {
        text.remove_prefix(1);
    }
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    if (text.empty() || text.front() == '-' || text.front() == '+') {
        return std::nullopt;
    }
    const auto signedValue = [&](double value) { return isNegative ? -value : value; };
    if (text.size() >= 3 && lowerASCII(text[0]) == 'n' && lowerASCII(text[1]) == 'a' &&
        lowerASCII(text[2]) == 'n') {
        return isNaNTail(text.substr(3))
                   ? std::optional(signedValue(std::numeric_limits<double>::quiet_NaN()))
                   : std::nullopt;
    }
    const bool isHexadecimal = text.size() > 2 && text[0] == '0' && lowerASCII(text[1]) == 'x';
    if (isHexadecimal) {
        text.remove_prefix(2);
        // `from_chars` takes "inf" and "nan" and a sign behind the prefix too, `strtod` does not.
        const char c = lowerASCII(text.front());
        if (!(isASCIIDigit(c) || (c >= 'a' && c <= 'f') || c == '.') || text.starts_with("nan")) {
            return std::nullopt;
        }
    }
    double value = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), value,
                        isHexadecimal ? std::chars_format::hex : std::chars_format::general);
    if (end != text.data() + text.size() || error == std::errc::invalid_argument) {
        return std::nullopt;
    }
    if (error == std::errc::result_out_of_range) {
        return signedValue(outOfRange(text, isHexadecimal));
    }
    return signedValue(value);
}

std::optional<std::int64_t> wholeNumber(double number) {
    constexpr double limit = 0x1p63;
    return std::abs(number) < limit ? std::optional(static_cast<std::int64_t>(number)) : std::nullopt;
}

}  // namespace tallyrig::text
