// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Outdoor/ReferencePieces.h"

#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>

namespace tallyrig {

namespace {

bool hasLength(ReferencePieces piece, Lengths lengths) {
    return piece.size() >= lengths.least && piece.size() <= lengths.most;
}

auto isSeparator(char separator) {
    return [separator](std::string_view character) {
        return character.size() == 1 && character.front() == separator;
    };
}

std::pair<ReferencePieces, ReferencePieces> splitAt(ReferencePieces text, std::size_t position) {
    return {text.first(position), text.subspan(position + 1)};
}

}  // namespace

ReferenceCharacters::ReferenceCharacters(std::string_view reference)
    : upper(text::upper(text::trimmedOfBlanks(reference))), characters(text::characters(upper)) {}

bool isWord(ReferencePieces piece, Lengths lengths) {
    return hasLength(piece, lengths) && std::ranges::all_of(piece, [](std::string_view character) {
               return text::isLetter(character) || text::isNumeric(character);
           });
}

bool isNumber(ReferencePieces piece, Lengths lengths) {
    return hasLength(piece, lengths) && std::ranges::all_of(piece, text::isNumeric);
}

std::optional<std::pair<ReferencePieces, ReferencePieces>> splitAtFirst(ReferencePieces text,
                                                                        char separator) {
    const auto found = std::ranges::find_if(text, isSeparator(separator));
    return found == text.end() ? std::nullopt
                               : std::optional(splitAt(text, static_cast<std::size_t>(found - text.begin())));
}

std::optional<std::pair<ReferencePieces, ReferencePieces>> splitAtLast(ReferencePieces text, char separator) {
    const auto found = std::find_if(text.rbegin(), text.rend(), isSeparator(separator));
    return found == text.rend()
               ? std::nullopt
               : std::optional(splitAt(text, static_cast<std::size_t>(text.rend() - found) - 1));
}

}  // namespace tallyrig
