#include "Tallyrig/Formats/LogLines.h"

#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

namespace tallyrig {

namespace {

/// The number of bytes of the line break at the front of `text`, 0 if there is none.
std::size_t lineBreakLength(std::string_view text) {
    const auto first = static_cast<std::uint8_t>(text.front());
    if (first >= '\n' && first <= '\r') {
        return 1;
    }
    if (first < 0x80) {
        return 0;
    }
    if (text.starts_with("\u0085")) {
        return 2;
    }
    return text.starts_with("\u2028") || text.starts_with("\u2029") ? 3 : 0;
}

/// In plain text every byte is a character.
bool isPlain(std::string_view text) {
    return text::isASCII(text) && text.find('\r') == std::string_view::npos;
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
    std::size_t end = 0;
    while (end < rest.size()) {
        const std::size_t length = lineBreakLength(rest.substr(end));
        if (length == 0) {
            ++end;
        } else if (end == 0) {
            rest.remove_prefix(length);
        } else {
            const std::string_view line = rest.substr(0, end);
            rest.remove_prefix(end + length);
            return line;
        }
    }
    return std::exchange(rest, {});
}

std::string_view takePiece(std::string_view& rest) {
    const auto isSeparator = [](char c) { return c == ' ' || c == '\t'; };
    const char* const limit = rest.data() + rest.size();
    const char* const begin = std::find_if_not(rest.data(), limit, isSeparator);
    const char* const end = std::find_if(begin, limit, isSeparator);
    rest = {end, static_cast<std::size_t>(limit - end)};
    return {begin, static_cast<std::size_t>(end - begin)};
}

std::string numericCharacters(std::string_view text) {
    std::string result;
    if (text::isASCII(text)) {
        std::ranges::copy_if(text, std::back_inserter(result), [](char c) { return c >= '0' && c <= '9'; });
        return result;
    }
    for (const std::string_view character : text::characters(text)) {
        if (text::isNumeric(character)) {
            result += character;
        }
    }
    return result;
}

std::string_view firstCharacters(std::string_view text, std::size_t count) {
    if (text.size() <= count || isPlain(text)) {
        return text.substr(0, count);
    }
    const std::vector<std::string_view> characters = text::characters(text);
    return characters.size() <= count
               ? text
               : text.substr(0, static_cast<std::size_t>(characters[count].data() - text.data()));
}

void appendColumn(std::string& line, std::string_view text, std::size_t width) {
    const std::string_view shown = firstCharacters(text, width);
    line += shown;
    line.append(width - text::characterCount(shown), ' ');
}

std::vector<ADIFRecord> inTimeOrder(const ADIFRecordList& records) {
    std::vector<TimedRecord> timed;
    timed.reserve(records.size());
    for (const ADIFRecord& record : records) {
        std::string time(record.valueOrEmpty("QSO_DATE"));
        time += record.valueOrEmpty("TIME_ON");
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
