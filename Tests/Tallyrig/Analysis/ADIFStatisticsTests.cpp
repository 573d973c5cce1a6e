// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Analysis/ADIFStatistics.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace tallyrig {
namespace {

using testing::logOf;

/// "label count, label count".
std::string textOf(const std::vector<ADIFStatistics::Bucket>& buckets) {
    std::string text;
    for (const ADIFStatistics::Bucket& bucket : buckets) {
        text += (text.empty() ? "" : ", ") + bucket.label + ' ' + std::to_string(bucket.count);
    }
    return text;
}

TEST(Statistics, OfNothingAreEmpty) {
    const ADIFStatistics nothing{ADIFDocument()};
    EXPECT_TRUE(nothing.isEmpty());
    EXPECT_EQ(nothing.firstDate, std::nullopt);
    EXPECT_EQ(textOf(nothing.byCountry), "");
    const ADIFStatistics blank(logOf({"CALL= | BAND=\t | QSO_DATE= | COUNTRY= | MODE= "}));
    EXPECT_EQ(blank.total, 1U);
    EXPECT_EQ(blank.uniqueCalls, 0U);
    EXPECT_EQ(textOf(blank.byBand) + textOf(blank.byMode) + textOf(blank.byDay) + textOf(blank.byCountry),
              "");
}

TEST(Statistics, CountCallsOnceInWhateverCase) {
    const ADIFStatistics statistics(logOf({"CALL=DL1ABC", "CALL= dl1abc\t", "CALL=DL1ABC/P", "NAME=x",
                                           "CALL=\u00C9", "CALL=e\u0301", "CALL=\n", "CALL=DL1ABC\n"}));
    EXPECT_EQ(statistics.total, 8U);
    EXPECT_EQ(statistics.uniqueCalls, 5U) << "a line end is no blank";
}

TEST(Statistics, SortBandsByFrequencyAndPutTheUnknownLast) {
    const ADIFStatistics statistics(logOf({"BAND=99m", "BAND=1MM", "BAND=20M", "BAND=2190m", "BAND= 20m\n",
                                           "BAND=70cm", "BAND=2m", "BAND=40m extra", "BAND=20m"}));
    EXPECT_EQ(textOf(statistics.byBand), "2190m 1, 20m 3, 2m 1, 70cm 1, 1mm 1, 40m extra 1, 99m 1");
}

TEST(Statistics, SortModesByCountThenByName) {
    const ADIFStatistics statistics(logOf({"MODE=ssb | SUBMODE=USB", "MODE=USB", "MODE=FT8", "MODE=SSB",
                                           "MODE=CW", "MODE=\u00DC", "MODE=u\u0308", "MODE=Cw", "MODE=AM"}));
    EXPECT_EQ(textOf(statistics.byMode), "CW 2, SSB 2, \u00DC 2, AM 1, FT8 1, USB 1");
}

TEST(Statistics, CountTheDaysThatAreWrittenInDigits) {
    const ADIFStatistics statistics(
        logOf({"QSO_DATE=20240102", "QSO_DATE=20231231", "QSO_DATE= 20240102X\n", "QSO_DATE=2024010",
               "QSO_DATE=2024O102", "QSO_DATE=2024-01-02", "QSO_DATE=99999999", "QSO_DATE=00000000",
               "QSO_DATE=٢٠٢٤٠١٠٢", "NAME=x"}));
    EXPECT_EQ(textOf(statistics.byDay), "00000000 1, 20231231 1, 20240102 2, 99999999 1, ٢٠٢٤٠١٠٢ 1");
    EXPECT_EQ(statistics.firstDate, "00000000");
    EXPECT_EQ(statistics.lastDate, "٢٠٢٤٠١٠٢");
}

TEST(Statistics, CountEntitiesOnlyWhereNoRecordNamesACountry) {
    const ADIFStatistics named(
        logOf({"DXCC=230", "DXCC=14", "COUNTRY=Germany | DXCC=230", "COUNTRY=ARMENIA", "COUNTRY=germany"}));
    EXPECT_EQ(textOf(named.byCountry), "GERMANY 2, ARMENIA 1");
    const ADIFStatistics numbered(
        logOf({"DXCC=230", "DXCC= 14 ", "COUNTRY= | DXCC=14", "COUNTRY=\t | DXCC=5", "DXCC="}));
    EXPECT_EQ(textOf(numbered.byCountry), "14 2, 230 1, 5 1");
}

TEST(Statistics, CountThousandsOfDifferentValues) {
    std::vector<testing::Pairs> records;
    for (std::size_t number = 0; number < 6000; ++number) {
        const std::string country = std::to_string(number % 2000);
        // Short ones, long ones, and short calls of which one begins with another.
        records.push_back({{"COUNTRY", number % 2 == 0 ? country : "LAND OF THE NUMBER " + country},
                           {"CALL", "C" + std::to_string(number % 3000)}});
        records.push_back({{"CALL", "DL1ABCDEF/" + std::to_string(number % 1500)}});
    }
    records.push_back({{"COUNTRY", "7"}, {"CALL", std::string("C1\0", 3)}});
    const ADIFStatistics statistics(testing::document(records));
    EXPECT_EQ(statistics.uniqueCalls, 3000U + 1500U + 1U);
    ASSERT_EQ(statistics.byCountry.size(), 2001U);
    EXPECT_EQ(statistics.byCountry.front(), (ADIFStatistics::Bucket{"0", 3}));
    EXPECT_EQ(statistics.byCountry[1999], (ADIFStatistics::Bucket{"LAND OF THE NUMBER 999", 3}));
    EXPECT_EQ(statistics.byCountry.back(), (ADIFStatistics::Bucket{"7", 1}));
}

}  // namespace
}  // namespace tallyrig
