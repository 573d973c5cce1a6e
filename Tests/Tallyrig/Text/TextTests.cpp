// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace tallyrig::text {
namespace {

using namespace std::string_literals;

TEST(Case, UsesTheFullUnicodeMappings) {
    EXPECT_EQ(upper("dl1abc/p"), "DL1ABC/P");
    EXPECT_EQ(upper("Straße"), "STRASSE");
    EXPECT_EQ(upper("jörg"), "JÖRG");
    EXPECT_EQ(upper("ŉ"), "ʼN");
    EXPECT_EQ(lower("ÄÖÜ QTH"), "äöü qth");
    // Not the Turkish mapping, whatever the machine's locale: a capital I gives a plain i.
    EXPECT_EQ(lower("TITI"), "titi");
    EXPECT_EQ(lower("ΟΔΟΣ"), "οδος");
    EXPECT_EQ(upper("a\0b"s), "A\0B"s);
}

// Texts are looked at several bytes at a time.
TEST(Case, IsSeenAtEveryPlace) {
    for (std::size_t size = 1; size < 20; ++size) {
        for (std::size_t place = 0; place < size; ++place) {
            for (const char small : {'a', 'z'}) {
                std::string text(size, place % 2 == 0 ? '`' : '{');
                std::string expected = text;
                std::string buffer;
                EXPECT_EQ(upper(text, buffer).data(), text.data());
                text[place] = small;
                expected[place] = static_cast<char>(small - 'a' + 'A');
                EXPECT_EQ(upper(text, buffer), expected);
                EXPECT_FALSE(equal(text, expected));
                EXPECT_TRUE(equal(expected, std::string(upper(text, buffer))));
                text[place] = '\xFF';
                EXPECT_FALSE(isASCII(text)) << size << ' ' << place;
            }
        }
    }
}

TEST(Equality, IsCanonicalEquivalence) {
    const std::string composed = "J\u00F6rg";
    const std::string decomposed = "Jo\u0308rg";
    EXPECT_TRUE(equal(composed, decomposed));
    EXPECT_EQ(canonicalKey(composed), canonicalKey(decomposed));
    EXPECT_TRUE(equal("\u212A", "K")) << "the kelvin sign is a K";
    EXPECT_FALSE(equal("Jorg", composed));
    EXPECT_FALSE(equal("a", "A"));
    EXPECT_EQ(compare(composed, decomposed), std::strong_ordering::equal);
    EXPECT_EQ(compare("Zebra", "Äpfel"), std::strong_ordering::less) << "order is by code point";
    EXPECT_EQ(compare("a", "B"), std::strong_ordering::greater);
}

TEST(Trimming, KnowsTwoKindsOfWhiteSpace) {
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"", "", ""},
        {"DL1ABC", "DL1ABC", "DL1ABC"},
        {"  a b\t", "a b", "a b"},
        {"\r\n a \v\f", "a", "\r\n a \v\f"},
        {"\u00A0x\u3000", "x", "x"},
        {"\u0085x\u2028", "x", "\u0085x\u2028"},
        {" \n\t ", "", "\n"},
        {"\u200Bx", "\u200Bx", "\u200Bx"},  // a zero-width space is a format character
        {" \u00F6 ", "\u00F6", "\u00F6"},
        {"\0 "s, "\0"s, "\0"s}};
    for (const auto& [text, trimmedText, withoutBlanks] : cases) {
        EXPECT_EQ(trimmed(text), trimmedText) << testing::PrintToString(text);
        EXPECT_EQ(trimmedOfBlanks(text), withoutBlanks) << testing::PrintToString(text);
    }
}

TEST(Splitting, KeepsEmptyPieces) {
    using Pieces = std::vector<std::string_view>;
    EXPECT_EQ(split("", ':'), (Pieces{""}));
    EXPECT_EQ(split("A::B", ':'), (Pieces{"A", "", "B"}));
    EXPECT_EQ(split(":", ':'), (Pieces{"", ""}));
}

TEST(Characters, AreWhatAReaderSees) {
    using Pieces = std::vector<std::string_view>;
    EXPECT_EQ(characters("DL1"), (Pieces{"D", "L", "1"}));
    EXPECT_EQ(characters("a\r\nb"), (Pieces{"a", "\r\n", "b"}));
    EXPECT_EQ(characters("\u00F6\r\n\n\r"), (Pieces{"\u00F6", "\r\n", "\n", "\r"}));
    EXPECT_EQ(characters("o\u0308x"), (Pieces{"o\u0308", "x"}));
    EXPECT_EQ(characterCount("\U0001F1E9\U0001F1EA\U0001F468\u200D\U0001F469\u200D\U0001F467"), 2U)
        << "a flag and a family";
    EXPECT_EQ(characterCount(""), 0U);
    EXPECT_EQ(characterCount("\n\r\n\r\r\n"), 4U);
}

TEST(CharacterClasses, AreThoseOfTheFirstCodePoint) {
    for (const char* letter : {"A", "z", "ß", "Ж", "日", "o\u0308"}) {
        EXPECT_TRUE(isLetter(letter)) << letter;
    }
    for (const char* other : {"", "1", "/", " ", "\u0308o", "\u2160"}) {
        EXPECT_FALSE(isLetter(other)) << other;
    }
    for (const char* numeric : {"0", "9", "٣", "½", "\u2167", "²", "五", "1\u0308"}) {
        EXPECT_TRUE(isNumeric(numeric)) << numeric;
    }
    for (const char* other : {"", "A", "-", "."}) {
        EXPECT_FALSE(isNumeric(other)) << other;
    }
    EXPECT_TRUE(isAllNumeric(""));
    EXPECT_TRUE(isAllNumeric("20٢٤"));
    EXPECT_FALSE(isAllNumeric("2024-"));
    EXPECT_FALSE(isAllNumeric("٢x"));
}

