// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/CabrilloWriter.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <tuple>

namespace tallyrig {
namespace {

using testing::fields;
using testing::logOf;
using testing::recordOf;

std::string lineOf(std::string_view qso, const CabrilloHeader& header = {}) {
    return CabrilloWriter{header}.qsoLine(recordOf(qso), "DL1ABC");
}

TEST(SuggestedCabrilloHeader, TakesCallAndContestFromTheLog) {
    CabrilloHeader header;
    header.version = "3.0";
    header.categoryBand = "ALL";
    header.categoryMode = "MIXED";
    header.createdBy = "Quillon";
    EXPECT_EQ(CabrilloHeader::suggested({}), header);
    header.callsign = "DL2OP";
    header.contest = "CQ-WW-SSB";
    EXPECT_EQ(CabrilloHeader::suggested(logOf({"STATION_CALLSIGN= | OWNER_CALLSIGN=dl3own | OPERATOR=dl2op",
                                               "STATION_CALLSIGN=DL1ABC | CONTEST_ID=cq-ww-ssb"})),
              header);
}

TEST(WrittenCabrillo, HasTheObligatoryLinesEvenIfEmpty) {
    EXPECT_EQ(CabrilloWriter{}.write({}),
              "START-OF-LOG: \r\nCONTEST: \r\nCALLSIGN: \r\nOPERATORS: \r\nCATEGORY-OPERATOR: \r\n"
              "CATEGORY-BAND: \r\nCATEGORY-MODE: \r\nCATEGORY-POWER: \r\nCATEGORY-STATION: \r\n"
              "CREATED-BY: \r\nEND-OF-LOG:\r\n");
}

TEST(WrittenCabrillo, HasAMemberOfTheHeaderInEachLine) {
    CabrilloHeader header;
    EXPECT_EQ(CabrilloHeader::memberNames().size(), 21U);
    for (const std::string_view name : CabrilloHeader::memberNames()) {
        EXPECT_TRUE(header.setMember(name, name)) << name;
    }
    EXPECT_TRUE(header.setMember("version", " 3.0 "));
    EXPECT_TRUE(header.setMember("club", "\u00A0OV\n"));
    EXPECT_TRUE(header.setMember("soapbox", "one\n\n two \r\n"));
    EXPECT_FALSE(header.setMember("Version", "2.0"));
    EXPECT_EQ(CabrilloWriter{header}.write(logOf({"STATION_CALLSIGN=DL9ZZZ"})),
              "START-OF-LOG:  3.0 \r\nCONTEST: contest\r\nCALLSIGN: callsign\r\nOPERATORS: operators\r\n"
              "NAME: name\r\nEMAIL: email\r\nGRID-LOCATOR: gridLocator\r\nLOCATION: location\r\n"
              "CATEGORY-OPERATOR: categoryOperator\r\nCATEGORY-ASSISTED: categoryAssisted\r\n"
              "CATEGORY-BAND: categoryBand\r\nCATEGORY-MODE: categoryMode\r\n"
              "CATEGORY-POWER: categoryPower\r\nCATEGORY-STATION: categoryStation\r\n"
              "CATEGORY-TRANSMITTER: categoryTransmitter\r\nCATEGORY-TIME: categoryTime\r\n"
              "CLAIMED-SCORE: claimedScore\r\nCLUB: OV\r\nCREATED-BY: createdBy\r\n"
              "SOAPBOX: one\r\nSOAPBOX: two\r\n"
              "QSO:     0 DG   callsign          sentEx                   —      0\r\n"
              "END-OF-LOG:\r\n");
}

TEST(WrittenCabrillo, TakesAMissingCallFromTheLog) {
    const std::string text = CabrilloWriter{}.write(logOf({"OPERATOR=dl2op"}));
    EXPECT_NE(text.find("\r\nCALLSIGN: DL2OP\r\nOPERATORS: DL2OP\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find(" DL2OP         "), std::string::npos) << text;
}

TEST(WrittenCabrillo, StandsInOrderOfTime) {
    const std::string text = CabrilloWriter{}.write(logOf(
        {"CALL=LATER | QSO_DATE=20240116 | TIME_ON=0001", "CALL=SOONER | QSO_DATE=20240115 | TIME_ON=2359"}));
    EXPECT_LT(text.find(" SOONER "), text.find(" LATER ")) << text;
}

TEST(QSOLine, HasFixedColumns) {
    EXPECT_EQ(
        lineOf("FREQ=14.074 | MODE=FT8 | QSO_DATE=20240115 | TIME_ON=123456 | CALL=k1xyz | RST_SENT=599 | "
               "RST_RCVD=599"),
        "QSO: 14074 DG 2024-01-15 1234 DL1ABC        599 —      K1XYZ         599 —      0");
    EXPECT_EQ(
        lineOf("FREQ=144.3 | MODE=cw | QSO_DATE=ä2345678 | TIME_ON=1\u0308234567 | CALL=dl1abc/portabel | "
               "RST_SENT=59999 | STX_STRING=öäüßéxyz | RST_RCVD=5 | SRX_STRING=0012345"),
        "QSO: 144300 CW ä234-56-78 1\u0308234 DL1ABC        599 öäüßéx DL1ABC/PORTAB 5   001234 0");
}

TEST(QSOLine, FindsItsExchangeInSeveralPlaces) {
    const std::tuple<std::string_view, std::string, std::string, std::string> cases[] = {
        {"STX=1 | CQZ=5", "", "—     ", "05    "},
        {"CQZ=-5", "14", "14    ", "-5    "},
        {"CQZ=DL | SRX=", "14", "14    ", "—     "},
        {"CQZ=123", "", "—     ", "123   "},
        {"STX_STRING=7 | SRX=8 | SRX_STRING= | CQZ=5", "14", "7     ", "8     "},
        {"STX_STRING= | SRX=8 | SRX_STRING=9", "", "—     ", "9     "}};
    for (const auto& [qso, sentExchange, sent, received] : cases) {
        CabrilloHeader header;
        header.sentExchange = sentExchange;
        EXPECT_EQ(lineOf(qso, header),
                  "QSO:     0 DG   DL1ABC            " + sent + "                   " + received + " 0");
    }
}

TEST(CabrilloFrequency, IsWholeKilohertz) {
    using Text = std::optional<std::string_view>;
    constexpr std::nullopt_t none = std::nullopt;
    const std::tuple<Text, Text, std::string> cases[] = {
        {"14.074", "40M", "14074"}, {"7.1", none, "7100"},    {"1.8325", none, "1833"},
        {"-1.8325", none, "-1833"}, {" 1e2", none, "100000"}, {"-0.0001", none, "0"},
        {"7,1", "40m", "7000"},     {"", "60M", "5351"},      {none, "1.25M", "222000"},
        {none, "23CM", "0"},        {"7.1 MHz", none, "0"},   {none, none, "0"},
        {"inf", "40M", "0"},        {"nan", "40M", "0"},      {"9.3e15", "40M", "0"},
        {"-1e300", none, "0"}};
    for (const auto& [freq, band, kHz] : cases) {
        EXPECT_EQ(CabrilloWriter::cabrilloFrequency(freq, band), kHz) << freq.value_or("");
    }
    EXPECT_TRUE(lineOf("FREQ=1.8").starts_with("QSO:  1800 DG "));
    EXPECT_TRUE(lineOf("BAND=2M").starts_with("QSO: 144000 DG "));
}

TEST(CabrilloMode, IsOneOfFour) {
    for (const auto& [mode, cabrillo] : fields(
             "CW=CW | cw=CW | SSB=PH | usb=PH | LSB=PH | AM=PH | FM=PH | RTTY=RY | FT8=DG | =DG | CW =DG")) {
        EXPECT_EQ(CabrilloWriter::cabrilloMode(mode), cabrillo) << mode;
    }
    EXPECT_EQ(CabrilloWriter::cabrilloMode(std::nullopt), "DG");
}

}  // namespace
}  // namespace tallyrig
