// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/BaseCall.h"

#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Pieces.h"
#include "Tallyrig/Text/Text.h"

#include <cstddef>

namespace tallyrig {

namespace {

/// The longest part so far, of parts of one length the first.
struct Longest {
    std::string_view part;
    std::size_t length = 0;

    void add(std::string_view other, std::size_t otherLength) {
        if (otherLength > length) {
            part = other;
            length = otherLength;
        }
    }
};

}  // namespace

std::string baseCall(std::string_view call) {
    std::string buffer;
    return std::string(baseCall(call, buffer));
}

std::string_view baseCall(std::string_view call, std::string& buffer) {
    const std::string_view whole = text::upper(text::trimmedOfBlanks(call), buffer);
    if (whole.find('/') == std::string_view::npos) {
        return whole;
    }
    std::size_t count = 0;
    Longest ofAll;
    Longest ofCalls;
    text::forEachPiece(whole, '/', [&](std::string_view part) {
        const std::size_t length = text::characterCount(part);
        ++count;
        ofAll.add(part, length);
        if (text::hasLetter(part) && !text::lastNumeric(part).empty()) {
            ofCalls.add(part, length);
        }
    });
    if (count < 2) {
        return whole;
    }
    return ofCalls.length > 0 ? ofCalls.part : ofAll.part;
}

}  // namespace tallyrig
