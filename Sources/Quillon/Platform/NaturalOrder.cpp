// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/NaturalOrder.h"

#include "Tallyrig/Text/ASCII.h"

#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/stringpiece.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <unordered_map>

namespace quillon {

namespace {

icu::StringPiece piece(std::string_view text) {
    constexpr std::size_t longest = 0x40000000;
    return {text.data(), static_cast<std::int32_t>(std::min(text.size(), longest))};
}

/// The collator decides about all text. Comparing and making keys changes nothing in it.
const icu::Collator& collator() {
    static const std::unique_ptr<const icu::Collator> instance = [] {
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<icu::Collator> made(icu::Collator::createInstance(icu::Locale("de"), status));
        made->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
        made->setStrength(icu::Collator::SECONDARY);
        return made;
    }();
    return *instance;
}

/// The bytes by which the collator orders texts.
std::string collationKey(std::string_view text) {
    const auto unicode = icu::UnicodeString::fromUTF8(piece(text));
    std::string key(text.size() * 4 + 16, '\0');
    while (true) {
        const std::int32_t length = collator().getSortKey(
            unicode, reinterpret_cast<std::uint8_t*>(key.data()), static_cast<std::int32_t>(key.size()));
        const bool fits = static_cast<std::size_t>(length) <= key.size();
        key.resize(static_cast<std::size_t>(length));
        if (fits) {
            return key;
        }
    }
}

// Printable ASCII, which is nearly all there is in logs, is ordered by keys of our own that are a fraction of
// the collator's in size and cost. A key is compared byte by byte. It has one byte for each character: the
// weight of a punctuation mark, of a digit that stands alone, or of a letter, in this order. A longer run of
// digits becomes a byte that tells their number without leading zeros, followed by two digits in each byte.

constexpr std::string_view punctuation = " _-,;:!?.'\"()[]{}@*/\\&#%`^+<=>|~$";
constexpr std::size_t firstDigit = punctuation.size() + 1;
constexpr std::size_t firstNumber = firstDigit + 10;  ///< The weight of a number of two digits.
constexpr std::size_t firstLetter = 256 - 26;
constexpr std::size_t longestNumber = firstLetter - firstNumber + 1;

/// The weight of each character but digits in their runs; 0 where the collator has to be asked.
constexpr std::array<std::uint8_t, 256> weights = [] {
    std::array<std::uint8_t, 256> result = {};
    for (std::size_t index = 0; index < punctuation.size(); ++index) {
        result[static_cast<std::uint8_t>(punctuation[index])] = static_cast<std::uint8_t>(index + 1);
    }
    for (std::size_t index = 0; index < 10; ++index) {
        result['0' + index] = static_cast<std::uint8_t>(firstDigit + index);
    }
    for (std::size_t index = 0; index < 26; ++index) {
        result['A' + index] = result['a' + index] = static_cast<std::uint8_t>(firstLetter + index);
    }
    return result;
}();

/// A value with a key of our own. The key's first eight bytes, padded with zeros, stand at hand as a number.
struct PlainEntry {
    std::uint64_t head = 0;
    std::size_t restBegin = 0;  ///< Of the bytes behind the head.
    std::uint32_t restSize = 0;
    std::uint32_t index = 0;  ///< Of the value.
};

class PlainKeys {
  public:
    /// Adds the value with this index if it needs nothing but our weights.
    bool add(std::string_view value, std::uint32_t index) {
        const std::size_t begin = bytes.size();
        if (!appendKey(value)) {
            bytes.resize(begin);
            return false;
        }
        const std::size_t size = bytes.size() - begin;
        std::array<std::uint8_t, sizeof(std::uint64_t)> head = {};
        const std::size_t headSize = std::min(size, head.size());
        std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(begin), headSize, head.begin());
        // The head is in the entry, so what lies in `bytes` is the rest only.
        bytes.erase(bytes.begin() + static_cast<std::ptrdiff_t>(begin),
                    bytes.begin() + static_cast<std::ptrdiff_t>(begin + headSize));
        std::uint64_t number = 0;
        for (const std::uint8_t byte : head) {
            number = number << 8 | byte;
        }
        entries.push_back({number, begin, static_cast<std::uint32_t>(size - headSize), index});
        return true;
    }

    void reserve(std::size_t count) { entries.reserve(count); }

    /// The entries in their order.
    std::span<const PlainEntry> sorted() {
        std::sort(entries.begin(), entries.end(), [this](const PlainEntry& left, const PlainEntry& right) {
            return left.head != right.head ? left.head < right.head : rest(left) < rest(right);
        });
        return entries;
    }

