// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/CrossCheckLog.h"

#include "Tallyrig/CrossCheck/CallDistance.h"
#include "Tallyrig/CrossCheck/QSOTime.h"
#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>

namespace tallyrig {
namespace {

TEST(Owner, IsTheCallThatMostRecordsName) {
    using testing::logOf;
    const auto owner = [](const ADIFDocument& log) { return CrossCheckLog::detectOwner(log); };
    EXPECT_EQ(owner(logOf({"STATION_CALLSIGN=dl1b", "STATION_CALLSIGN=DL1A", "STATION_CALLSIGN= , DL1B,DL1A",
                           "OPERATOR=DL1A", "STATION_CALLSIGN= "})),
              "DL1B");
    EXPECT_EQ(owner(logOf({"STATION_CALLSIGN=DL1B", "STATION_CALLSIGN=DL1A"})), "DL1A");
    EXPECT_EQ(owner(logOf({"STATION_CALLSIGN=, ", "OPERATOR=DL1C DL1A", "OPERATOR=\tDL1C"})), "\tDL1C");
    EXPECT_EQ(owner(logOf({"CALL=DL1A"})), std::nullopt);

    const ADIFDocument log = logOf({"STATION_CALLSIGN=DL1B"});
    EXPECT_EQ(CrossCheckLog({}, "", log).owner, "DL1B");
    EXPECT_EQ(CrossCheckLog({}, "", log, " dl1ä").owner, " DL1Ä");
    EXPECT_EQ(CrossCheckLog({}, "", log, "").owner, "");
    EXPECT_EQ(CrossCheckLog({}, "", {}).owner, "");
}

TEST(TimeOfAQSO, IsWhatDateAndTimeAddUpTo) {
    constexpr std::int64_t day = 1440;
    const std::tuple<std::string_view, std::string_view, std::optional<std::int64_t>> cases[] = {
        {"19700101", "0000", 0},
        {" 19700102\t", " 010259", day + 62},
        {"20000229", "2359", 11016 * day + 1439},
        {"20000301", "0000", 11017 * day},
        {"19000301", "0000", -25508 * day},
        {"19691231", "2400", 0},
        {"19701301", "0000", 365 * day},  // the first day of a thirteenth month
        {"19700100", "0075", -day + 75},
        {"00000301", "0000", -719468 * day},
        {"-001+1+1", "+1-1", (-719468 - 366 - 365 + 306) * day + 59},
        {"2024011", "0000", std::nullopt},
        {"20240115 ", "000", std::nullopt},
        {"2024-115", "12:0", std::nullopt},
        {"2024011\u0661", "0000", std::nullopt},
        {"20240115", "120٣", std::nullopt},
        {"20240115", "1203\u0301", std::nullopt},
        {"", "0000", std::nullopt},
    };
    for (const auto& [date, time, minutes] : cases) {
        EXPECT_EQ(minutesOf(date, time), minutes) << date << " " << time;
    }
}

TEST(CallDistance, CountsCharacters) {
    const std::tuple<std::string_view, std::string_view, std::size_t> cases[] = {
        {"DL1ABC", "DL1ABC", 0}, {"", "DL1", 3},       {"DL1ABC", "DL1ACB", 2}, {"DL1ABC", "L1ABCD", 2},
        {"DL1Ä", "DL1A", 1},     {"OZ1A", "OZ11A", 1}, {"A\r\nB", "AB", 1},     {"K1A", "F5UJX", 5},
    };
    for (const auto& [left, right, distance] : cases) {
        for (const auto& [one, two] : {std::pair(left, right), std::pair(right, left)}) {
            EXPECT_TRUE(isWithinCallDistance(one, two, distance)) << one << " " << two;
            EXPECT_TRUE(distance == 0 || !isWithinCallDistance(one, two, distance - 1)) << one << " " << two;
            EXPECT_LE(CallShape(one).leastDistance(CallShape(two)), distance) << one << " " << two;
        }
    }
}

}  // namespace
}  // namespace tallyrig
