// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <cstddef>
#include <string_view>

namespace tallyrig::text {

/// Calls `visit` with each piece of `text` between the characters that are `separator`, in order and without
/// the empty ones. A separator that carries a combining mark is another character and separates nothing.
template <typename Visit>
void forEachPiece(std::string_view text, char separator, Visit visit) {
    std::size_t begin = 0;
    const auto endPiece = [&](std::size_t end) {
        if (end > begin) {
            visit(text.substr(begin, end - begin));
        }
        begin = end + 1;
    };
    if (isASCII(text)) {
        for (std::size_t at = 0; at < text.size(); ++at) {
            if (text[at] == separator) {
                endPiece(at);
            }
        }
    } else {
        for (const std::string_view character : characters(text)) {
            if (character.size() == 1 && character.front() == separator) {
                endPiece(static_cast<std::size_t>(character.data() - text.data()));
            }
        }
    }
    endPiece(text.size());
}

}  // namespace tallyrig::text
