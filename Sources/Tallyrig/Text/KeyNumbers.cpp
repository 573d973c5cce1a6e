#include "Tallyrig/Text/KeyNumbers.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

namespace tallyrig {

namespace {

template <typename Word>
std::uint64_t wordAt(const char* place) {
    Word word = 0;
    std::memcpy(&word, place, sizeof word);
    return word;
}

std::uint64_t mixed(std::uint64_t hash, std::uint64_t word) {
    hash = (hash ^ word) * 0x9E3779B97F4A7C15U;
    return hash ^ hash >> 32U;
}

/// Keys are short, and there are several for each QSO: words are read whole, the last ones overlapping.
std::uint64_t hashOf(std::string_view key) {
    const char* const begin = key.data();
    const char* const end = begin + key.size();
    std::uint64_t hash = key.size();
    if (key.size() >= 8) {
        for (const char* place = begin; place < end - 8; place += 8) {
            hash = mixed(hash, wordAt<std::uint64_t>(place));
        }
        hash = mixed(hash, wordAt<std::uint64_t>(end - 8));
    } else if (key.size() >= 4) {
        hash = mixed(hash, wordAt<std::uint32_t>(begin) << 32U | wordAt<std::uint32_t>(end - 4));
    } else {
        for (const char c : key) {
            hash = hash << 8U | static_cast<unsigned char>(c);
        }
    }
    return mixed(hash, 0);
}

}  // namespace

KeyNumbers::KeyNumbers(std::size_t expected) : slots(std::bit_ceil(std::max(smallest, 2 * expected))) {
    constexpr std::size_t usualKeySize = 12;
    ends.reserve(expected);
    keys.reserve(expected * usualKeySize);
}

KeyNumbers::Entry KeyNumbers::add(std::string_view key) {
    const std::uint64_t hash = hashOf(key);
    const auto tag = static_cast<Number>(hash >> 32U);
    const std::size_t mask = slots.size() - 1;
    std::size_t at = hash & mask;
    for (; slots[at].end != 0; at = (at + 1) & mask) {
        if (slots[at].tag == tag && keyOf(slots[at].end - 1) == key) {
            return {slots[at].end - 1, false};
        }
    }
    keys += key;
    ends.push_back(keys.size());
    slots[at] = {tag, static_cast<Number>(ends.size())};
    if (ends.size() * 2 > slots.size()) {
        grow();
    }
    return {ends.size() - 1, true};
}

void KeyNumbers::grow() {
    std::vector<Slot> larger(slots.size() * 4);
    const std::size_t mask = larger.size() - 1;
    for (const Slot& slot : slots) {
        if (slot.end == 0) {
            continue;
        }
        std::size_t at = hashOf(keyOf(slot.end - 1)) & mask;
        while (larger[at].end != 0) {
            at = (at + 1) & mask;
        }
        larger[at] = slot;
    }
    slots = std::move(larger);
}

}  // namespace tallyrig
