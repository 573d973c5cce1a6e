// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Geography/Locator.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <tuple>

namespace tallyrig {
namespace {

TEST(Locator, NamesTheCentreOfItsSquareOrSubsquare) {
    const std::tuple<std::string, double, double> cases[] = {
        {"JO62", 52.5, 13},
        {"Jo62qM55ÄX", 52.0 + 12 / 24.0 + 1 / 48.0, 12.0 + 16 / 12.0 + 1 / 24.0},
        {" \tJO62 \u00A0", 52.5, 13},
        {"AA00AA", -90 + 1 / 48.0, -180 + 1 / 24.0},
        {"RR99XX", 90 - 1 / 48.0, 180 - 1 / 24.0},
        {"RE78", -41.5, 175},
        // What is no subsquare is passed over, and so is all behind it.
        {"JO62Q", 52.5, 13},
        {"JO62YM", 52.5, 13},
        {"JO62QY", 52.5, 13},
        {"JO6212", 52.5, 13},
        {"JO62 QM", 52.5, 13},
        {"JO62ÄM", 52.5, 13},
        {"JO62QM\u0301", 52.5, 13},
        {"\uFB0022", -90 + 50 + 2.5, -180 + 100 + 5},  // the ligature of two f in upper case
    };
    for (const auto& [locator, lat, lon] : cases) {
        const auto coordinate = maidenheadToCoordinate(locator);
        ASSERT_TRUE(coordinate) << locator;
        EXPECT_NEAR(coordinate->lat, lat, 1e-12) << locator;
        EXPECT_NEAR(coordinate->lon, lon, 1e-12) << locator;
    }
}

TEST(Locator, NeedsTwoLettersFromAToRAndTwoDigits) {
    for (const char* locator : {"", "   ", "J", "JO6", "SO62", "JS62", "J062", "JOA2", "JO6A", "62JO", "ÄO62",
                                "J\u0301O62", "JO٦٢", "JO 62", "\r\nJO62"}) {
        EXPECT_FALSE(maidenheadToCoordinate(locator)) << locator;
        EXPECT_FALSE(greatCircleKm(locator, "JO62")) << locator;
        EXPECT_FALSE(distanceKm("JO62", locator)) << locator;
    }
}

// The distances were worked out from the angle between the vectors to both points.
TEST(Distance, IsAlongTheGreatCircle) {
    const std::tuple<std::string, std::string, double, int> cases[] = {
        {"JO62", "JO62", 0, 0},
        {"JO62", "JO63", 111.19492664455846, 111},
        {"JO62", "JO72", 135.3780386081784, 135},
        {"JO62QM", "JO62RM", 5.638258137925389, 6},
        {"JO62QM", "JN58TD", 502.04402485312085, 502},
        {"JO62QM", "FN31PR", 6226.636758442741, 6227},
        {"RE78", "QF56", 2286.7390387141377, 2287},
        {"AI00", "RI90", 219.33960684426947, 219},  // across the date line
        {"AA00", "RR99", 19903.908805331746, 19904},
        {"AA00", "JR09", 20015.086796020572, 20015},  // antipodes
    };
    for (const auto& [from, to, km, wholeKm] : cases) {
        EXPECT_NEAR(greatCircleKm(from, to).value_or(-1), km, 1e-6) << from << ' ' << to;
        EXPECT_NEAR(greatCircleKm(to, from).value_or(-1), km, 1e-6) << to << ' ' << from;
        EXPECT_EQ(distanceKm(from, to), wholeKm) << from << ' ' << to;
        const auto start = maidenheadToCoordinate(from);
        ASSERT_TRUE(start);
        DistancesFrom distances(*start);
        for (const std::string& end : {from, to, to}) {
            EXPECT_EQ(distances.greatCircleKm(end), greatCircleKm(from, end)) << from << ' ' << end;
        }
        EXPECT_FALSE(distances.greatCircleKm("JO6"));
    }
}

}  // namespace
}  // namespace tallyrig
