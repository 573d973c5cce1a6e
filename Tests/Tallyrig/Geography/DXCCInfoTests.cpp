// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Geography/DXCCInfo.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

namespace tallyrig {
namespace {

TEST(EntityOfACall, IsThatOfTheShortestPartWithTheLongestPrefixKnown) {
    const struct {
        std::string_view call;
        std::optional<std::string_view> code;
    } cases[] = {{"DL1XYZ", "230"},
                 {" dl1xyz\t", "230"},
                 // The longest prefix wins, at the front of the call and nowhere else.
                 {"HB0ABC", "251"},
                 {"HB9ABC", "287"},
                 {"EA6ABC", "21"},
                 {"CT3ABC", "256"},
                 {"KH6XX", "291"},
                 {"RW3A", "54"},
                 {"2E0ABC", "223"},
                 {"9A1A", "497"},
                 {"XX1DL", std::nullopt},
                 {"1", std::nullopt},
                 // The shortest part goes first, of parts of one length the first; one that is not known is
                 // passed over.
                 {"DL/W1XYZ", "230"},
                 {"W1XYZ/DL", "230"},
                 {"EA8/DL1XYZ", "29"},
                 {"F/G/DL1XYZ", "227"},
                 {"G/F/DL1XYZ", "223"},
                 {"W1XYZ/4", "291"},
                 {"//DL1XYZ///", "230"},
                 // Additions say nothing of the country, if they are not all there is.
                 {"W1XYZ/P", "291"},
                 {"W1XYZ/QRP", "291"},
                 {"M/W1XYZ", "291"},
                 {"M", "223"},
                 {"m/p", "223"},
                 {"P", std::nullopt},
                 {"/P", std::nullopt},
                 // These are additions to the WPX prefix only.
                 {"W1XYZ/PM", "291"},
                 {"PA/PM", "263"},
                 {"DL1XYZ/LGT", "230"},
                 {"XYZ/J", std::nullopt},
                 {"", std::nullopt},
                 {" \t", std::nullopt},
                 {"///", std::nullopt},
                 {"\nDL1XYZ", std::nullopt},
                 {std::string_view("\0DL1XYZ", 7), std::nullopt},
                 // Text is compared as readers see it.
                 {"\u212A1ABC", "291"},          // KELVIN SIGN is a K
                 {"K\u03011ABC", std::nullopt},  // with an accent it is not
                 {"\u00DF", std::nullopt},       // SS in upper case
                 {"DL/\u0301W1XYZ", "230"},      // a slash with an accent separates nothing
                 {"W1XYZ/\u0301DL", "291"},
                 {"УА3ДЛ", std::nullopt}};
    for (const auto& [call, code] : cases) {
        EXPECT_EQ(DXCCInfo::dxccCode(call), code) << call;
    }
    EXPECT_EQ(DXCCInfo::dxccCode(std::string(10'000, '/')), std::nullopt);
    EXPECT_EQ(DXCCInfo::dxccCode("DL1" + std::string(10'000, 'X')), "230");
}

TEST(ContinentOfAnEntity, IsKnownForTheCodeAsItIsWritten) {
    EXPECT_EQ(DXCCInfo::continentOfEntity("230"), "EU");
    EXPECT_EQ(DXCCInfo::continentOfEntity("21"), "AS");
    EXPECT_EQ(DXCCInfo::continentOfEntity("144"), "SA");
    EXPECT_EQ(DXCCInfo::continentOfEntity("1"), "NA");
    for (const char* const code : {"", "7", "0", "01", "0230", "230 ", "231", "1230", "2B0", "²"}) {
        EXPECT_EQ(DXCCInfo::continentOfEntity(code), std::nullopt) << code;
    }
}

TEST(PlaceOfARecord, IsReadFromItsFields) {
    using testing::fields;
    using testing::record;
    const struct {
        std::string_view fields;
        std::optional<std::string> continent;
    } cases[] = {{"CONT=eu ", "EU"},
                 {"CONT=nowhere | DXCC=230", "NOWHERE"},
                 {"CONT=\t | DXCC= 21 ", "AS"},
                 {"DXCC=7", std::nullopt},
                 {"CALL=DL1XYZ", std::nullopt}};
    for (const auto& [text, continent] : cases) {
        EXPECT_EQ(DXCCInfo::continent(record(fields(text))), continent) << text;
    }
    const ADIFRecord qso = record(fields("DXCC= 230\t | CQZ=\u00A014 | ITUZ=28\n"));
    EXPECT_EQ(DXCCInfo::country(qso), "230");
    EXPECT_EQ(DXCCInfo::cqZone(qso), "14");
    EXPECT_EQ(DXCCInfo::ituZone(qso), "28\n");
    EXPECT_EQ(DXCCInfo::country(record({})), "");
}

}  // namespace
}  // namespace tallyrig
