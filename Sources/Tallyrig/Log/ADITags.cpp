// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADITags.h"

#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <vector>

namespace tallyrig {

namespace {

/// The end of the code point at `at`, or of one byte that belongs to none.
std::size_t codePointEnd(std::string_view data, std::size_t at) {
    UChar32 c = 0;
    U8_NEXT(reinterpret_cast<const std::uint8_t*>(data.data()), at, data.size(), c);
    return at;
}

/// Names as programs make them; ADIF itself has letters, digits and "_" only.
bool isNameCharacter(char c) {
    return text::isASCIILetter(c) || text::isASCIIDigit(c) || c == '_' || c == '-' || c == '.';
}

/// The size of the name at the front of `text`, 0 if there is none.
std::size_t nameSize(std::string_view text) {
    constexpr std::size_t longestName = 64;
    const std::string_view front = text.substr(0, longestName);
    const auto* const end = std::ranges::find_if_not(front, isNameCharacter);
    return front.empty() || !text::isASCIILetter(front.front())
               ? 0
               : static_cast<std::size_t>(end - front.begin());
}

}  // namespace

bool isADIName(std::string_view text) {
    return !text.empty() && nameSize(text) == text.size();
}

bool beginsLikeADITag(std::string_view text) {
    const std::size_t size = nameSize(text);
    const std::string_view rest = text.substr(size);
    if (size == 3 && rest.starts_with('>')) {
        const std::string name = text::upper(text.substr(0, size));
        return name == "EOR" || name == "EOH";
    }
    const std::size_t digitsEnd = rest.find_first_not_of("0123456789", 1);
    return size > 0 && rest.starts_with(':') && digitsEnd != std::string_view::npos && digitsEnd > 1 &&
           (rest[digitsEnd] == '>' || rest[digitsEnd] == ':');
}

ADITag adiTag(std::string_view bytes) {
    const std::string decoded = text::decoded(bytes);
    const std::vector<std::string_view> parts = text::split(decoded, ':');
    ADITag tag{.name = text::upper(text::trimmed(parts[0]))};
    if (parts.size() >= 2) {
        const std::string_view length = text::trimmed(parts[1]);
        const std::optional<std::int64_t> number = text::integer(length);
        tag.lengthKind = number && *number >= 0 ? ADILength::number
                         : length.empty()       ? ADILength::empty
                                                : ADILength::noNumber;
        tag.length = number && *number > 0 ? static_cast<std::uint64_t>(*number) : 0;
    }
    if (parts.size() >= 3) {
        tag.type = text::trimmed(parts[2]);
    }
    return tag;
}

std::optional<PlacedADITag> adiTagAt(std::string_view data, std::size_t open) {
    const std::size_t close = data.find('>', open + 1);
    if (close == std::string_view::npos) {
        return std::nullopt;
    }
    PlacedADITag placed{.tag = adiTag(data.substr(open + 1, close - open - 1)),
                        .open = open,
                        .valueBegin = close + 1,
                        .valueEnd = close + 1};
    if (!placed.tag.isMark()) {
        placed.valueEnd += static_cast<std::size_t>(
            std::min<std::uint64_t>(placed.tag.length, data.size() - placed.valueBegin));
    }
    return placed;
}

std::optional<std::size_t> likelyADITag(std::string_view data, std::size_t begin, std::size_t end) {
    for (std::size_t at = data.substr(0, end).find('<', begin); at != std::string_view::npos;
         at = data.substr(0, end).find('<', at + 1)) {
        if (beginsLikeADITag(data.substr(at + 1))) {
            return at;
        }
    }
    return std::nullopt;
}

bool isADIValueEnd(std::string_view data, std::size_t end) {
    const std::size_t next = data.find_first_not_of(" \t\r\n\f\v", end);
    if (next == std::string_view::npos) {
        return true;
    }
    const std::string_view name = data.substr(next + 1);
    const std::string_view rest = name.substr(nameSize(name));
    return data[next] == '<' && rest.size() < name.size() && (rest.starts_with(':') || rest.starts_with('>'));
}

std::optional<std::size_t> adiValueEndInCharacters(std::string_view data, const PlacedADITag& tag) {
    std::size_t at = tag.valueBegin;
    for (std::uint64_t left = tag.tag.length; left > 0; --left) {
        if (at == data.size()) {
            return std::nullopt;
        }
        UChar32 c = 0;
        U8_NEXT(reinterpret_cast<const std::uint8_t*>(data.data()), at, data.size(), c);
        if (c < 0) {
            return std::nullopt;
        }
    }
    return at;
}

std::optional<std::size_t> adiValueEndNearby(std::string_view data, const PlacedADITag& tag) {
    const std::size_t end = tag.valueEnd;
    if (end > tag.valueBegin && data[end - 1] == '<') {
        return isADIValueEnd(data, end - 1) ? std::optional(end - 1) : std::nullopt;
    }
    if (end == data.size() || static_cast<unsigned char>(data[end]) <= ' ' || data[end] == '<') {
        return std::nullopt;
    }
    const std::size_t longer = codePointEnd(data, end);
    return isADIValueEnd(data, longer) ? std::optional(longer) : std::nullopt;
}

}  // namespace tallyrig
