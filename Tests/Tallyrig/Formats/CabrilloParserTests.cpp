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
    std::string fiftyMore;
    for (int column = 11; column <= 60; ++column) {
        fiftyMore += ' ' + std::to_string(column);
    }
    const std::vector<std::pair<std::string, std::size_t>> cases = {
        {"QSO: 1 2 3 4 5 6 7 8 9", 0},
        {"QSO: 1 2 3 4 5 6 7 8 9 10", 1},
        {"QSO:1 2 3 4 5 6 7 8 9 10" + fiftyMore, 1},
        {"Q\u017FO: 1 2 3 4 5 6 7 8 9 10", 1},
        {"QSO : 1 2 3 4 5 6 7 8 9 10", 0},
        {"QSO 1 2 3 4 5 6 7 8 9 10", 0},
        {"QSO:", 0},
        {"QSO", 0},
        {"x-q\u017Fo: 1 2 3 4 5 6 7 8 9 10\nXQSO: 1 2 3 4 5 6 7 8 9 10", 0},
        {"", 0}};
    for (const auto& [lines, count] : cases) {
        EXPECT_EQ(CabrilloParser::parse(lines).records().size(), count) << lines;
    }
}

TEST(CabrilloLine, ReadsTheSameAmongOthers) {
    std::vector<std::string> lines;
    for (const std::string place : {"7001", "7001", "none", "10G", "none", "7001"}) {
        for (const std::string mode : {"CW", "CW", "\u00FC", "PH"}) {
            lines.push_back("QSO: " + place + ' ' + mode + " 2024-01-15 1234 A 59 1 B 59 2");
            lines.push_back("QSO: " + place + ' ' + mode + " 24-01-15 1234 A 59 1 B 59 2");
        }
    }
    // What the header says is so long that the records share it.
    const std::string contest = "\u00D6" + std::string(1000, 'x');
    std::string text = "CALLSIGN: A\nCONTEST: " + contest + '\n';
    for (const std::string& line : lines) {
        text += line + '\n';
    }
    ADIFDocument log = CabrilloParser::parse(text);
    ASSERT_EQ(log.records().size(), lines.size());
    for (std::size_t index = 0; index < lines.size(); ++index) {
        EXPECT_EQ(log.records()[index], CabrilloParser::record(lines[index], "A", contest, "", ""));
    }
    EXPECT_EQ(log.records()[0]["CONTEST_ID"]->data(), log.records()[1]["CONTEST_ID"]->data());
    log.duplicateColumn("CONTEST_ID", "NOTES");
    log.renameColumn("CONTEST_ID", "COMMENT");
    log.records().modify(1, [](ADIFRecord& record) { record.set("NOTES", ""); });
    EXPECT_EQ(log.records()[0]["NOTES"], contest);
    EXPECT_EQ(log.records()[1]["NOTES"], "");
    EXPECT_EQ(log.records()[1]["COMMENT"], contest);
}

TEST(FirstColumn, IsAFrequencyOrADesignator) {
    using Text = std::optional<std::string_view>;
    constexpr std::nullopt_t none = std::nullopt;
    const std::tuple<std::string, Text, Text> cases[] = {{"14000", "14", "20M"},
                                                         {"1800", "1.8", "160M"},
                                                         {"2000", "2", "160M"},
                                                         {"2001", "2.001", none},
                                                         {"5300", "5.3", "60M"},
                                                         {"5100", "5.1", none},
                                                         {"5450", "5.45", "60M"},
                                                         {"5451", "5.451", none},
                                                         {"1300000", "1300", "23CM"},
                                                         {"1000", "1", none},
                                                         {"999", "999", none},
                                                         {"432", "432", "70CM"},
                                                         {"0144", "144", "2M"},
                                                         {"+50", "50", "6M"},
                                                         {"-14074", "-14074", none},
                                                         {"1.2G", none, "23CM"},
                                                         {"76g", none, "4MM"},
                                                         {"\u00A010G\u00A0", none, "3CM"},
                                                         {"1.3G", none, none},
                                                         {"14074.5", none, none},
                                                         {"LIGHT", none, none},
                                                         {"1000000001", "1000000.001", none},
                                                         {"9223372036854775807", "9223372036854776", none},
                                                         {"9223372036854775808", none, none}};
    for (const auto& [column, freq, band] : cases) {
        const ADIFRecord record = withColumn(0, column);
        EXPECT_EQ(record["FREQ"], freq) << column;
        EXPECT_EQ(record["BAND"], band) << column;
    }
    EXPECT_EQ(CabrilloParser::trimFreq(14.0740004), "14.074");
    EXPECT_EQ(CabrilloParser::trimFreq(100), "100");
    EXPECT_EQ(CabrilloParser::trimFreq(0), "0");
}

TEST(CabrilloColumn, BecomesItsField) {
    const std::tuple<std::size_t, std::string, std::string, std::optional<std::string_view>> cases[] = {
        {1, "RY", "MODE", "RTTY"},
        {1, "dg", "MODE", "FT8"},
        {1, "FM", "MODE", "FT8"},
        {1, "ssb", "MODE", "SSB"},
        {2, "20240115", "QSO_DATE", "20240115"},
        {2, "15.01.2024", "QSO_DATE", "15012024"},
        {2, "24-01-15", "QSO_DATE", "24-01-15"},
        {2, "٢٠٢٤-٠١-١٥", "QSO_DATE", "٢٠٢٤٠١١٥"},
        {3, "12:34", "TIME_ON", "123400"},
        {3, "1234Z", "TIME_ON", "123400"},
        {3, "123", "TIME_ON", "123"},
        {3, "123456", "TIME_ON", "123456"},
        {3, "----", "TIME_ON", std::nullopt},
        {4, "OTHER", "STATION_CALLSIGN", std::nullopt},
        {6, "7", "STX", std::nullopt},
        {7, "k1xyz/p", "CALL", "K1XYZ/P"},
        {9, "007", "SRX", "7"},
        {9, "000", "SRX", "0"},
        {9, "7A", "SRX", std::nullopt},
        {9, "-7", "SRX", std::nullopt},
        {9, "9223372036854775807", "SRX", "9223372036854775807"},
        {9, "9223372036854775808", "SRX", "0"},
        {9, "٠٧", "SRX", "0"},
        {9, "½", "SRX", "0"}};
    for (const auto& [index, column, name, value] : cases) {
        EXPECT_EQ(withColumn(index, column)[name], value) << column;
    }
}

}  // namespace
}  // namespace tallyrig
