// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/CabrilloParser.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace tallyrig {
namespace {

using testing::fields;
using testing::Pairs;
using testing::pairs;

/// A line whose other columns are in order.
ADIFRecord withColumn(std::size_t index, const std::string& column) {
    std::vector<std::string> columns = {"14074", "PH",  "2024-01-15", "1234", "DL1ABC",
                                        "59",    "001", "K1XYZ",      "59",   "002"};
    columns[index] = column;
    std::string line = "QSO:";
    for (const std::string& text : columns) {
        line += ' ' + text;
    }
    return CabrilloParser::record(line, "", "", "", "").value_or(ADIFRecord());
}

/// A hyphen where there is no such field.
std::string valueOf(const ADIFRecord& record, std::string_view name) {
    return std::string(record[name].value_or("-"));
}

TEST(CabrilloLog, GivesARecordForEachQSOLine) {
    const ADIFDocument log = CabrilloParser::parse(
        "START-OF-LOG: 3.0\r\nCALLSIGN: dl1abc\r\nCONTEST: cq-ww-SSB\r\nGRID-LOCATOR:jo62qm\r\n"
        "OPERATORS: dl1abc, DL2XYZ \r\nSOAPBOX: QSO: none\r\n"
        "qso: 14074 ph 2024-01-15 1234 dl1abc 59 001 k1xyz 59 002\r\n"
        "X-QSO: 14074 PH 2024-01-15 1235 DL1ABC 59 002 K2XYZ 59 003\r\n"
        "\tQSO:\t7001\tCW\t2024-01-15\t1236 DL1ABC 599 JO62 K3XYZ 599 4A 1 more\t\r\n"
        "END-OF-LOG:\r\n");
    EXPECT_EQ(log.headerComment(), "");
    EXPECT_TRUE(log.headerFields().empty());
    ASSERT_EQ(log.records().size(), 2U);
    EXPECT_EQ(
        pairs(log.records()[0]),
        fields("FREQ=14.074 | BAND=20M | MODE=SSB | QSO_DATE=20240115 | TIME_ON=123400 | RST_SENT=59 | "
               "STX_STRING=001 | CALL=K1XYZ | RST_RCVD=59 | SRX_STRING=002 | SRX=2 | STATION_CALLSIGN=DL1ABC "
               "| CONTEST_ID=cq-ww-SSB | OPERATOR=DL1ABC, DL2XYZ | MY_GRIDSQUARE=JO62QM"));
    EXPECT_EQ(log.records()[1]["FREQ"], "7.001");
    EXPECT_EQ(log.records()[1]["CALL"], "K3XYZ");
    EXPECT_EQ(log.records()[1]["SRX_STRING"], "4A");
    EXPECT_FALSE(log.records()[1].has("SRX"));
    EXPECT_EQ(log.records()[1]["OPERATOR"], "DL1ABC, DL2XYZ");
}

TEST(CabrilloHeaderLine, HoldsForAllRecordsWhereverItStands) {
    const std::string qso = "QSO: 1 CW 2 3 A 5 6 K1XYZ 8 9";
    const std::tuple<std::string, std::string, std::optional<std::string_view>> cases[] = {
        {"CALLSIGN: A1A\n" + qso + "\ncallsign : b2b", "STATION_CALLSIGN", "B2B"},
        {qso + "\u2028\u00A0Call\u017Fign:\u00A0ö\u00DF", "STATION_CALLSIGN", "ÖSS"},
        {"CONTEST: a: b\rCONTEST\r" + qso, "CONTEST_ID", "a: b"},
        {"CONTEST: a\nCONTEST:\n" + qso, "CONTEST_ID", std::nullopt},
        {": a\n\n \n" + qso, "CONTEST_ID", std::nullopt},
        {qso + "\nX-QSO: 1\nCONTEST-NAME: a\nX-CONTEST: b", "CONTEST_ID", std::nullopt},
        {qso, "STATION_CALLSIGN", std::nullopt}};
    for (const auto& [lines, name, value] : cases) {
        const ADIFDocument log = CabrilloParser::parse(lines);
        ASSERT_EQ(log.records().size(), 1U) << lines;
        EXPECT_EQ(log.records()[0][name], value) << lines;
    }
}

TEST(CabrilloLine, NeedsTenColumns) {
    const std::pair<std::string, std::size_t> cases[] = {
        {"QSO: 1 2 3 4 5 6 7 8 9", 0},
        {"QSO:1 2 3 4 5 6 7 8 9 10 11 12", 1},
        {"Q\u017FO: 1 2 3 4 5 6 7 8 9 10", 1},
        {"QSO : 1 2 3 4 5 6 7 8 9 10", 0},
        {"QSO 1 2 3 4 5 6 7 8 9 10", 0},
        {"QSO:\nQSO\nQS", 0},
        {"x-q\u017Fo: 1 2 3 4 5 6 7 8 9 10\nXQSO: 1 2 3 4 5 6 7 8 9 10", 0}};
    for (const auto& [lines, count] : cases) {
        EXPECT_EQ(CabrilloParser::parse(lines).records().size(), count) << lines;
    }
}

TEST(CabrilloLine, ReadsTheSameAmongOthers) {
    std::vector<std::string> lines;
    for (const std::string start :
         {"7001 CW", "7001 CW", "none CW", "none \u00FC", "10G \u00FC", "7001 PH"}) {
        lines.push_back("QSO: " + start + " 2024-01-15 1234 A 59 1 B 59 2");
        lines.push_back("QSO: " + start + " 24-01-15 1234 A 59 1 B 59 2");
    }
    std::string text = "CALLSIGN: A\nCONTEST: \u00D6\n";
    for (const std::string& line : lines) {
        text += line + '\n';
    }
    const ADIFDocument log = CabrilloParser::parse(text);
    ASSERT_EQ(log.records().size(), lines.size());
    for (std::size_t index = 0; index < lines.size(); ++index) {
        EXPECT_EQ(log.records()[index], CabrilloParser::record(lines[index], "A", "\u00D6", "", ""));
    }
}

TEST(LongHeaderValue, IsSharedByTheRecordsAndEditedInEach) {
    const std::string contest = "\u00D6" + std::string(1000, 'x');
    ADIFDocument log = CabrilloParser::parse("CONTEST: " + contest +
                                             "\nQSO: 1 CW 2 3 A 5 6 B 8 9\nQSO: 1 CW 2 3 A 5 6 C 8 9");
    ASSERT_EQ(log.records().size(), 2U);
    EXPECT_EQ(log.records()[0]["CONTEST_ID"]->data(), log.records()[1]["CONTEST_ID"]->data());
    log.duplicateColumn("CONTEST_ID", "NOTES");
    log.renameColumn("CONTEST_ID", "COMMENT");
    log.records().modify(1, [](ADIFRecord& record) { record.set("NOTES", ""); });
    EXPECT_EQ(log.records()[0]["NOTES"], contest);
    EXPECT_EQ(log.records()[1]["NOTES"], "");
    EXPECT_EQ(log.records()[1]["COMMENT"], contest);
}

TEST(FirstColumn, IsAFrequencyOrADesignator) {
    const Pairs cases = fields(
        "14000=14 in 20M | 1800=1.8 in 160M | 2000=2 in 160M | 2001=2.001 in - | 5300=5.3 in 60M | "
        "5100=5.1 in - | 5450=5.45 in 60M | 5451=5.451 in - | 1300000=1300 in 23CM | 1000=1 in - | "
        "999=999 in - | 432=432 in 70CM | 0144=144 in 2M | +50=50 in 6M | -14074=-14074 in - | "
        "1.2G=- in 23CM | 76g=- in 4MM | \u00A010G\u00A0=- in 3CM | 1.3G=- in - | 14074.5=- in - | "
        "LIGHT=- in - | 1000000001=1000000.001 in - | 9223372036854775807=9223372036854776 in - | "
        "9223372036854775808=- in -");
    for (const auto& [column, place] : cases) {
        const ADIFRecord record = withColumn(0, column);
        EXPECT_EQ(valueOf(record, "FREQ") + " in " + valueOf(record, "BAND"), place) << column;
    }
    EXPECT_EQ(CabrilloParser::trimFreq(14.0740004), "14.074");
    EXPECT_EQ(CabrilloParser::trimFreq(100), "100");
    EXPECT_EQ(CabrilloParser::trimFreq(0), "0");
}

TEST(CabrilloColumn, BecomesItsField) {
    const std::tuple<std::size_t, std::string, std::string> columns[] = {
        {1, "MODE", "RY=RTTY | dg=FT8 | FM=FT8 | ssb=SSB"},
        {2, "QSO_DATE", "20240115=20240115 | 15.01.2024=15012024 | 24-01-15=24-01-15 | ٢٠٢٤-٠١-١٥=٢٠٢٤٠١١٥"},
        {3, "TIME_ON", "12:34=123400 | 1234Z=123400 | 123=123 | 123456=123456 | ----=-"},
        {4, "STATION_CALLSIGN", "OTHER=-"},
        {6, "STX", "7=-"},
        {7, "CALL", "k1xyz/p=K1XYZ/P"},
        {9, "SRX", "007=7 | 000=0 | 7A=- | -7=- | ٠٧=0 | ½=0"},
        {9, "SRX", "9223372036854775807=9223372036854775807 | 9223372036854775808=0"}};
    for (const auto& [index, name, cases] : columns) {
        for (const auto& [column, value] : fields(cases)) {
            EXPECT_EQ(valueOf(withColumn(index, column), name), value) << column;
        }
    }
}

}  // namespace
}  // namespace tallyrig