TEST(NumericCharacters, AreThoseOfAnyScript) {
    EXPECT_EQ(numericCharacters("2024-01-15 x"), "20240115");
    EXPECT_EQ(numericCharacters("٣-½Ⅳäx1"), "٣½Ⅳ1");
    EXPECT_EQ(numericCharacters("1\u0308-2"), "1\u03082");
}

TEST(Integers, AreASignAndDigitsWithin64Bits) {
    EXPECT_EQ(integer("42"), 42);
    EXPECT_EQ(integer("+7"), 7);
    EXPECT_EQ(integer("-007"), -7);
    EXPECT_EQ(integer("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(integer("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
    for (const char* text : {"", "+", "-", "+-5", "--5", " 5", "5 ", "5x", "1e3", "0x10", "٣",
                             "9223372036854775808", "1000000000000000000000000000000"}) {
        EXPECT_FALSE(integer(text)) << text;
    }
}

TEST(Numbers, FollowStrtodInTheCLocale) {
    constexpr std::string_view cases =
        "14.074|7|.5|5.|-1e3|+1E-2| \t\n1.5|1.5 |14,074|1_000|1 2|1d5|| |.|+|-|+-1|--1|e5|1e|1e+|"
        "0x10|0X1.8P3|0x.8|0x|0xg|0x-1|0xinf|0xnan|0x1p|0x1p99999|0x1p-99999|"
        "inf|-Infinity|INFIN|nan|-NAN|nan(12_a)|nan(|nan(-)|"
        "1e400|-1e400|1e-400|0.0001e-330|0e999999|1e99999999999999999999|1e-99999999999999999999";
    for (const std::string_view piece : split(cases, '|')) {
        const std::string text(piece);
        char* end = nullptr;
        const double expected = std::strtod(text.c_str(), &end);
        const bool isNumber = !text.empty() && *end == '\0';
        const auto found = number(text);
        ASSERT_EQ(found.has_value(), isNumber) << '"' << text << '"';
        EXPECT_TRUE(!found || std::isnan(expected) || *found == expected) << text;
    }
    EXPECT_FALSE(number("1\0"s)) << "a zero byte is something left over";
}

TEST(Decoding, TakesUTF8IfItIsThatAndLatin1Otherwise) {
    EXPECT_EQ(decoded("J\xC3\xB6rg"), "Jörg");
    EXPECT_EQ(decoded("J\xF6rg"), "Jörg");
    EXPECT_EQ(decoded("\xC3"), "Ã") << "a sequence cut in two";
    EXPECT_EQ(decoded("\xC0\x80"), "\u00C0\u0080") << "an overlong zero is no UTF-8";
    EXPECT_EQ(decoded("\xED\xA0\x80"), "\u00ED\u00A0\u0080") << "nor is a surrogate";
    EXPECT_EQ(decoded("\xF4\x90\x80\x80"), "\u00F4\u0090\u0080\u0080") << "nor anything above U+10FFFF";
    std::string buffer = "old";
    EXPECT_EQ(decoded("\xF6 \xC3\xB6", buffer), "ö Ã¶");
    EXPECT_EQ(repaired("a\xFFz"), "a\uFFFDz");
    EXPECT_EQ(repaired("a\xE2\x82"), "a\uFFFD");
    EXPECT_EQ(withoutByteOrderMark("\xEF\xBB\xBFx"), "x");
    EXPECT_EQ(withoutByteOrderMark("x\xEF\xBB\xBF"), "x\xEF\xBB\xBF");
}

TEST(UTF16, IsReadByItsByteOrderMarkAndRepaired) {
    const std::pair<std::string, std::optional<std::string>> cases[] = {
        {"", std::nullopt},
        {"\xFF", std::nullopt},
        {"\xEF\xBB\xBFx", std::nullopt},
        {"\xFF\xFE", ""},
        {"\xFF\xFEJ\0\xF6\0"s, "J\u00F6"},
        {"\xFE\xFF\0J\0\xF6"s, "J\u00F6"},
        {"\xFF\xFE\x3D\xD8\xFB\xDC", "\U0001F4FB"},
        {"\xFE\xFF\xD8\x3D\xDC\xFB", "\U0001F4FB"},
        {"\xFE\xFF\xFE\xFF", "\uFEFF"},  // only the first one is a mark
        {"\xFE\xFF\xD8\x3D\0x"s, "\uFFFDx"},
        {"\xFE\xFF\xDC\xFB\xD8\x3D", "\uFFFD\uFFFD"},
        {"\xFE\xFF\xD8\x3D\xD8\x3D\xDC\xFB", "\uFFFD\U0001F4FB"},
        {"\xFE\xFF\0x\xD8"s, "x\uFFFD"},
        {"\xFF\xFE\x3D\xD8\xFB", "\uFFFD\uFFFD"}};
    for (const auto& [bytes, text] : cases) {
        EXPECT_EQ(fromUTF16(bytes), text) << ::testing::PrintToString(bytes);
    }
}

}  // namespace
}  // namespace tallyrig::text
