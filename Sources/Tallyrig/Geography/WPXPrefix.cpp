// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Geography/WPXPrefix.h"

#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Pieces.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tallyrig {

namespace {

/// What may stand behind a call without making it another prefix. The list is longer than the one for
/// countries.
bool isPlainSuffix(std::string_view part) {
    constexpr std::array<std::string_view, 12> plainSuffixes = {"P",    "M",  "MM",  "AM", "A", "QRP",
                                                                "QRPP", "LH", "LGT", "J",  "B", "PM"};
    return std::ranges::find(plainSuffixes, part) != plainSuffixes.end();
}

/// Up to and including the last number; a call without one gets a zero.
std::string prefixOfPart(std::string_view part) {
    const std::string_view number = text::lastNumeric(part);
    return number.empty() ? std::string(part) + "0" : std::string(part.begin(), number.end());
}

std::string withLastDigit(std::string prefix, std::string_view digit) {
    const std::string_view number = text::lastNumeric(prefix);
    if (number.empty()) {
        return prefix.append(digit);
    }
    return prefix.replace(static_cast<std::size_t>(number.data() - prefix.data()), number.size(), digit);
}

/// The parts of a call, and of those that are no plain suffix the shortest two; of parts of one length the
/// first is the shorter.
class Parts {
  public:
    std::size_t count = 0;
    std::string_view first;

    std::size_t significantCount = 0;
    std::string_view shortest;
    std::size_t shortestLength = 0;  ///< Known where there are two, as that of the next is.
    std::string_view next;
    std::size_t nextLength = 0;

    void add(std::string_view part) {
        if (count++ == 0) {
            first = part;
        }
        if (isPlainSuffix(part)) {
            return;
        }
        if (significantCount == 0) {
            shortest = part;
        } else {
            addFurther(part);
        }
        ++significantCount;
    }

  private:
    /// Most calls have but one part, whose length is not asked for.
    void addFurther(std::string_view part) {
        const std::size_t length = text::characterCount(part);
        shortestLength = significantCount == 1 ? text::characterCount(shortest) : shortestLength;
        if (length < shortestLength) {
            next = shortest;
            nextLength = shortestLength;
            shortest = part;
            shortestLength = length;
        } else if (significantCount == 1 || length < nextLength) {
            next = part;
            nextLength = length;
        }
    }
};

}  // namespace

std::string_view WPXPrefix::prefix(std::string_view call, std::string& buffer) {
    const std::string_view trimmed = text::trimmedOfBlanks(call);
    if (text::isUpperASCII(trimmed) && trimmed.find('/') == std::string_view::npos) {
        const std::string_view number = text::lastNumeric(trimmed);
        if (!number.empty()) {
            return {trimmed.data(), number.data() + 1};
        }
    }
    buffer = prefix(trimmed);
    return buffer;
}

std::string WPXPrefix::prefix(std::string_view call) {
    std::string buffer;
    Parts parts;
    text::forEachPiece(text::upper(text::trimmedOfBlanks(call), buffer), '/',
                       [&](std::string_view part) { parts.add(part); });
    if (parts.count == 1) {
        return prefixOfPart(parts.first);
    }
    if (parts.significantCount == 0) {
        return {};
    }
    const bool isCallArea = parts.shortestLength == 1 && text::isNumeric(parts.shortest);
    return parts.significantCount > 1 && isCallArea ? withLastDigit(prefixOfPart(parts.next), parts.shortest)
                                                    : prefixOfPart(parts.shortest);
}

}  // namespace tallyrig
