#include "Tallyrig/Contest/KeyNumbers.h"

#include <functional>
#include <utility>

namespace tallyrig {

KeyNumbers::Entry KeyNumbers::add(std::string_view key) {
    const std::uint64_t hash = std::hash<std::string_view>()(key);
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

std::string_view KeyNumbers::keyOf(Number number) const {
    const std::size_t begin = number == 0 ? 0 : ends[number - 1];
    return std::string_view(keys).substr(begin, ends[number] - begin);
}

void KeyNumbers::grow() {
    std::vector<Slot> larger(slots.size() * 4);
    const std::size_t mask = larger.size() - 1;
    for (const Slot& slot : slots) {
        if (slot.end == 0) {
            continue;
        }
        std::size_t at = std::hash<std::string_view>()(keyOf(slot.end - 1)) & mask;
        while (larger[at].end != 0) {
            at = (at + 1) & mask;
        }
        larger[at] = slot;
    }
    slots = std::move(larger);
}

}  // namespace tallyrig
