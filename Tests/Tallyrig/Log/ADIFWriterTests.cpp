// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADIFWriter.h"

#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallyrig {
namespace {

using testing::record;

const std::string moment = "20240115 120000";

ADIFWriter writer() {
    return {"Quillon", "1.2", "3.1.7", true};
}
ADIFWriter bareWriter() {
    return {"Quillon", "1.2", "3.1.7", false};
}

TEST(WrittenHeader, HoldsTheFourFieldsOfTheWriter) {
    EXPECT_EQ(
        writer().write({}, moment),
        "ADIF-Export erstellt mit Quillon\n"
        "<ADIF_VER:5>3.1.7 <PROGRAMID:7>Quillon <PROGRAMVERSION:3>1.2 <CREATED_TIMESTAMP:15>20240115 120000 "
        "<EOH>\n\n");
    EXPECT_EQ(bareWriter().write({}, moment), "");
}

TEST(WrittenHeader, KeepsThePlacesAndTypesThatWereRead) {
    const ADIFDocument log("Zeile 1\nZeile 2",
                           {ADIFField("PROGRAMID", "Other"), ADIFField("USERDEF1", "EPC", "S"),
                            ADIFField("ADIF_VER", "3.0", "S"), ADIFField("PROGRAMID", "Twice")},
                           {});
    EXPECT_EQ(
        writer().write(log, moment),
        "Zeile 1\nZeile 2\n"
        "<PROGRAMID:7>Quillon <USERDEF1:3:S>EPC <ADIF_VER:5:S>3.1.7 <PROGRAMID:5>Twice <PROGRAMVERSION:3>1.2 "
        "<CREATED_TIMESTAMP:15>20240115 120000 <EOH>\n\n");
    EXPECT_EQ(bareWriter().write(log, moment), "");
}

TEST(WrittenRecords, StandOneToALineInDocumentOrder) {
    std::vector<ADIFRecord> records = {
        ADIFRecord({{ADIFField("NAME", "Jörg", "S"), ADIFField("CALL", "DL1AB", ""),
                     ADIFField("NOTES", "a\r\n<b>")}}),
        ADIFRecord(), record({{"EMPTY", ""}})};
    EXPECT_EQ(bareWriter().write({"", {}, ADIFRecordList(records)}, moment),
              "<NAME:5:S>Jörg <CALL:5>DL1AB <NOTES:6>a\r\n<b> <EOR>\n"
              "<EOR>\n"
              "<EMPTY:0> <EOR>\n");
}

TEST(Timestamp, IsUTCInADIFForm) {
    using namespace std::chrono;
    EXPECT_EQ(timestamp(sys_days{year{2024} / 2 / 29} + 23h + 5min + 9s), "20240229 230509");
    EXPECT_EQ(timestamp(sys_days{year{1970} / 1 / 1}), "19700101 000000");
}

TEST(WhatIsWritten, IsNotMendedWhereTheFormatCannotCarryIt) {
    const ADIFDocument log("a<b", {}, ADIFRecordList({record({{"A:B", "1"}, {"EOH", "2"}})}));
    const std::string text = writer().write(log, moment);
    EXPECT_TRUE(text.starts_with("a<b\n<ADIF_VER:5>3.1.7 ")) << text;
    EXPECT_TRUE(text.ends_with("<A:B:1>1 <EOH:1>2 <EOR>\n")) << text;
    EXPECT_EQ(ADIFParser::parse(text).headerComment(), "a") << "read back, a comment ends at its first tag";
}

}  // namespace
}  // namespace tallyrig
