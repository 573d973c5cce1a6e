// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Text/Decoding.h"

#include "Tallyrig/Text/Text.h"

#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <cstdint>

namespace tallyrig::text {

namespace {

constexpr std::string_view replacement = "\uFFFD";

void appendCodePoint(std::string& text, UChar32 c) {
    if (U_IS_SURROGATE(c)) {
        text += replacement;
        return;
    }
    char bytes[U8_MAX_LENGTH];
    std::size_t length = 0;
    U8_APPEND_UNSAFE(bytes, length, c);
    text.append(bytes, length);
}

}  // namespace

bool isUTF8(std::string_view bytes) {
    if (isASCII(bytes)) {
        return true;
    }
    const auto* at = reinterpret_cast<const std::uint8_t*>(bytes.data());
    for (std::size_t next = 0; next < bytes.size();) {
        UChar32 c = 0;
        U8_NEXT(at, next, bytes.size(), c);
        if (c < 0) {
            return false;
        }
    }
    return true;
}

std::string decoded(std::string_view bytes) {
    if (isUTF8(bytes)) {
        return std::string(bytes);
    }
    std::string text;
    appendLatin1(text, bytes);
    return text;
}

std::string_view decoded(std::string_view bytes, std::string& buffer) {
    if (isUTF8(bytes)) {
        return bytes;
    }
    buffer.clear();
    appendLatin1(buffer, bytes);
    return buffer;
}

std::string repaired(std::string_view bytes) {
    if (isUTF8(bytes)) {
        return std::string(bytes);
    }
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 2);
    const auto* at = reinterpret_cast<const std::uint8_t*>(bytes.data());
    for (std::size_t next = 0; next < bytes.size();) {
        const std::size_t begin = next;
        UChar32 c = 0;
        U8_NEXT(at, next, bytes.size(), c);
        text.append(c < 0 ? replacement : bytes.substr(begin, next - begin));
    }
    return text;
}

std::string_view withoutByteOrderMark(std::string_view bytes) {
    constexpr std::string_view byteOrderMark = "\uFEFF";
    return bytes.starts_with(byteOrderMark) ? bytes.substr(byteOrderMark.size()) : bytes;
}

std::optional<std::string> fromUTF16(std::string_view bytes) {
    const bool isLittleEndian = bytes.starts_with("\xFF\xFE");
    if (!isLittleEndian && !bytes.starts_with("\xFE\xFF")) {
        return std::nullopt;
    }
    const auto unitAt = [&](std::size_t at) {
        const auto low = static_cast<std::uint8_t>(bytes[at + (isLittleEndian ? 0 : 1)]);
        const auto high = static_cast<std::uint8_t>(bytes[at + (isLittleEndian ? 1 : 0)]);
        return static_cast<UChar32>(high << 8 | low);
    };
    const std::size_t end = bytes.size() - bytes.size() % 2;
    std::string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t at = 2; at < end; at += 2) {
        UChar32 c = unitAt(at);
        if (U16_IS_LEAD(c) && at + 2 < end && U16_IS_TRAIL(unitAt(at + 2))) {
            at += 2;
            c = U16_GET_SUPPLEMENTARY(c, unitAt(at));
        }
        appendCodePoint(text, c);
    }
    if (end < bytes.size()) {
        text += replacement;
    }
    return text;
}

void appendLatin1(std::string& text, std::string_view bytes) {
    for (const char byte : bytes) {
        const auto c = static_cast<std::uint8_t>(byte);
        if (c < 0x80) {
            text.push_back(byte);
        } else {
            text.push_back(static_cast<char>(0xC0 | (c >> 6)));
            text.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        }
    }
}

}  // namespace tallyrig::text
