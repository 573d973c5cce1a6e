// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Geography/WPXPrefix.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tallyrig {
namespace {

TEST(PrefixOfACall, EndsWithItsLastDigit) {
    const struct {
        std::string_view call;
        std::string_view prefix;
    } cases[] = {
        {"DL1XYZ", "DL1"},
        {" n4xy\t", "N4"},
        {"LY2000A", "LY2000"},
        {"9A1A", "9A1"},
        {"RAEM", "RAEM0"},
        // Of several parts the shortest counts, of parts of one length the first; a third never does.
        {"DL/W1XYZ", "DL0"},
        {"VP2E/W1XYZ", "VP2"},
        {"W1XYZ/VP2E", "VP2"},
        {"W1XYZ/W2XYZ", "W1"},
        {"ABCDE1/VP2E/W1XYZ", "VP2"},
        {"W1XYZ/12", "12"},
        // A single digit is a call area.
        {"W1XYZ/4", "W4"},
        {"4/W1XYZ", "W4"},
        {"W1XYZ/4/VP2E", "VP4"},
        {"RAEM/4", "RAEM4"},
        {"LY2000A/4", "LY2004"},
        {"4/5", "4"},
        // Additions do not count, if they are not all there is.
        {"W1XYZ/P", "W1"},
        {"W1XYZ/4/QRP", "W4"},
        {"W1XYZ/PM", "W1"},
        {"DL1XYZ/LGT", "DL1"},
        {"P", "P0"},
        {"/m/", "M0"},
        {"M/P", ""},
        {"", ""},
        {" \t", ""},
        {"///", ""},
        // Numbers are what Unicode calls so, characters what a reader sees.
        {"DL²XYZ", "DL²"},
        {"W1XYZ/Ⅳ", "WⅣ"},
        {"DL1\u0301XYZ", "DL1\u0301"},
        {"W1XYZ/\u03014", "W1XYZ/\u03014"},
        {"УА3ДЛ", "УА3"}};
    for (const auto& [call, prefix] : cases) {
        EXPECT_EQ(WPXPrefix::prefix(call), prefix) << call;
    }
    EXPECT_EQ(WPXPrefix::prefix(std::string(10'000, 'x') + "1/4"), std::string(10'000, 'X') + "4");
}

}  // namespace
}  // namespace tallyrig
