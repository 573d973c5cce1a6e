#include "Tallyrig/Formats/EDIWriter.h"

#include "Tallyrig/Formats/EDIParser.h"
#include "Tallyrig/Log/LogSupport.h"
#include "Tallyrig/Text/Text.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace tallyrig {
namespace {

using testing::document;
using testing::fields;
using testing::Pairs;
using testing::record;

/// The value of a key in a written file, "none" where the key does not stand there.
std::string valueOf(const std::string& text, const std::string& key) {
    const std::size_t at = text.find("\r\n" + key + "=");
    if (at == std::string::npos) {
        return "none";
    }
    const std::size_t begin = at + key.size() + 3;
    return text.substr(begin, text.find("\r\n", begin) - begin);
}

/// The column, from 1, of each QSO line, joined by blanks.
std::string columnOf(const std::string& text, std::size_t column) {
    std::string_view rest(text);
    rest.remove_prefix(rest.find("\r\n", rest.find("[QSORecords;")) + 2);
    std::string result;
    while (!rest.starts_with("[end;")) {
        const std::string_view line = rest.substr(0, rest.find("\r\n"));
        result += text::split(line, ';').at(column - 1);
        result += ' ';
        rest.remove_prefix(line.size() + 2);
    }
    return result.substr(0, result.size() - 1);
}

TEST(EDIFile, HasTheShapeOfREG1TEST) {
    EDIHeader header;
    header.contestName = "IARU Region 1 VHF";
    header.dateStart = "20240302";
    header.dateEnd = "20240303";
    header.callsign = "DL0AAA";
    header.locator = "JO62QM";
    header.section = "Multi";
    header.band = "144 MHz";
    header.club = "OV X01";
    header.operators = " DL1ABC,, DL2ABC ";
    header.responsibleName = "Jörg";
    header.responsibleCall = "DL1ABC";
    header.responsibleEmail = "dl1abc@example.org";
    header.address1 = "Hauptstraße 1";
    header.address2 = "Hinterhaus";
    header.postalCode = "12345";
    header.city = "Berlin";
    header.txEquipment = "TX";
    header.rxEquipment = "RX";
    header.power = "100";
    header.antenna = "9 Element";
    header.antennaHeight = "10;120";
    header.remarks = "\n Sturm\r\nund Regen \n";
    const ADIFDocument log = document({
        fields("CALL=ok1kim | QSO_DATE=20240302 | TIME_ON=150130 | BAND=2m | MODE=CW | RST_SENT=599 | "
               "RST_RCVD=579 | STX=2 | SRX=14 | GRIDSQUARE=jn58td | COUNTRY=Germany"),
        fields("CALL=DL3AAA | QSO_DATE=20240302 | TIME_ON=1405 | BAND=2M | MODE=USB | STX=1 | SRX_STRING=59 "
               "007 JO62 | GRIDSQUARE=JO62RM | COUNTRY=GERMANY"),
        fields("CALL=OK1KIM | QSO_DATE=20240303 | TIME_ON=0700 | BAND=2m | GRIDSQUARE=JO62"),
    });
    EXPECT_EQ(
        EDIWriter{header}.write(log),
        "[REG1TEST;1]\r\nTName=IARU Region 1 VHF\r\nTDate=20240302;20240303\r\nPCall=DL0AAA\r\n"
        "PWWLo=JO62QM\r\nPExch=JO62QM\r\nPAdr1=Hauptstraße 1\r\nPAdr2=Hinterhaus\r\nPSect=Multi\r\n"
        "PBand=144 MHz\r\nPClub=OV X01\r\nRName=Jörg\r\nRCall=DL1ABC\r\nRAdr1=\r\nRAdr2=\r\nRPoCo=12345\r\n"
        "RCity=Berlin\r\nRCoun=\r\nRPhon=\r\nRHBBS=dl1abc@example.org\r\nMOpe1=DL1ABC\r\nMOpe2=DL2ABC\r\n"
        "STXEq=TX\r\nSPowe=100\r\nSRXEq=RX\r\nSAnte=9 Element\r\nSAntH=10;120\r\nCQSOs=3;1\r\nCQSOP=509\r\n"
        "CWWLs=2;0;1\r\nCWWLB=0\r\nCExcs=0;0;1\r\nCExcB=0\r\nCDXCs=1;0;1\r\nCDXCB=0\r\nCToSc=509\r\n"
        "CODXC=OK1KIM;JN58TD;503\r\n[Remarks]\r\nSturm\r\nund Regen\r\n[QSORecords;3]\r\n"
        "240302;1405;DL3AAA;1;59;001;59;007;;JO62RM;6;;;;\r\n"
        "240302;1501;OK1KIM;2;599;002;579;14;;JN58TD;503;;;;\r\n"
        "240303;0700;OK1KIM;1;59;;59;;;JO62;0;;;;D\r\n[end;3]\r\n");
}

TEST(EDIFile, OfNoQSOsClaimsNothing) {
    const std::string text = EDIWriter{}.write(ADIFDocument());
    EXPECT_NE(text.find("\r\nCQSOs=0;1\r\nCQSOP=\r\nCWWLs=0;0;1\r\n"), std::string::npos) << text;
    EXPECT_TRUE(text.ends_with("CToSc=\r\nCODXC=;;0\r\n[Remarks]\r\n[QSORecords;0]\r\n[end;0]\r\n")) << text;
}

TEST(EDIFile, TakesCallAndLocatorFromTheLogWhereTheHeaderHasNone) {
    const ADIFDocument log =
        document({{{"CALL", "A"}, {"OPERATOR", "dl1abc"}},
                  fields("CALL=B | STATION_CALLSIGN=dl0aaa | MY_GRIDSQUARE=jo62 | GRIDSQUARE=JO63")});
    const std::string text = EDIWriter{}.write(log);
    EXPECT_EQ(valueOf(text, "PCall"), "DL1ABC");
    EXPECT_EQ(valueOf(text, "PWWLo"), "JO62");
    EXPECT_EQ(valueOf(text, "PExch"), "JO62");
    EXPECT_EQ(valueOf(text, "CODXC"), "B;JO63;112");
    EXPECT_EQ(valueOf(text, "MOpe1"), "") << "nothing else is taken";
    EDIHeader header;
    header.callsign = " ";
    EXPECT_EQ(valueOf(EDIWriter{header}.write(log), "PCall"), " ");
}

TEST(EDIOperators, FillAtMostEightKeys) {
    const std::pair<std::string, std::vector<std::string>> cases[] = {
        {" , ,\t,", {"", "", "none"}},
        {"dl1abc", {"dl1abc", "none"}},
        {"A,,B", {"A", "B", "none"}},
        {"A B; C", {"A B; C", "none"}},
        {"1,2,3,4,5,6,7,8,9,10", {"1", "2", "3", "4", "5", "6", "7", "8", "none", "none"}}};
    for (const auto& [operators, values] : cases) {
        EDIHeader header;
        header.operators = operators;
        const std::string text = EDIWriter{header}.write(ADIFDocument());
        for (std::size_t index = 0; index < values.size(); ++index) {
            EXPECT_EQ(valueOf(text, "MOpe" + std::to_string(index + 1)), values[index]) << operators;
        }
    }
}

TEST(EDIPoints, GoByTheirMode) {
    // Of different calls, but for "again", the first call once more; then the points, their sum, the
    // farthest.
    using Case = std::tuple<EDIPointsMode, std::vector<std::string>, std::string, std::string, std::string>;
    using enum EDIPointsMode;
    const std::string greatest = "9223372036854775807";
    const std::vector<Case> cases = {
        {distance, {"123.9", "7"}, "124 8", "132", "A;;124"},
        {distance, {"7", "again 500"}, "8 0", "8", "A;;501"},
        {distance, {"0", "", "x"}, "1 0 0", "1", "A;;1"},
        {distance, {"-5.5", "-0.5"}, "-4 1", "-3", "B;;1"},
        {distance, {"-2.5"}, "-1", "-1", ";;0"},
        {distance, {"inf", "-inf", "nan", "1e308", "-1e308", "5"}, "0 0 0 0 0 6", "6", "F;;6"},
        {blank, {"123", "again 7"}, " ", "", ""},
        {adifField, {"12.5", "again 2.5", "-2.5", "0x10"}, "13 3 -3 16", "29", ""},
        {adifField, {"", "12,5", "1 2"}, "  ", "", ""},
        {adifField, {"inf", "nan", "1e308"}, "0 0 0", "0", ""},
        {adifField, {"9e18", "9e18", "x"}, "9000000000000000000 9000000000000000000 ", greatest, ""}};
    for (const auto& [mode, distances, points, total, best] : cases) {
        EDIHeader header;
        header.pointsMode = mode;
        header.pointsField = "distance";
        std::vector<Pairs> records;
        for (const std::string& distance : distances) {
            const bool isAgain = distance.starts_with("again ");
            records.push_back(
                {{"CALL", std::string(1, isAgain ? 'A' : static_cast<char>('A' + records.size()))},
                 {"DISTANCE", isAgain ? distance.substr(6) : distance}});
        }
        const std::string text = EDIWriter{header}.write(document(records));
        EXPECT_EQ(columnOf(text, 11), points) << distances[0];
        EXPECT_EQ(valueOf(text, "CQSOP"), total) << distances[0];
        EXPECT_EQ(valueOf(text, "CToSc"), total) << distances[0];
        EXPECT_EQ(valueOf(text, "CODXC"), best) << distances[0];
    }
}

TEST(EDIClaim, CountsSquaresCountriesAndBandsWhateverTheirCase) {
    const std::string text = EDIWriter{}.write(document({
        fields("CALL=a | BAND=2m | GRIDSQUARE=jo62aa | COUNTRY=Österreich | DISTANCE=9"),
        {{"CALL", "A"},
         {"BAND", "2M"},
         {"GRIDSQUARE", "JO62"},
         {"COUNTRY", "O\u0308STERREICH"},
         {"DISTANCE", "9"}},
        fields("CALL=A | BAND=2m | GRIDSQUARE=JO | COUNTRY="),
        {{"BAND", ""}, {"GRIDSQUARE", ""}},
        {{"BAND", "70cm"}},
    }));
    EXPECT_EQ(valueOf(text, "CQSOs"), "5;2");
    EXPECT_EQ(valueOf(text, "CWWLs"), "2;0;2");
    EXPECT_EQ(valueOf(text, "CDXCs"), "1;0;2");
    EXPECT_EQ(valueOf(text, "CExcs"), "0;0;2");
    EXPECT_EQ(valueOf(text, "CODXC"), "A;JO62AA;10") << "of two as far the earlier one";
    EXPECT_EQ(columnOf(text, 15), "  D  ") << "a band of other case is another one for duplicates";
}

TEST(EDIQSOLine, HasFifteenColumns) {
    const std::pair<Pairs, std::string> cases[] = {
        {{}, ";;;1;59;;59;;;L;P;;;;D"},
        {{{"CALL", "dl1abc"}, {"QSO_DATE", "20240115"}, {"TIME_ON", "123456"}},
         "240115;1234;DL1ABC;1;59;;59;;;L;P;;;;D"},
        {{{"QSO_DATE", "2024011"}, {"TIME_ON", "12"}}, "2024011;12;;1;59;;59;;;L;P;;;;D"},
        {{{"QSO_DATE", "ÄÖÜ40115"}, {"TIME_ON", "1234ä"}}, "Ü40115;1234;;1;59;;59;;;L;P;;;;D"},
        {{{"MODE", "cw"}, {"RST_SENT", ""}, {"RST_RCVD", "599"}}, ";;;2;59;;599;;;L;P;;;;D"},
        {{{"STX", "7"}}, ";;;1;59;007;59;;;L;P;;;;D"},
        {{{"STX", "1234"}, {"SRX", "0012"}}, ";;;1;59;1234;59;0012;;L;P;;;;D"},
        {{{"STX", "-5"}}, ";;;1;59;-05;59;;;L;P;;;;D"},
        {{{"STX", "ABC"}, {"SRX_STRING", ""}, {"SRX", "x 3"}}, ";;;1;59;ABC;59;3;;L;P;;;;D"},
        {{{"STX", "9223372036854775808"}, {"SRX_STRING", "x"}, {"SRX", "3"}},
         ";;;1;59;9223372036854775808;59;;;L;P;;;;D"}};
    for (const auto& [fields, line] : cases) {
        EXPECT_EQ(EDIWriter::qsoLine(record(fields), "L", "P", "D"), line);
    }
}

TEST(EDIDuplicates, AreTheSameCallOnTheSameBandAgain) {
    const std::vector<ADIFRecord> records = {
        record({{"CALL", "ok1abc"}, {"BAND", "2M"}}),   record({{"CALL", "OK1ABC"}, {"BAND", "70CM"}}),
        record({{"CALL", "OK1ABC"}, {"BAND", "2m"}}),   record({{"CALL", "OK1ABC"}, {"BAND", "2M"}}),
        record({{"CALL", "OK2ABC"}, {"BAND", "2M"}}),   record({}),
        record({{"CALL", "OK1ABC"}, {"BAND", "70CM"}}), record({{"MODE", "CW"}})};
    EXPECT_EQ(EDIWriter::computeDupes(records),
              (std::vector<bool>{false, false, false, true, false, false, true, true}));
}

TEST(EDIQSOLine, TakesTheLastNumberOfAnExchange) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", ""},          {"  \t", ""},       {"123", "123"},  {"JO62 123", "123"}, {"123 JO62", "123"},
        {"59 001", "001"}, {"59 001 ", "001"}, {"1 x 2y", "1"}, {"59\t001", ""},     {"12a", ""},
        {"-5", ""},        {"a ½ b", "½"},     {"٣ JO62", "٣"}};
    for (const auto& [exchange, serial] : cases) {
        EXPECT_EQ(EDIWriter::serialFromExchange(exchange), serial) << exchange;
    }
    EXPECT_EQ(EDIWriter::serialFromExchange(std::nullopt), "");
}

