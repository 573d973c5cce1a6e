// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/ChartScale.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace quillon {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

sys_days day(int year, unsigned month, unsigned dayOfMonth) {
    return year_month_day(std::chrono::year(year), std::chrono::month(month), std::chrono::day(dayOfMonth));
}

std::string text(const std::vector<std::size_t>& counts) {
    std::string all;
    for (const std::size_t count : counts) {
        all += (all.empty() ? "" : " ") + std::to_string(count);
    }
    return all;
}

std::string text(const std::vector<sys_days>& ticks) {
    std::string all;
    for (const year_month_day date : ticks) {
        char buffer[40];
        std::snprintf(buffer, sizeof buffer, "%04d-%02u-%02u", static_cast<int>(date.year()),
                      static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
        all += (all.empty() ? "" : " ") + std::string(buffer);
    }
    return all;
}

TEST(AxisOfCounts, IsLabelledInWholeRoundSteps) {
    const struct {
        std::size_t highest;
        std::size_t most;
        const char* ticks;
    } cases[] = {
        {0, 5, "0 1"},
        {1, 5, "0 1"},
        {3, 5, "0 1 2 3"},
        {6, 5, "0 2 4 6"},
        {11, 5, "0 5 10 15"},
        {100, 5, "0 20 40 60 80 100"},
        {101, 5, "0 50 100 150"},
        {7, 1, "0 10"},
        {4'000'000'000, 3, "0 2000000000 4000000000"},
    };
    for (const auto& expected : cases) {
        EXPECT_EQ(text(countTicks(expected.highest, expected.most)), expected.ticks) << expected.highest;
    }
}

TEST(AxisOfDays, IsLabelledInStepsThatSuitTheSpan) {
    const struct {
        sys_days first;
        sys_days last;
        std::size_t most;
        const char* ticks;
    } cases[] = {
        {day(2024, 2, 29), day(2024, 2, 29), 5, "2024-02-29"},
        {day(2024, 2, 27), day(2024, 3, 1), 5, "2024-02-27 2024-02-28 2024-02-29 2024-03-01"},
        {day(2024, 2, 27), day(2024, 3, 4), 4, "2024-02-27 2024-02-29 2024-03-02 2024-03-04"},
        {day(2024, 2, 27), day(2024, 3, 20), 4, "2024-02-27 2024-03-05 2024-03-12 2024-03-19"},
        {day(2024, 1, 2), day(2024, 3, 1), 3, "2024-02-01 2024-03-01"},
        {day(2023, 11, 30), day(2024, 8, 9), 3, "2024-01-01 2024-04-01 2024-07-01"},
        {day(1984, 6, 1), day(2024, 5, 31), 5, "1990-01-01 2000-01-01 2010-01-01 2020-01-01"},
        {day(0, 1, 1), day(9999, 12, 31), 3, "0000-01-01 5000-01-01"},
        {day(2024, 1, 2), day(2024, 1, 31), 2, "2024-01-02"},
    };
    for (const auto& expected : cases) {
        EXPECT_EQ(text(dayTicks(expected.first, expected.last, expected.most)), expected.ticks);
    }
}

TEST(AxisOfDays, HasNoMoreLabelsThanFit) {
    for (int span = 0; span < 20'000; span = span * 5 / 4 + 1) {
        for (const std::size_t most : {2U, 5U, 11U}) {
            const auto ticks = dayTicks(day(1999, 12, 31), day(1999, 12, 31) + days(span), most);
            EXPECT_GE(ticks.size(), 1) << span;
            EXPECT_LE(ticks.size(), most) << span;
        }
    }
}

}  // namespace
}  // namespace quillon
