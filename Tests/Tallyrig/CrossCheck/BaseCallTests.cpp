// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/BaseCall.h"

#include <gtest/gtest.h>

#include <string_view>
#include <utility>

namespace tallyrig {
namespace {

TEST(BaseOfACall, IsItsLongestPartThatLooksLikeOne) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {" dl1xyz\t", "DL1XYZ"},
        {"DL1XYZ/P", "DL1XYZ"},
        {"EA8/DL1XYZ/QRP", "DL1XYZ"},
        {"DL1A/DL2B", "DL1A"},
        {"DL1A/PORTABEL", "DL1A"},
        {"DL1A/12345", "DL1A"},
        {"ABC/DE/FGH", "ABC"},
        {"/DL1XYZ", "/DL1XYZ"},
        {"///", "///"},
        {"", ""},
        {"DLⅣ/ABCD", "DLⅣ"},
        {"DL1A/\u0301PORT", "DL1A/\u0301PORT"},
    };
    for (const auto& [call, base] : cases) {
        EXPECT_EQ(baseCall(call), base) << call;
    }
}

}  // namespace
}  // namespace tallyrig