TEST(EDIDistance, IsTheLogsOwnBeforeThatOfTheLocators) {
    const std::vector<std::pair<Pairs, std::int64_t>> cases = {
        {{}, 0},
        {{{"GRIDSQUARE", "JN5"}}, 0},
        {{{"GRIDSQUARE", "jo62qm"}}, 1},
        {{{"GRIDSQUARE", "jn58td"}}, 503},
        {{{"GRIDSQUARE", "jn58td"}, {"DISTANCE", "123.9"}}, 124},
        {{{"GRIDSQUARE", "jn58td"}, {"DISTANCE", "12,5"}}, 503},
        {{{"GRIDSQUARE", "jn58td"}, {"DISTANCE", ""}}, 503},
        {{{"GRIDSQUARE", "jn58td"}, {"DISTANCE", "inf"}}, 0}};
    for (const auto& [fields, km] : cases) {
        EXPECT_EQ(EDIWriter::qrbKm(record(fields), "JO62QM"), km);
    }
}

TEST(EDIBands, HaveTheirNamesBothWays) {
    EXPECT_EQ(EDIWriter::ediBand("70cm"), "432 MHz");
    EXPECT_EQ(EDIWriter::ediBand("1.25M"), "220 MHz");
    EXPECT_EQ(EDIParser::adifBand("2,3 ghz"), "13CM");
    EXPECT_EQ(EDIWriter::ediBand("20m"), "20m");
}

