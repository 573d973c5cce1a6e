#include "Tallyrig/Text/Decoding.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

namespace tallyrig::text {
namespace {

using namespace std::string_literals;

TEST(UTF16, IsReadByItsByteOrderMarkAndRepaired) {
    const std::pair<std::string, std::optional<std::string>> cases[] = {
        {"", std::nullopt},
        {"DL1ABC", std::nullopt},
        {"\xFF", std::nullopt},
        {"\xEF\xBB\xBFx", std::nullopt},
        {"\xFF\xFE", ""},
        {"\xFE\xFF", ""},
        {"\xFF\xFEJ\0\xF6\0"s, "J\u00F6"},
        {"\xFE\xFF\0J\0\xF6"s, "J\u00F6"},
        {"\xFF\xFE\xAC\x20"s, "\u20AC"},
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
