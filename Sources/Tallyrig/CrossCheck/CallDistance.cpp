// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/CallDistance.h"

#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <bit>
#include <vector>

namespace tallyrig {

namespace {

/// Walks the table of the distances of all beginnings row by row, in each only the places that lie at most
/// `most` beside the diagonal: all others are farther.
template <typename Characters>
bool isWithin(const Characters& left, const Characters& right, std::size_t most) {
    const std::size_t tooFar = most + 1;
    const std::size_t width = right.size();
    std::vector<std::size_t> row(width + 1);
    for (std::size_t column = 0; column <= width; ++column) {
        row[column] = std::min(column, tooFar);
    }
    for (std::size_t line = 1; line <= left.size(); ++line) {
        const std::size_t first = line > most ? line - most : 1;
        const std::size_t last = std::min(width, line + most);
        std::size_t diagonal = row[first - 1];
        row[first - 1] = first == 1 ? std::min(line, tooFar) : tooFar;
        std::size_t least = row[first - 1];
        for (std::size_t column = first; column <= last; ++column) {
            const std::size_t changed = diagonal + (left[line - 1] == right[column - 1] ? 0 : 1);
            diagonal = row[column];
            row[column] = std::min({changed, row[column] + 1, row[column - 1] + 1, tooFar});
            least = std::min(least, row[column]);
        }
        if (least > most) {
            return false;
        }
    }
    return row[width] <= most;
}

/// Whether every byte is a character.
bool isPlain(std::string_view call) {
    return text::isASCII(call) && call.find('\r') == std::string_view::npos;
}

}  // namespace

CallShape::CallShape(std::string_view call) : length(static_cast<std::uint32_t>(text::characterCount(call))) {
    for (const std::string_view character : text::characters(call)) {
        // Letters and digits, of which calls are made, do not meet in the lower six bits.
        characters |= std::uint64_t{1} << (static_cast<unsigned char>(character.front()) & 63U);
    }
}

std::size_t CallShape::leastDistance(const CallShape& other) const {
    const std::uint32_t lengths = length > other.length ? length - other.length : other.length - length;
    // One change takes away one character and brings another.
    const int bits = std::popcount(characters ^ other.characters);
    return std::max<std::size_t>(lengths, static_cast<std::size_t>(bits + 1) / 2);
}

bool isWithinCallDistance(std::string_view left, std::string_view right, std::size_t most) {
    const auto isWithinCharacters = [&](const auto& one, const auto& two) {
        const std::size_t longer = std::max(one.size(), two.size());
        return longer - std::min(one.size(), two.size()) <= most &&
               (longer <= most || isWithin(one, two, most));
    };
    if (isPlain(left) && isPlain(right)) {
        return isWithinCharacters(left, right);
    }
    return isWithinCharacters(text::characters(left), text::characters(right));
}

}  // namespace tallyrig
