// Reads any bytes as a log of any format. The text must be the same log in UTF-16 as in UTF-8.

#include "Fuzz/Require.h"
#include "Tallyrig/Formats/LogReader.h"
#include "Tallyrig/Text/Decoding.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

using namespace tallyrig;

/// The code points of well-formed UTF-8.
std::u32string codePointsOf(std::string_view text) {
    std::u32string result;
    for (const char byte : text) {
        const auto c = static_cast<std::uint8_t>(byte);
        if (c < 0x80 || c >= 0xC0) {
            // The ones in front say how long the sequence is, the bits behind them begin the number.
            result += static_cast<char32_t>(c & (0xFFU >> (std::countl_one(c) + 1)));
        } else {
            result.back() = result.back() << 6 | (c & 0x3FU);
        }
    }
    return result;
}

std::string inUTF16(std::string_view text, bool isLittleEndian) {
    std::string bytes;
    const auto append = [&](char32_t unit) {
        const char high = static_cast<char>(unit >> 8);
        const char low = static_cast<char>(unit & 0xFF);
        bytes += isLittleEndian ? low : high;
        bytes += isLittleEndian ? high : low;
    };
    append(0xFEFF);
    for (const char32_t c : codePointsOf(text)) {
        if (c < 0x10000) {
            append(c);
        } else {
            append(0xD800 + ((c - 0x10000) >> 10));
            append(0xDC00 + ((c - 0x10000) & 0x3FF));
        }
    }
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view data(reinterpret_cast<const char*>(bytes), size);

    const LogReader::Log log = LogReader::read(data);
    if (!text::fromUTF16(data)) {
        require(log.format == LogFormatDetector::detect(data) ||
                    (log.format == LogFormat::cabrillo && !log.document.records().empty()),
                "the format is the one detected, if it is not a Cabrillo log further down");
    }

    const std::string text = text::repaired(data);
    // An XML declaration may name another encoding, which is then believed or not.
    if (!text.starts_with("<?xml")) {
        const LogReader::Log plain = LogReader::read(text);
        for (const bool isLittleEndian : {true, false}) {
            const std::string converted = inUTF16(text, isLittleEndian);
            require(text::fromUTF16(converted) == text, "UTF-16 says the same as UTF-8");
            const LogReader::Log same = LogReader::read(converted);
            require(same.format == plain.format, "the encoding does not decide about the format");
            require(same.document == plain.document, "the log is the same in either encoding");
        }
    }
    return 0;
}
