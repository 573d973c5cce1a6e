// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/ColumnFitting.h"

#include "Quillon/Support/LogText.h"
#include "Quillon/Support/StandIns.h"

#include <gtest/gtest.h>

#include <utility>

namespace quillon {
namespace {

using testing::FixedMeasurer;
using testing::recordsOf;

TEST(FittingWidths, AreThoseOfTheWidestOfContentLabelAndTag) {
    // Widths of one byte: 7.3 in cells, 6 in labels, 5 in tags; margins of 22 around the column.
    const auto records = recordsOf(
        {"CALL=DL1ABC/P BAND=20m QSO_DATE=20240115 TIME_ON=123456 X= COMMENT=" + std::string(99, 'c') +
         " LONG_NAME_OF_OURS=1 QSO_DATE_OFF=2024 BAND_RX=1234567890"});
    const std::pair<const char*, double> cases[] = {
        {"call", 94},                // "Rufzeichen": 60 + 12
        {"QSO_DATE", 95},            // "15.01.2024": 73
        {"TIME_ON", 112},            // "Zeit (Anfang)": 78 + 12
        {"BAND", 69},                // "<BAND": 25 + 22
        {"BAND_RX", 95},             // ten bytes of content: 73, no dot
        {"COMMENT", 320},            // cut
        {"X", 60},                   // "<X": 10 + 22 -> 54, the least
        {"LONG_NAME_OF_OURS", 136},  // label 102 + 12
    };
    const FixedMeasurer measurer;
    for (const auto& [name, expected] : cases) {
        EXPECT_EQ(fittingWidths({name}, records, measurer).front(), expected) << name;
    }
    EXPECT_EQ(fittingWidths({"BAND"}, recordsOf({"BAND=1234567890"}), measurer).front(), 73 + 13 + 22);
}

TEST(FittingWidths, MeasureASampleOfLargeLogsAndEachTextOnce) {
    std::vector<std::string> records(5999, "X=a");
    records[1] = "X=bb";
    records[2] = "Y=1";
    FixedMeasurer measurer;
    fittingWidths({"X"}, recordsOf(records), measurer);
    EXPECT_EQ(testing::joined(std::exchange(measurer.measuredCells, {})), "a bb");
    records.push_back("X=a");  // 6000 records: every second one.
    records[4] = "X=ccc";
    fittingWidths({"X"}, recordsOf(records), measurer);
    EXPECT_EQ(testing::joined(measurer.measuredCells), "a ccc");
}

}  // namespace
}  // namespace quillon
