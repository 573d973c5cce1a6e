// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Text/KeyNumbers.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {
namespace {

/// Keys of all lengths around those of a word, each a front of the next of its kind.
std::vector<std::string> manyKeys() {
    std::vector<std::string> keys = {"", std::string(1, '\0'), std::string(2, '\0'), "\x1F"};
    for (std::size_t number = 0; number < 3000; ++number) {
        keys.push_back(std::to_string(number) + std::string(number % 40, 'x'));
    }
    return keys;
}

TEST(KeyNumbers, AreThoseOfTheKeysBefore) {
    const std::vector<std::string> keys = manyKeys();
    KeyNumbers numbers;
    for (const bool isNew : {true, false}) {
        for (std::size_t number = 0; number < keys.size(); ++number) {
            const KeyNumbers::Entry entry = numbers.add(keys[number]);
            ASSERT_EQ(entry.number, number) << keys[number];
            ASSERT_EQ(entry.isNew, isNew) << keys[number];
            ASSERT_EQ(numbers.keyOf(number), keys[number]);
        }
    }
    EXPECT_EQ(numbers.size(), keys.size());
}

TEST(KeyNumbers, OfKeysThatWaitAreGivenInTheirOrder) {
    KeyNumbers numbers(3);
    std::vector<std::size_t> given;
    for (int round = 0; round < 2; ++round) {
        for (const std::string_view key : {"DL1ABC", "K", "DL1ABC", "", "K1XYZ/QRP", "K", "DL1AB"}) {
            numbers.append(key);
            numbers.append('|');
            numbers.enqueue();
        }
        for (int key = 0; key < 7; ++key) {
            given.push_back(numbers.addNext().number);
        }
    }
    EXPECT_EQ(given, (std::vector<std::size_t>{0, 1, 0, 2, 3, 1, 4, 0, 1, 0, 2, 3, 1, 4}));
    EXPECT_EQ(numbers.keyOf(3), "K1XYZ/QRP|");
    EXPECT_EQ(numbers.add("K|").number, 1U);
}

}  // namespace
}  // namespace tallyrig
