// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Text/KeyNumbers.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

namespace tallyrig {

namespace {

constexpr std::uint64_t inUse = text::everyByte(0x80);

std::uint64_t mixed(std::uint64_t hash, std::uint64_t word) {
    hash = (hash ^ word) * 0x9E3779B97F4A7C15U;
    return hash ^ hash >> 32U;
}

/// What a place in use holds of `hash`, in every byte. The group comes from other bits.
std::uint64_t tagOf(std::uint64_t hash) {
    return text::everyByte(static_cast<std::uint8_t>(hash >> 57U | 0x80U));
}

/// The first place of those whose highest bits are set in `places`.
std::size_t firstOf(std::uint64_t places) {
    return static_cast<std::size_t>(std::countr_zero(places)) / 8;
}

/// The groups for so many keys: at most three quarters of their places are in use.
std::size_t groupsFor(std::size_t keys, std::size_t groupSize) {
    return std::bit_ceil(keys * 4 / 3 / groupSize + 1);
}

}  // namespace

KeyNumbers::KeyNumbers(std::size_t expected)
    : tags(groupsFor(expected, groupSize)), numbers(tags.size() * groupSize), begins(1) {
    constexpr std::size_t usualKeySize = 12;
    begins.reserve(expected + 1);
    growText(expected * usualKeySize);
}

std::uint64_t KeyNumbers::hashOf(std::string_view key) {
    std::uint64_t hash = key.size();
    text::forEachWord(key, [&](std::uint64_t word) { hash = mixed(hash, word); });
    return hash;
}

void KeyNumbers::enqueue() {
    const std::uint64_t hash = hashOf({memory.get() + keyBegin, end - keyBegin});
    const std::size_t group = hash & (tags.size() - 1);
    __builtin_prefetch(&tags[group], 1);
    __builtin_prefetch(&numbers[group * groupSize], 1);
    waiting.push_back({hash, end});
    keyBegin = end;
}

KeyNumbers::Entry KeyNumbers::addNext() {
    const Waiting& next = waiting[nextWaiting++];
    const std::string_view key(memory.get() + waitingBegin, next.end - waitingBegin);
    const Entry entry = find(next.hash, key);
    if (entry.isNew) {
        // Closes the gap that keys have left which were there already.
        const std::size_t begin = begins.back();
        if (begin != waitingBegin) {
            std::memmove(memory.get() + begin, key.data(), key.size());
        }
        begins.push_back(begin + key.size());
        if (size() * 4 > numbers.size() * 3) {
            growTable();
        }
    }
    waitingBegin = next.end;
    if (nextWaiting == waiting.size()) {
        waiting.clear();
        nextWaiting = 0;
        waitingBegin = keyBegin = end = begins.back();
    }
    return entry;
}

/// The entry of `key`. A new one has a place in the table then, but its text has none yet.
KeyNumbers::Entry KeyNumbers::find(std::uint64_t hash, std::string_view key) {
    const std::uint64_t tag = tagOf(hash);
    const std::size_t mask = tags.size() - 1;
    std::size_t group = hash & mask;
    while (true) {
        // A byte is 0 where the tags are the same, and then its highest bit is set here; seldom another's
        // too.
        const std::uint64_t unlike = tags[group] ^ tag;
        for (std::uint64_t alike = (unlike - text::everyByte(1)) & ~unlike & inUse; alike != 0;
             alike &= alike - 1) {
            const Number number = numbers[group * groupSize + firstOf(alike)];
            if (text::areSameBytes(keyOf(number), key)) {
                return {number, false};
            }
        }
        if ((tags[group] & inUse) != inUse) {
            putInto(group, hash, size());
            return {size(), true};
        }
        group = (group + 1) & mask;
    }
}

/// Takes the first place of the group that is not in use.
void KeyNumbers::putInto(std::size_t group, std::uint64_t hash, std::size_t number) {
    const std::size_t place = firstOf(~tags[group] & inUse);
    tags[group] |= (tagOf(hash) & 0xFFU) << place * 8;
    numbers[group * groupSize + place] = static_cast<Number>(number);
}

void KeyNumbers::growText(std::size_t size) {
    constexpr std::size_t smallest = 256;
    capacity = std::max({smallest, end + size, capacity * 2});
    auto larger = std::make_unique_for_overwrite<char[]>(capacity);
    std::copy_n(memory.get(), end, larger.get());
    memory = std::move(larger);
}

void KeyNumbers::growTable() {
    tags = std::vector<std::uint64_t>(tags.size() * 2);
    numbers = std::vector<Number>(tags.size() * groupSize);
    const std::size_t mask = tags.size() - 1;
    for (std::size_t number = 0; number < size(); ++number) {
        const std::uint64_t hash = hashOf(keyOf(number));
        std::size_t group = hash & mask;
        while ((tags[group] & inUse) == inUse) {
            group = (group + 1) & mask;
        }
        putInto(group, hash, number);
    }
}

}  // namespace tallyrig
