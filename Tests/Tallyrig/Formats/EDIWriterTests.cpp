// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/EDIWriter.h"

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
using testing::logOf;
using testing::Pairs;
using testing::recordOf;

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
    EXPECT_EQ(EDIHeader::memberNames().size(), 24U);
    for (const std::string_view name : EDIHeader::memberNames()) {
        EXPECT_EQ(header.setMember(name, name), name != "pointsMode") << name;
    }
    header.locator = "JO62QM";
    header.operators = " DL1ABC,, DL2ABC ";
    header.remarks = "\n Sturm\r\nund Regen \n";
    const ADIFDocument log = logOf({
        "CALL=ok1kim | QSO_DATE=20240302 | TIME_ON=150130 | BAND=2m | MODE=CW | RST_SENT=599 | "
        "RST_RCVD=579 | STX=2 | SRX=14 | GRIDSQUARE=jn58td | COUNTRY=Germany",
        "CALL=DL3AAA | QSO_DATE=20240302 | TIME_ON=1405 | BAND=2M | MODE=USB | STX=1 | SRX_STRING=59 "
        "007 JO62 | GRIDSQUARE=JO62RM | COUNTRY=GERMANY",
        "CALL=OK1KIM | QSO_DATE=20240303 | TIME_ON=0700 | BAND=2m | GRIDSQUARE=JO62",
    });
    EXPECT_EQ(EDIWriter{header}.write(log),
              "[REG1TEST;1]\r\nTName=contestName\r\nTDate=dateStart;dateEnd\r\nPCall=callsign\r\n"
              "PWWLo=JO62QM\r\nPExch=JO62QM\r\nPAdr1=address1\r\nPAdr2=address2\r\nPSect=section\r\n"
              "PBand=band\r\nPClub=club\r\nRName=responsibleName\r\nRCall=responsibleCall\r\nRAdr1=\r\n"
              "RAdr2=\r\nRPoCo=postalCode\r\nRCity=city\r\nRCoun=\r\nRPhon=\r\nRHBBS=responsibleEmail\r\n"
              "MOpe1=DL1ABC\r\nMOpe2=DL2ABC\r\nSTXEq=txEquipment\r\nSPowe=power\r\nSRXEq=rxEquipment\r\n"
              "SAnte=antenna\r\nSAntH=antennaHeight\r\nCQSOs=3;1\r\nCQSOP=509\r\n"
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
        logOf({"CALL=A | OPERATOR=dl1abc",
               "CALL=B | STATION_CALLSIGN=dl0aaa | MY_GRIDSQUARE=jo62 | GRIDSQUARE=JO63"});
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
    const std::pair<std::string, std::string> cases[] = {
        {" , ,\t,", "MOpe1=\r\nMOpe2=\r\n"},
        {"A B; c", "MOpe1=A B; c\r\n"},
        {"1,2,3,4,5,6,7,8,9,10",
         "MOpe1=1\r\nMOpe2=2\r\nMOpe3=3\r\nMOpe4=4\r\nMOpe5=5\r\nMOpe6=6\r\nMOpe7=7\r\nMOpe8=8\r\n"}};
    for (const auto& [operators, keys] : cases) {
        EDIHeader header;
        header.operators = operators;
        const std::string text = EDIWriter{header}.write(ADIFDocument());
        EXPECT_NE(text.find("RHBBS=\r\n" + keys + "STXEq="), std::string::npos) << text;
    }
}

TEST(EDIPoints, GoByTheirMode) {
    // Calls with their distances; then the points, their sum, the farthest.
    using Case = std::tuple<EDIPointsMode, std::string, std::string, std::string, std::string>;
    using enum EDIPointsMode;
    const Case cases[] = {{distance, "A:123.9;B:7", "124 8", "132", "A;;124"},
                          {distance, "A:7;A:500", "8 0", "8", "A;;501"},
                          {distance, "A:0;B:;C:x", "1 0 0", "1", "A;;1"},
                          {distance, "A:-5.5;B:-0.5", "-4 1", "-3", "B;;1"},
                          {distance, "A:-2.5", "-1", "-1", ";;0"},
                          {distance, "A:inf;B:-inf;C:nan;D:1e308;E:-1e308;F:5", "0 0 0 0 0 6", "6", "F;;6"},
                          {blank, "A:123;A:7", " ", "", ""},
                          {adifField, "A:12.5;A:2.5;B:-2.5;C:0x10", "13 3 -3 16", "29", ""},
                          {adifField, "A:;B:12,5;C:1 2", "  ", "", ""},
                          {adifField, "A:inf;B:nan;C:1e308", "0 0 0", "0", ""},
                          {adifField, "A:9e18;B:9e18;C:x", "9000000000000000000 9000000000000000000 ",
                           "9223372036854775807", ""}};
    for (const auto& [mode, distances, points, total, best] : cases) {
        EDIHeader header;
        header.pointsMode = mode;
        header.pointsField = "distance";
        std::vector<Pairs> records;
        for (const std::string_view qso : text::split(distances, ';')) {
            records.push_back(
                {{"CALL", std::string(qso.substr(0, 1))}, {"DISTANCE", std::string(qso.substr(2))}});
        }
        const std::string text = EDIWriter{header}.write(document(records));
        EXPECT_EQ(columnOf(text, 11), points) << distances;
        EXPECT_EQ(valueOf(text, "CQSOP"), total) << distances;
        EXPECT_EQ(valueOf(text, "CToSc"), total) << distances;
        EXPECT_EQ(valueOf(text, "CODXC"), best) << distances;
    }
}

