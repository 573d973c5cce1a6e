#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// Keys, each known by its number, which is that of the keys before it. They lie one after the other in one
/// text, so that a key that is there already costs no memory and a new one no piece of its own.
class KeyNumbers {
  public:
    struct Entry {
        std::size_t number;
        bool isNew;
    };

    /// Has room for `expected` keys and finds more when they come.
    explicit KeyNumbers(std::size_t expected = 0);

    /// Compared byte by byte: the caller makes `key` canonical.
    Entry add(std::string_view key);
    std::size_t size() const { return ends.size(); }
    /// The key that has this number, below `size()`. Good until the next key is added.
    std::string_view keyOf(std::size_t number) const {
        const std::size_t begin = number == 0 ? 0 : ends[number - 1];
        return std::string_view(keys).substr(begin, ends[number] - begin);
    }

  private:
    using Number = std::uint32_t;

    /// In an empty slot, `end` is 0: the number of the key and 1.
    struct Slot {
        Number tag = 0;  ///< The half of the hash that does not choose the slot.
        Number end = 0;
    };

    static constexpr std::size_t smallest = 16;

    void grow();

    std::vector<Slot> slots;        ///< A power of two, at least twice as many as keys.
    std::vector<std::size_t> ends;  ///< By number.
    std::string keys;
};

}  // namespace tallyrig
