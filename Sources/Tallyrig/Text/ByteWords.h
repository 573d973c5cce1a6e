// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// Texts looked at eight bytes at a time. The texts of a log are short, and a loop over their bytes, or a
/// call that is made for long ones, takes most of the time that a pass over a log has.
namespace tallyrig::text {

/// `byte` in each place of a word.
constexpr std::uint64_t everyByte(std::uint8_t byte) {
    return byte * 0x0101010101010101U;
}

/// As many bytes as `Word` has, in the order of the machine.
template <typename Word = std::uint64_t>
inline std::uint64_t wordAt(const char* place) {
    Word word = 0;
    std::memcpy(&word, place, sizeof word);
    return word;
}

/// All bytes of a text of at most eight, some of them twice: two such texts of one size give the same word
/// only if they are the same.
inline std::uint64_t shortWord(std::string_view text) {
    const char* const begin = text.data();
    const std::size_t size = text.size();
    if (size >= 4) {
        return wordAt<std::uint32_t>(begin) << 32U | wordAt<std::uint32_t>(begin + size - 4);
    }
    const auto byte = [&](std::size_t at) -> std::uint64_t { return static_cast<std::uint8_t>(begin[at]); };
    return size == 0 ? 0 : byte(0) << 16U | byte(size / 2) << 8U | byte(size - 1);
}

/// Calls `visit` with words that hold all bytes of `text`, some of them twice, and only those and zeros.
template <typename Visit>
inline void forEachWord(std::string_view text, Visit visit) {
    if (text.size() <= sizeof(std::uint64_t)) {
        visit(shortWord(text));
        return;
    }
    const char* const last = text.data() + text.size() - sizeof(std::uint64_t);
    for (const char* place = text.data(); place < last; place += sizeof(std::uint64_t)) {
        visit(wordAt(place));
    }
    visit(wordAt(last));
}

/// Whether the bytes of both are the same.
inline bool areSameBytes(std::string_view left, std::string_view right) {
    return left.size() == right.size() &&
           (left.size() <= sizeof(std::uint64_t) ? shortWord(left) == shortWord(right) : left == right);
}

/// Copies the bytes of `text` to `place`, where there is room for them.
inline void copyBytes(std::string_view text, char* place) {
    const char* const from = text.data();
    const std::size_t size = text.size();
    const auto copyBothEnds = [&](auto word) {
        std::memcpy(&word, from, sizeof word);
        auto last = word;
        std::memcpy(&last, from + size - sizeof last, sizeof last);
        std::memcpy(place, &word, sizeof word);
        std::memcpy(place + size - sizeof last, &last, sizeof last);
    };
    if (size > 2 * sizeof(std::uint64_t)) {
        std::memcpy(place, from, size);
    } else if (size >= sizeof(std::uint64_t)) {
        copyBothEnds(std::uint64_t{});
    } else if (size >= sizeof(std::uint32_t)) {
        copyBothEnds(std::uint32_t{});
    } else if (size > 0) {
        place[0] = from[0];
        place[size / 2] = from[size / 2];
        place[size - 1] = from[size - 1];
    }
}

}  // namespace tallyrig::text