TEST(EDIClaim, CountsSquaresCountriesAndBandsWhateverTheirCase) {
    const std::string text = EDIWriter{}.write(
        logOf({"CALL=a | BAND=2m | GRIDSQUARE=jo62aa | COUNTRY=Österreich | DISTANCE=9",
               "CALL=A | BAND=2M | GRIDSQUARE=JO62 | COUNTRY=O\u0308STERREICH | DISTANCE=9",
               "CALL=A | BAND=2m | GRIDSQUARE=JO | COUNTRY=", "BAND= | GRIDSQUARE=", "BAND=70cm"}));
    EXPECT_EQ(valueOf(text, "CQSOs"), "5;2");
    EXPECT_EQ(valueOf(text, "CWWLs"), "2;0;2");
    EXPECT_EQ(valueOf(text, "CDXCs"), "1;0;2");
    EXPECT_EQ(valueOf(text, "CExcs"), "0;0;2");
    EXPECT_EQ(valueOf(text, "CODXC"), "A;JO62AA;10") << "of two as far the earlier one";
    EXPECT_EQ(columnOf(text, 15), "  D  ") << "a band of other case is another one for duplicates";
}

TEST(EDIQSOLine, HasFifteenColumns) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"", ";;;1;59;;59;;;L;P;;;;D"},
        {"QSO_DATE=2024011 | TIME_ON=12", "2024011;12;;1;59;;59;;;L;P;;;;D"},
        {"QSO_DATE=ÄÖÜ40115 | TIME_ON=1234ä", "Ü40115;1234;;1;59;;59;;;L;P;;;;D"},
        {"MODE=cw | RST_SENT= | RST_RCVD=599", ";;;2;59;;599;;;L;P;;;;D"},
        {"STX=1234 | SRX=0012", ";;;1;59;1234;59;0012;;L;P;;;;D"},
        {"STX=-5", ";;;1;59;-05;59;;;L;P;;;;D"},
        {"STX=ABC | SRX_STRING= | SRX=x 3", ";;;1;59;ABC;59;3;;L;P;;;;D"},
        {"STX=9223372036854775808 | SRX_STRING=x | SRX=3", ";;;1;59;9223372036854775808;59;;;L;P;;;;D"}};
    for (const auto& [qso, line] : cases) {
        EXPECT_EQ(EDIWriter::qsoLine(recordOf(qso), "L", "P", "D"), line);
    }
}

TEST(EDIDuplicates, AreTheSameCallOnTheSameBandAgain) {
    const ADIFDocument log = logOf({"CALL=ok1abc | BAND=2M", "CALL=OK1ABC | BAND=70CM",
                                    "CALL=OK1ABC | BAND=2m", "CALL=OK1ABC | BAND=2M", "CALL=OK2ABC | BAND=2M",
                                    "", "CALL=OK1ABC | BAND=70CM", "MODE=CW", "CALL=OK1ABC2 | BAND=M"});
    EXPECT_EQ(EDIWriter::computeDupes(std::vector(log.records().begin(), log.records().end())),
              (std::vector<bool>{false, false, false, true, false, false, true, true, false}));
}

TEST(EDIQSOLine, TakesTheLastNumberOfAnExchange) {
    for (const auto& [exchange, serial] :
         fields("  \t= | JO62 123=123 | 123 JO62=123 | 59 001 =001 | 1 x 2y=1 | "
                "59\t001= | 12a= | -5= | a ½ b=½ | ٣ JO62=٣")) {
        EXPECT_EQ(EDIWriter::serialFromExchange(exchange), serial) << exchange;
    }
    EXPECT_EQ(EDIWriter::serialFromExchange(std::nullopt), "");
}

TEST(EDIDistance, IsTheLogsOwnBeforeThatOfTheLocators) {
    const std::pair<std::string_view, std::int64_t> cases[] = {{"", 0},
                                                               {"GRIDSQUARE=JN5", 0},
                                                               {"GRIDSQUARE=jo62qm", 1},
                                                               {"GRIDSQUARE=jn58td", 503},
                                                               {"GRIDSQUARE=jn58td | DISTANCE=123.9", 124},
                                                               {"GRIDSQUARE=jn58td | DISTANCE=12,5", 503},
                                                               {"GRIDSQUARE=jn58td | DISTANCE=", 503},
                                                               {"GRIDSQUARE=jn58td | DISTANCE=inf", 0}};
    for (const auto& [qso, km] : cases) {
        EXPECT_EQ(EDIWriter::qrbKm(recordOf(qso), "JO62QM"), km) << qso;
    }
}

TEST(EDIModes, HaveOneCodeForAKind) {
    for (const auto& [mode, code] : fields("usb=1 | CW=2 | NFM=6 | msk144=7 | PSK=1 | =1")) {
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
    EXPECT_EQ(
        EDIHeader::suggested(logOf(
            {"QSO_DATE=2024030 | CONTEST_ID= | OWNER_CALLSIGN=dl9zzz",
             "QSO_DATE=20240303 | CONTEST_ID=darc-vhf | STATION_CALLSIGN=DL0AAA | BAND=70cm",
             "QSO_DATE=20240302 | MY_GRIDSQUARE=jo62qm | OPERATOR=dl1abc | BAND=2m", "QSO_DATE=2024ÄÖ05"})),
        expected);
    EXPECT_EQ(EDIHeader::suggested(logOf({"BAND=11m"})).band, "11m") << "has no name in the format";
}

TEST(EDIHeaderMembers, AreSetByTheirNames) {
    EDIHeader header;
    EXPECT_TRUE(header.setMember("pointsMode", "blank"));
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
