#include "TallyrigTool/JsonText.h"

#include <cstddef>

namespace tallyrig::tool {

namespace {

bool needsEscape(char byte) {
    return static_cast<unsigned char>(byte) < 0x20 || byte == '"' || byte == '\\';
}

void appendEscaped(std::string& json, char byte) {
    constexpr std::string_view digits = "0123456789abcdef";
    switch (byte) {
        case '"':
            json += "\\\"";
            break;
        case '\\':
            json += "\\\\";
            break;
        case '\n':
            json += "\\n";
            break;
        case '\r':
            json += "\\r";
            break;
        case '\t':
            json += "\\t";
            break;
        default:
            json += "\\u00";
            json += digits[static_cast<std::size_t>(byte) >> 4U];
            json += digits[static_cast<std::size_t>(byte) & 0xFU];
    }
}

}  // namespace

void appendJson(std::string& json, std::string_view text) {
    json += '"';
    std::size_t start = 0;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (needsEscape(text[index])) {
            json += text.substr(start, index - start);
            appendEscaped(json, text[index]);
            start = index + 1;
        }
    }
    json += text.substr(start);
    json += '"';
}

}  // namespace tallyrig::tool
