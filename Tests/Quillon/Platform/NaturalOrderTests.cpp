// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/NaturalOrder.h"

#include <unicode/coll.h>
#include <unicode/locid.h>

#include <gtest/gtest.h>

#include <compare>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace quillon {
namespace {

std::vector<std::uint32_t> ranks(const std::vector<std::string>& values) {
    return NaturalOrder::ranks({values.begin(), values.end()});
}

TEST(NaturalOrderOfValues, IsWhatAPersonExpects) {
    // Ascending; "=" stands before what is level with the value before it.
    const std::vector<std::vector<std::string>> ascending = {
        {"", "-1", "0", "2", "10", "010a", "A", "b", "C"},
        {"dl1abc", "=DL1ABC", "=DL001abc", "DL1ABD", "DL2AB", "DL10AB", "DL10AB/P", "EA8/DL2AB"},
        {"7.1", "14.2", "14.15", "20240131", "20240201", "99999999999999999999", "100000000000000000000",
         std::string(400, '9')},
        {"ä7", "=Ä07", "Jena", "jörg", "Jork", "Österreich", "Zürich", "Москва"},
    };
    for (std::vector<std::string> values : ascending) {
        std::vector<bool> isLevel;
        for (std::string& value : values) {
            isLevel.push_back(value.starts_with('='));
            value.erase(0, isLevel.back() ? 1 : 0);
        }
        const auto order = ranks(values);
        for (std::size_t right = 1; right < values.size(); ++right) {
            const std::size_t left = right - 1;
            const auto wanted = isLevel[right] ? std::strong_ordering::equal : std::strong_ordering::less;
            EXPECT_EQ(order[left] <=> order[right], wanted) << values[left] << " " << values[right];
            EXPECT_EQ(NaturalOrder::compare(values[left], values[right]) <=> 0, wanted) << values[right];
        }
    }
}

/// Our own keys for ASCII are good for nothing unless they give the collator's order in every case.
TEST(NaturalOrderOfValues, IsTheCollatorsOwnForGeneratedTexts) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Collator> collator(icu::Collator::createInstance(icu::Locale("de"), status));
    collator->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
    collator->setStrength(icu::Collator::SECONDARY);
    ASSERT_TRUE(U_SUCCESS(status));

    std::mt19937 random(7);
    const auto below = [&](unsigned bound) { return static_cast<unsigned>(random() % bound); };
    const std::vector<std::string> pieces = {"0",  "00", "1", "9",  "12", "a", "A",
                                             "DL", "é",  "ß", "ss", "ａ", "\t"};
    std::vector<std::string> values = {std::string(300, '0') + "5", std::string(300, '5'),
                                       std::string(188, '5')};
    for (int count = 0; count < 1500; ++count) {
        std::string value;
        for (unsigned length = below(7); length > 0; --length) {
            // All of ASCII that can be printed, and short pieces that make long digit runs and near misses.
            value += below(2) == 0 ? std::string(1, static_cast<char>(' ' + below(95)))
                                   : pieces[below(below(4) == 0 ? 13 : 8)];
        }
        values.push_back(value);
    }
    const auto order = ranks(values);
    const auto sign = [](auto left, auto right) { return left < right ? -1 : left > right ? 1 : 0; };
    for (std::size_t left = 0; left < values.size(); ++left) {
        for (std::size_t right = left + 1; right < values.size(); right += 1 + below(8)) {
            ASSERT_EQ(sign(order[left], order[right]),
                      static_cast<int>(collator->compareUTF8(values[left], values[right], status)))
                << "[" << values[left] << "] [" << values[right] << "]";
        }
    }
}

}  // namespace
}  // namespace quillon
