#include "Tallyrig/Text/Decoding.h"

#include "Tallyrig/Text/Text.h"

#include <unicode/utf8.h>

#include <cstdint>

namespace tallyrig::text {

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
        text.append(c < 0 ? std::string_view("\uFFFD") : bytes.substr(begin, next - begin));
    }
    return text;
}

std::string_view withoutByteOrderMark(std::string_view bytes) {
    constexpr std::string_view byteOrderMark = "\uFEFF";
    return bytes.starts_with(byteOrderMark) ? bytes.substr(byteOrderMark.size()) : bytes;
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