    bool areLevel(const PlainEntry& left, const PlainEntry& right) const {
        return left.head == right.head && rest(left) == rest(right);
    }

  private:
    std::string_view rest(const PlainEntry& entry) const {
        return {reinterpret_cast<const char*>(bytes.data()) + entry.restBegin, entry.restSize};
    }

    bool appendKey(std::string_view value) {
        for (std::size_t at = 0; at < value.size();) {
            if (!tallyrig::text::isASCIIDigit(value[at])) {
                const std::uint8_t weight = weights[static_cast<std::uint8_t>(value[at])];
                if (weight == 0) {
                    return false;
                }
                bytes.push_back(weight);
                ++at;
                continue;
            }
            std::size_t end = at;
            while (end < value.size() && tallyrig::text::isASCIIDigit(value[end])) {
                ++end;
            }
            while (at + 1 < end && value[at] == '0') {
                ++at;
            }
            if (end - at > longestNumber) {
                return false;
            }
            appendNumber(value.substr(at, end - at));
            at = end;
        }
        return true;
    }

    void appendNumber(std::string_view digits) {
        if (digits.size() == 1) {
            bytes.push_back(weights[static_cast<std::uint8_t>(digits[0])]);
            return;
        }
        bytes.push_back(static_cast<std::uint8_t>(firstNumber + digits.size() - 2));
        for (std::size_t at = 0; at < digits.size(); at += 2) {
            const int low = at + 1 < digits.size() ? digits[at + 1] - '0' : 0;
            bytes.push_back(static_cast<std::uint8_t>((digits[at] - '0') * 16 + low));
        }
    }

    std::vector<PlainEntry> entries;
    std::vector<std::uint8_t> bytes;
};

/// The values that need the collator. Each distinct one is prepared once: names and places repeat themselves.
class CollatedValues {
  public:
    struct Group {
        std::string_view value;
        std::string key;
        std::vector<std::uint32_t> indices;  ///< Of all values that are this one.
    };

    void add(std::string_view value, std::uint32_t index) {
        const auto [found, isNew] = positions.try_emplace(value, groups.size());
        if (isNew) {
            groups.push_back({value, collationKey(value), {}});
        }
        groups[found->second].indices.push_back(index);
    }

    std::span<const Group> sorted() {
        std::ranges::sort(groups, {}, &Group::key);
        return groups;
    }

  private:
    std::vector<Group> groups;
    std::unordered_map<std::string_view, std::size_t> positions;
};

}  // namespace

int NaturalOrder::compare(std::string_view left, std::string_view right) {
    UErrorCode status = U_ZERO_ERROR;
    return collator().compareUTF8(piece(left), piece(right), status);
}

std::vector<std::uint32_t> NaturalOrder::ranks(const std::vector<std::string_view>& values) {
    PlainKeys plainKeys;
    CollatedValues collatedValues;
    plainKeys.reserve(values.size());
    for (std::uint32_t index = 0; index < values.size(); ++index) {
        if (!plainKeys.add(values[index], index)) {
            collatedValues.add(values[index], index);
        }
    }
    std::vector<std::uint32_t> ranks(values.size());
    std::uint32_t rank = 0;  // The next one to be given.
    const std::span<const PlainEntry> plain = plainKeys.sorted();
    auto next = plain.begin();
    // Gives the plain values before `end` their ranks, those that are level with each other the same.
    const auto rankPlainUpTo = [&](auto end) {
        for (; next != end; ++next) {
            ranks[next->index] = rank;
            rank += next + 1 == end || !plainKeys.areLevel(*next, next[1]) ? 1U : 0U;
        }
    };
    const std::span<const CollatedValues::Group> groups = collatedValues.sorted();
    for (auto group = groups.begin(); group != groups.end(); ++rank) {
        const auto order = [&](const PlainEntry& entry) {
            return compare(values[entry.index], group->value);
        };
        rankPlainUpTo(std::partition_point(next, plain.end(),
                                           [&](const PlainEntry& entry) { return order(entry) < 0; }));
        for (; next != plain.end() && order(*next) == 0; ++next) {
            ranks[next->index] = rank;
        }
        const std::string& key = group->key;
        for (; group != groups.end() && group->key == key; ++group) {
            for (const std::uint32_t index : group->indices) {
                ranks[index] = rank;
            }
        }
    }
    rankPlainUpTo(plain.end());
    return ranks;
}

}  // namespace quillon
