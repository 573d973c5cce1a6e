#include "Tallyrig/Formats/LogLines.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyrig {
namespace {

using testing::logOf;

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

TEST(FileText, IsUTF8OrElseLatin1) {
    EXPECT_EQ(FileText("\xEF\xBB\xBFö").text(), "ö");
    EXPECT_EQ(FileText("\xF6 \xC3\xB6").text(), "ö Ã¶");
    EXPECT_EQ(FileText("").text(), "");
}

TEST(NumericCharacters, AreThoseOfAnyScript) {
    EXPECT_EQ(numericCharacters("2024-01-15 x"), "20240115");
    EXPECT_EQ(numericCharacters("٣-½Ⅳäx1"), "٣½Ⅳ1");
    EXPECT_EQ(numericCharacters("1\u0308-2"), "1\u03082");
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
    EXPECT_EQ(firstCharacters("abc\u0308d", 3), "abc\u0308");
    EXPECT_TRUE(hasLength("a\r\nbc\u0308", 4));
    EXPECT_FALSE(hasLength("a\r\nb", 4));
}

TEST(TimeOrder, IsThatOfTheTextsAndStable) {
    const ADIFDocument log = logOf({"N=1 | QSO_DATE=20240116", "N=2 | QSO_DATE=20240115 | TIME_ON=1200",
                                    "N=3 | TIME_ON=2024011512", "N=4 | TIME_ON=1200 | QSO_DATE=20240115",
                                    "N=5", "N=6 | QSO_DATE=2024011512", "N=7 | QSO_DATE=ö",
                                    "N=8 | QSO_DATE=o\u0308", "N=9 | QSO_DATE=z"});
    std::string order;
    for (const ADIFRecord& record : inTimeOrder(log.records())) {
        order += record.valueOrEmpty("N");
    }
    EXPECT_EQ(order, "536241978");
}

TEST(FirstValue, IsSoughtRecordByRecord) {
    const ADIFDocument log = logOf({"A= | A=hidden", "B=b", "A=a"});
    EXPECT_EQ(firstValue(log, {"A", "B"}), "b");
    EXPECT_EQ(firstValue(log, {"A"}), "a");
    EXPECT_EQ(firstValue(log, {"C"}), "");
}

}  // namespace
}  // namespace tallyrig
