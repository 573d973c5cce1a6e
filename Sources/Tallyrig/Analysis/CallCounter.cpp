// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Analysis/CallCounter.h"

#include "Tallyrig/Text/ByteWords.h"

#include <bit>
#include <utility>

namespace tallyrig {

namespace {

/// The bytes of a text of at most eight, none of which is 0: different for all of them.
std::uint64_t wordOf(std::string_view text) {
    std::uint64_t word = 0;
    text::copyBytes(text, reinterpret_cast<char*>(&word));
    return word;
}

}  // namespace

CallCounter::CallCounter(std::size_t expected) : words(std::bit_ceil(expected * 2 + 2)) {}

void CallCounter::add(std::string_view call) {
    const std::string_view piece = folded.piece(call);
    if (piece.size() > sizeof(std::uint64_t) || piece.find('\0') != std::string_view::npos) {
        longCalls.add(piece);
        return;
    }
    const std::uint64_t word = wordOf(piece);
    __builtin_prefetch(&words[placeOf(word)], 1);
    waiting[waitingCount++] = word;
    if (waitingCount == mostWaiting) {
        addWaiting();
    }
}

std::size_t CallCounter::count() {
    addWaiting();
    return wordCount + longCalls.size();
}

std::size_t CallCounter::placeOf(std::uint64_t word) const {
    const std::uint64_t hash = word * 0x9E3779B97F4A7C15U;
    return (hash ^ hash >> 32U) & (words.size() - 1);
}

void CallCounter::addWaiting() {
    for (std::size_t index = 0; index < waitingCount; ++index) {
        const std::uint64_t word = waiting[index];
        std::size_t place = placeOf(word);
        while (words[place] != 0 && words[place] != word) {
            place = (place + 1) & (words.size() - 1);
        }
        wordCount += words[place] == 0 ? 1 : 0;
        words[place] = word;
        if (wordCount * 2 > words.size()) {
            grow();
        }
    }
    waitingCount = 0;
}

void CallCounter::grow() {
    const std::vector<std::uint64_t> smaller =
        std::exchange(words, std::vector<std::uint64_t>(words.size() * 2));
    for (const std::uint64_t word : smaller) {
        if (word != 0) {
            std::size_t place = placeOf(word);
            while (words[place] != 0) {
                place = (place + 1) & (words.size() - 1);
            }
            words[place] = word;
        }
    }
}

}  // namespace tallyrig
