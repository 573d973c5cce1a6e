// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Outdoor/SOTACSVExporter.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tallyrig {
namespace {

using testing::logOf;

OutdoorExportFile fileOf(SOTARole role, const ADIFDocument& log) {
    const OutdoorExportFiles files = SOTACSVExporter{role}.files(log);
    EXPECT_EQ(files.size(), 1U);
    return files.empty() ? OutdoorExportFile() : files[0];
}

/// The columns behind "V2" and the call in the only line of a chaser.
std::string line(std::string_view fields) {
    const std::string text =
        fileOf(SOTARole::chaser, logOf({"OPERATOR=a | SOTA_REF=S | " + std::string(fields)})).content;
    EXPECT_TRUE(text.starts_with("V2,A,") && text.ends_with("\r\n")) << text;
    return text.substr(5, text.size() - 7);
}

TEST(SOTAExport, ListsAnActivatorsQSOsSummitBySummit) {
    const OutdoorExportFile file = fileOf(
        SOTARole::activator,
        logOf({"CALL=C | QSO_DATE=20240502 | TIME_ON=1000 | MY_SOTA_REF=HB/BE-001,HB/BE-002,HB/BE-001",
               "CALL=L | QSO_DATE=20240501 | TIME_ON=2359 | STATION_CALLSIGN= hb9abc/p",
               "CALL=B | QSO_DATE=20240502 | TIME_ON=095959 | MY_SOTA_REF=HB/BE-002",
               "CALL=A | QSO_DATE=20240502 | TIME_ON=0959 | MY_SOTA_REF=HB/BE-001 | BAND=40M | MODE=CW | "
               "SOTA_REF=G/LD-001 | COMMENT=a,b",
               "CALL=D | QSO_DATE=20240502 | TIME_ON=095900 | MY_SOTA_REF=HB/BE-001"}));
    EXPECT_EQ(file.reference, "HB/BE-001");
    EXPECT_EQ(file.filename, "HB9ABC_P@HB_BE-001 20240501.csv");
    EXPECT_EQ(file.qsoCount, 5U);
    EXPECT_EQ(file.content,
              "V2,HB9ABC/P,HB/BE-001,02/05/2024,0959,7.0MHz,CW,A,G/LD-001,a b\r\n"
              "V2,HB9ABC/P,HB/BE-001,02/05/2024,0959,,,D,,\r\n"
              "V2,HB9ABC/P,HB/BE-001,02/05/2024,1000,,,C,,\r\n"
              "V2,HB9ABC/P,HB/BE-002,02/05/2024,0959,,,B,,\r\n"
              "V2,HB9ABC/P,HB/BE-002,02/05/2024,1000,,,C,,\r\n");
}

TEST(SOTAExport, ListsAChasersSummitsWithoutAPlaceForHisOwn) {
    const OutdoorExportFile file =
        fileOf(SOTARole::chaser, logOf({"CALL=B | TIME_ON=2 | SOTA_REF=HB/BE-002 | MY_SOTA_REF=X",
                                        "CALL=N | SOTA_REF=\t", "CALL=A | TIME_ON=1 | SOTA_REF= HB/BE-001"}));
    EXPECT_EQ(file.reference, "chaser");
    EXPECT_EQ(file.filename, "UNKNOWN chaser .csv");
    EXPECT_EQ(file.content, "V2,UNKNOWN,,1,,,A,HB/BE-001,\r\nV2,UNKNOWN,,2,,,B,HB/BE-002,\r\n");
}

TEST(SOTAExport, WritesColumnsInTheFormOfTheFormat) {
    EXPECT_EQ(line("BAND= 20M | FREQ=7.1"), ",,14MHz,,,S,");
    EXPECT_EQ(line("BAND=2190M | FREQ= 0.1357"), ",,0.1357MHz,,,S,");
    EXPECT_EQ(line("BAND=1.25m | FREQ=222.06789"), ",,222.1MHz,,,S,");
    for (const std::string_view none : {"", "0", "-1", "inf", "nan", "1,8"}) {
        EXPECT_EQ(line("BAND= 2190M | FREQ=" + std::string(none)), ",,2190M,,,S,") << none;
    }
    EXPECT_EQ(line("QSO_DATE= 20240131 | TIME_ON= 123456"), "31/01/2024,1234,,,,S,");
    EXPECT_EQ(line("QSO_DATE=2024-01-02"), "2024-01-02,,,,,S,");
    EXPECT_EQ(line("COMMENT= a,\r\nb, | MODE=C,W"), ",,,C W,,S,a   b");
}

TEST(SOTAExport, HasNoFileWithoutASummit) {
    const ADIFDocument log = logOf({"CALL=A | MY_SOTA_REF=, | SOTA_REF= ", "CALL=B"});
    EXPECT_TRUE(SOTACSVExporter{SOTARole::activator}.files(log).empty());
    EXPECT_TRUE(SOTACSVExporter{SOTARole::chaser}.files(log).empty());
}

}  // namespace
}  // namespace tallyrig
