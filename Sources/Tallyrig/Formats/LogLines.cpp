#include "Tallyrig/Formats/LogLines.h"

#include "Tallyrig/Log/RecordValues.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

namespace tallyrig {

namespace {

/// The number of bytes of the line break at the front of `text`, 0 if there is none.
std::size_t lineBreakLength(std::string_view text) {
    if (text.front() >= '\n' && text.front() <= '\r') {
        return 1;
    }
    if (text.starts_with("\u0085")) {
        return 2;
    }
    return text.starts_with("\u2028") || text.starts_with("\u2029") ? 3 : 0;
}

/// The first byte from `at` on that may end a line, or `end`. Nearly all bytes of a log are none, being
/// printable ASCII, so that they are looked at eight at a time.
const char* nextCandidate(const char* at, const char* end) {
    constexpr std::uint64_t highBits = 0x8080808080808080;
    constexpr std::uint64_t lowest = 0x1010101010101010;
    for (; end - at >= 8; at += 8) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, at, sizeof bytes);
        if (((bytes | (bytes - lowest)) & highBits) != 0) {
            break;
        }
    }
    return std::find_if(at, end, [](char c) { return static_cast<std::uint8_t>(c - 0x10) >= 0x70; });
}

bool isBlankOrTab(char c) {
    return c == ' ' || c == '\t';
}

/// In plain text every byte is a character.
bool isPlain(std::string_view text) {
    bool plain = true;
    for (const char c : text) {
        plain &= static_cast<std::uint8_t>(c) < 0x80 && c != '\r';
    }
    return plain;
}

struct TimedRecord {
    std::string time;
    const ADIFRecord* record = nullptr;
};

}  // namespace

FileText::FileText(std::string_view bytes) : view(text::withoutByteOrderMark(bytes)) {
    if (!text::isUTF8(view)) {
        text::appendLatin1(decoded, view);
        view = decoded;
    }
}

std::string_view takeLine(std::string_view& rest) {
    const char* begin = rest.data();
    const char* const end = begin + rest.size();
    const auto textFrom = [&](const char* at) {
        return std::string_view(at, static_cast<std::size_t>(end - at));
    };
    for (const char* at = nextCandidate(begin, end); at != end; at = nextCandidate(at, end)) {
        const std::size_t length = lineBreakLength(textFrom(at));
        if (length == 0) {
            ++at;
        } else if (at == begin) {
            at += length;
            begin = at;
        } else {
            rest = textFrom(at + length);
            return {begin, static_cast<std::size_t>(at - begin)};
        }
    }
    rest = {};
    return textFrom(begin);
}

bool splitAtBlanks(std::string_view line, std::span<std::string_view> pieces) {
    const char* at = line.data();
    const char* const end = at + line.size();
    for (std::string_view& piece : pieces) {
        while (at != end && isBlankOrTab(*at)) {
            ++at;
        }
        const char* const begin = at;
        at = std::find_if(at, end, isBlankOrTab);
        if (at == begin) {
            return false;
        }
        piece = {begin, static_cast<std::size_t>(at - begin)};
    }
    return true;
}

bool hasLength(std::string_view text, std::size_t count) {
    return (isPlain(text) ? text.size() : text::characterCount(text)) == count;
}

std::string numericCharacters(std::string_view text) {
    std::string result;
    if (text::isASCII(text)) {
        result.resize(text.size());
        const auto kept =
            std::ranges::copy_if(text, result.begin(), [](char c) { return c >= '0' && c <= '9'; });
        result.erase(kept.out, result.end());
        return result;
    }
    for (const std::string_view character : text::characters(text)) {
        if (text::isNumeric(character)) {
            result += character;
        }
    }
    return result;
}

std::string timeOfColumn(std::string_view column) {
    std::string digits = numericCharacters(column);
    if (hasLength(digits, 4)) {
        digits += "00";
    }
    return digits;
}

void appendColumn(std::string& line, std::string_view text, std::size_t width) {
    if (isPlain(text)) {
        line += text.substr(0, width);
        line.append(width - std::min(width, text.size()), ' ');
        return;
    }
    const std::string_view shown = firstCharacters(text, width);
    line += shown;
    line.append(width - text::characterCount(shown), ' ');
}

std::vector<ADIFRecord> inTimeOrder(const ADIFRecordList& records) {
    std::vector<TimedRecord> timed;
    timed.reserve(records.size());
    RecordValues values({"QSO_DATE", "TIME_ON"});
    for (const ADIFRecord& record : records) {
        values.read(record);
        std::string time(values.valueOrEmpty(0));
        time += values.valueOrEmpty(1);
        if (!text::isASCII(time)) {
            time = text::canonicalKey(time);
        }
        timed.push_back({std::move(time), &record});
    }
    // The bytes of UTF-8 stand in the order of its code points.
    std::ranges::stable_sort(timed, {}, &TimedRecord::time);
    std::vector<ADIFRecord> sorted;
    sorted.reserve(timed.size());
    for (const TimedRecord& entry : timed) {
        sorted.push_back(*entry.record);
    }
    return sorted;
}

std::string_view firstValue(const ADIFDocument& document, std::initializer_list<std::string_view> names) {
    for (const ADIFRecord& record : document.records()) {
        for (const std::string_view name : names) {
            const std::string_view value = record.valueOrEmpty(name);
            if (!value.empty()) {
                return value;
            }
        }
    }
    return {};
}

}  // namespace tallyrig
