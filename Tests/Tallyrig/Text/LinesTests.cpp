// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Text/Lines.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyrig::text {
namespace {

using Texts = std::vector<std::string_view>;

Texts linesOf(std::string_view text) {
    Texts result;
    for (std::string_view line = takeLine(text); !line.empty(); line = takeLine(text)) {
        result.push_back(line);
    }
    EXPECT_TRUE(text.empty());
    return result;
}

TEST(Lines, EndAtEveryLineBreak) {
    const std::vector<std::pair<std::string_view, Texts>> cases = {
        {"a\nb\r\nc\rd\ve\ff\u0085g\u2028h\u2029i", {"a", "b", "c", "d", "e", "f", "g", "h", "i"}},
        {"\n\r\n\u2028 \n\n\tx", {" ", "\tx"}},
        {"\u0084\u2027\u202A\u00C2\u0305", {"\u0084\u2027\u202A\u00C2\u0305"}},
        {"a\r\u0308b", {"a", "\u0308b"}},
        {"\xE2\x80", {"\xE2\x80"}},
        {"\x1C\x1D\x1E\x1F", {"\x1C\x1D\x1E\x1F"}},
        {"", {}},
        {"\n\u0085", {}}};
    for (const auto& [text, lines] : cases) {
        EXPECT_EQ(linesOf(text), lines) << text;
    }
}

TEST(Lines, AreFoundAtEveryLength) {
    for (std::size_t length = 1; length < 20; ++length) {
        for (const std::string_view lineBreak : {"\n", "\r", "\u0085", "\u2029"}) {
            const std::string line = std::string(length - 1, '~') + '\x10';
            const std::string text = line + std::string(lineBreak) + "second line, not empty";
            EXPECT_EQ(linesOf(text), (Texts{line, "second line, not empty"})) << length;
        }
    }
}

TEST(Pieces, StandBetweenBlanksAndTabs) {
    std::array<std::string_view, 2> pieces;
    EXPECT_TRUE(splitAtBlanks(" a\t b  c\t", pieces));
    EXPECT_EQ(Texts(pieces.begin(), pieces.end()), (Texts{"a", "b"}));
    EXPECT_TRUE(splitAtBlanks("a\u00A0b\nc d", pieces));
    EXPECT_EQ(Texts(pieces.begin(), pieces.end()), (Texts{"a\u00A0b\nc", "d"}));
    for (const std::string_view tooFew : {" a ", " \t", ""}) {
        EXPECT_FALSE(splitAtBlanks(tooFew, pieces)) << tooFew;
    }
}

TEST(Columns, CountCharacters) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"", "    "},          {"ab", "ab  "},
        {"abcde", "abcd"},     {"—", "—   "},
        {"äöüßé", "äöüß"},     {"abcd\u0308e", "abcd\u0308"},
        {"a\r\nb", "a\r\nb "}, {"👨‍👩‍👧x", "👨‍👩‍👧x  "}};
    for (const auto& [text, column] : cases) {
        std::string line = "|";
        appendColumn(line, text, 4);
        EXPECT_EQ(line, "|" + std::string(column)) << text;
    }
}

}  // namespace
}  // namespace tallyrig::text
