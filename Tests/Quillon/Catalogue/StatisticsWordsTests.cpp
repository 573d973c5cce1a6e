// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/StatisticsWords.h"

#include <gtest/gtest.h>

#include <utility>

namespace quillon {
namespace {

TEST(StatisticsWords, ShowWhatIsNoDayAsItIsWritten) {
    const std::pair<const char*, const char*> cases[] = {
        {"20240229", "29.02.2024"}, {"20230229", "20230229"},   {"00000101", "01.01.0000"},
        {"20241301", "20241301"},   {"99991231", "31.12.9999"}, {"2024022٩", "2024022٩"},
    };
    for (const auto& [label, shown] : cases) {
        EXPECT_EQ(StatisticsWords::day(label), shown);
    }
}

TEST(StatisticsWords, TellAPeriodByItsEnds) {
    tallyrig::ADIFStatistics statistics;
    EXPECT_EQ(StatisticsWords::period(statistics), "");
    statistics.firstDate = statistics.lastDate = "20240229";
    EXPECT_EQ(StatisticsWords::period(statistics), "29.02.2024");
    statistics.firstDate = "00000000";
    EXPECT_EQ(StatisticsWords::period(statistics), "00000000 – 29.02.2024");
}

}  // namespace
}  // namespace quillon
