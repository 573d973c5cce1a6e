// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Text/ByteWords.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace tallyrig {

/// Keys, each known by its number, which is that of the keys before it. They lie one after the other in one
/// text, so that a key that is there already costs no memory and a new one no piece of its own.
///
/// The keys of a whole log pass through here, and most of them are new. So a byte of the hash of each key
/// lies in a table of its own, which tells in one step for eight places that a key is in none of them and
/// where there is room for it. Who has several keys at hand gives all of them (`enqueue`) before asking for
/// the first: the memory of a large table is then fetched for all at once.
class KeyNumbers {
  public:
    struct Entry {
        std::size_t number;
        bool isNew;
    };

    /// Has room for `expected` keys and finds more when they come.
    explicit KeyNumbers(std::size_t expected = 0);

    /// Puts `piece` behind those that were given since the last key.
    void append(std::string_view piece) {
        if (capacity - end < piece.size()) {
            growText(piece.size());
        }
        text::copyBytes(piece, memory.get() + end);
        end += piece.size();
    }
    void append(char piece) {
        if (capacity == end) {
            growText(1);
        }
        memory[end++] = piece;
    }

    /// Ends the key of these pieces, to be added when its turn comes. Keys are compared byte by byte: the
    /// caller makes them canonical.
    void enqueue();
    /// Adds the first of the keys that wait, of which there is one.
    Entry addNext();
    /// Adds the key of the pieces given, or `key` behind them. No other key waits.
    Entry add() {
        enqueue();
        return addNext();
    }
    Entry add(std::string_view key) {
        append(key);
        return add();
    }
    std::size_t size() const { return begins.size() - 1; }
    /// The key that has this number, below `size()`. Good until the next key is given.
    std::string_view keyOf(std::size_t number) const {
        return {memory.get() + begins[number], begins[number + 1] - begins[number]};
    }

  private:
    using Number = std::uint32_t;

    static constexpr std::size_t groupSize = 8;

    /// A key that has not been added yet.
    struct Waiting {
        std::uint64_t hash;
        std::size_t end;  ///< In the text.
    };

    static std::uint64_t hashOf(std::string_view key);
    Entry find(std::uint64_t hash, std::string_view key);
    void putInto(std::size_t group, std::uint64_t hash, std::size_t number);
    void growText(std::size_t size);
    void growTable();

    // Places lie in groups, a power of two of them. Of each place in use a byte of `tags` holds the highest
    // bit and seven bits of the hash; in the others it is 0.
    std::vector<std::uint64_t> tags;
    std::vector<Number> numbers;
    std::vector<std::size_t> begins;  ///< Of the keys by number; last, where the next one goes.
    std::vector<Waiting> waiting;     ///< Their texts follow on each other.
    std::size_t nextWaiting = 0;
    std::size_t waitingBegin = 0;    ///< Where the text of the next one begins.
    std::size_t keyBegin = 0;        ///< Where that of the key begins that is being put together.
    std::unique_ptr<char[]> memory;  ///< The texts.
    std::size_t end = 0;
    std::size_t capacity = 0;
};

}  // namespace tallyrig
