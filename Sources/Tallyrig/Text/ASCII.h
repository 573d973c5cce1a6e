// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The letters and digits of ASCII, byte by byte, for what is ASCII by its format or has been found to be. A
/// byte of a longer UTF-8 sequence is none of them and has no case, so that text may be walked by bytes.
namespace tallyrig::text {

constexpr bool isASCIIDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool isASCIIUpper(char c) {
    return c >= 'A' && c <= 'Z';
}
constexpr bool isASCIILower(char c) {
    return c >= 'a' && c <= 'z';
}
constexpr bool isASCIILetter(char c) {
    return isASCIIUpper(c) || isASCIILower(c);
}

constexpr char upperASCII(char c) {
    return isASCIILower(c) ? static_cast<char>(c - 'a' + 'A') : c;
}
constexpr char lowerASCII(char c) {
    return isASCIIUpper(c) ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace tallyrig::text