TEST(EDIModes, HaveOneCodeForAKind) {
    const std::pair<std::string, std::string> cases[] = {{"usb", "1"},    {"CW", "2"},  {"NFM", "6"},
                                                         {"msk144", "7"}, {"PSK", "1"}, {"", "1"}};
    for (const auto& [mode, code] : cases) {
        EXPECT_EQ(EDIWriter::ediMode(mode), code) << mode;
    }
    EXPECT_EQ(EDIWriter::ediMode(std::nullopt), "1");
}

TEST(SuggestedEDIHeader, TakesTheFirstValuesOfTheLog) {
    EDIHeader expected;
    EXPECT_EQ(EDIHeader::suggested(ADIFDocument()), expected);
    expected.contestName = "DARC-VHF";
    expected.dateStart = "20240302";
    expected.dateEnd = "2024ÄÖ05";
    expected.callsign = "DL9ZZZ";
    expected.locator = "JO62QM";
    expected.band = "432 MHz";
    expected.operators = "DL1ABC";
    EXPECT_EQ(EDIHeader::suggested(document({
                  {{"QSO_DATE", "2024030"}, {"CONTEST_ID", ""}, {"OWNER_CALLSIGN", "dl9zzz"}},
                  fields("QSO_DATE=20240303 | CONTEST_ID=darc-vhf | STATION_CALLSIGN=DL0AAA | BAND=70cm"),
                  fields("QSO_DATE=20240302 | MY_GRIDSQUARE=jo62qm | OPERATOR=dl1abc | BAND=2m"),
                  {{"QSO_DATE", "2024ÄÖ05"}},
              })),
              expected);
    EXPECT_EQ(EDIHeader::suggested(document({{{"BAND", "11m"}}})).band, "11m");
}

TEST(EDIHeaderMembers, AreSetByTheirNames) {
    EDIHeader header;
    const auto names = EDIHeader::memberNames();
    ASSERT_EQ(names.size(), 24U);
    EXPECT_EQ(names.front(), "contestName");
    EXPECT_EQ(names.back(), "pointsField");
    for (const std::string_view name : names) {
        EXPECT_TRUE(header.setMember(name, "blank")) << name;
    }
    EXPECT_EQ(header.contestName, "blank");
    EXPECT_EQ(header.remarks, "blank");
    EXPECT_EQ(header.pointsMode, EDIPointsMode::blank);
    EXPECT_TRUE(header.setMember("pointsMode", "adifField"));
    const EDIHeader before = header;
    EXPECT_FALSE(header.setMember("pointsMode", "adiffield"));
    EXPECT_FALSE(header.setMember("Locator", "JO62"));
    EXPECT_EQ(header, before);
    EXPECT_EQ(storedText(EDIPointsMode::distance), "distance");
}

}  // namespace
}  // namespace tallyrig
