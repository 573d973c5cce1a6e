// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Contest/ContestTemplates.h"

#include "Tallyrig/Contest/ContestChecker.h"
#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {
namespace {

const ContestStation swiss = {"287", "EU", "14", "28", "JN47"};
const ContestStation german = {"230", "EU", "14", "28", "JO62"};
const ContestStation american = {"291", "NA", "5", "8", "FN31"};

ContestScore score(const ContestRules& rules, const std::vector<std::string_view>& qsos) {
    std::vector<testing::Pairs> records;
    for (const std::string_view qso : qsos) {
        records.push_back(testing::fields(qso));
    }
    return ContestChecker(rules).score(testing::document(records));
}

/// The points of each QSO, "!" for an invalid one.
std::string pointsOf(const ContestScore& score) {
    std::string points;
    for (const ContestQSOResult& qso : score.results) {
        points += (points.empty() ? "" : " ") + (qso.problems.empty() ? std::to_string(qso.points) : "!");
    }
    return points;
}

TEST(Templates, AreFoundByTheNamesOfLoggingPrograms) {
    const struct {
        std::string_view id;
        std::string_view name;
    } cases[] = {
        {"CQ-WW-CW", "CQ WW DX"},           {"cq-wpx-rtty", "CQ WPX RTTY"},
        {"Sec", "Swiss Emergency Contest"}, {"JIDX-SSB", "JIDX"},
        {"USKA-FD-SSB", "USKA Field Day"},  {"DARC-WAG", "WAG (mit DL)"},
        {"darc-10m", "DARC 10m-Contest"},
    };
    for (const auto& [id, name] : cases) {
        const auto rules = ContestTemplates::forTemplateID(id, swiss);
        ASSERT_TRUE(rules) << id;
        EXPECT_EQ(rules->name, name);
        EXPECT_EQ(rules->station, swiss);
    }
    for (const char* const id : {"", "CQ-WW", " CQ-WW-CW", "IARU-VHF", "GENERIC"}) {
        EXPECT_FALSE(ContestTemplates::forTemplateID(id, swiss)) << id;
    }
}

TEST(Templates, GiveTheFirstPointsWhoseConditionHolds) {
    const std::vector<std::string_view> qsos = {
        "CALL=HB9ABC/P | BAND=20M | CQZ=14 | SRX=1", "CALL=DL1ABC | BAND=40M | CQZ=14 | SRX=1",
        "CALL=K1ABC | BAND=40M | CQZ=5 | SRX=1",     "CALL=VE3ABC | BAND=40M | CQZ=4 | SRX=1",
        "CALL=JA1ABC | BAND=20M | CQZ=25 | SRX=1",   "CALL=RW3ABC | BAND=80M | CQZ=16 | SRX=1",
        "CALL=SM5ABC | BAND=80M | CQZ=14 | SRX=1",   "CALL=XX9ABC | BAND=80M | CQZ=24 | SRX=1",
    };
    const struct {
        ContestRules rules;
        std::string_view points;
    } cases[] = {
        {ContestTemplates::helvetia(swiss), "10 1 3 3 3 1 1 0"},
        {ContestTemplates::fieldDay(swiss), "4 2 3 3 3 2 2 0"},
        {ContestTemplates::cqWW(swiss), "0 1 3 3 3 1 1 0"},
        {ContestTemplates::cqWW(american), "3 3 0 2 3 3 3 0"},
        {ContestTemplates::cqWPX(swiss), "1 2 6 6 3 2 2 0"},
        {ContestTemplates::cqWPX(american), "3 6 1 4 3 6 6 0"},
        {ContestTemplates::wag(german), "3 1 5 5 5 3 3 0"},
        {ContestTemplates::wag(swiss), "! 3 ! ! ! ! ! !"},
        {ContestTemplates::arrlDX(american), "3 3 ! ! 3 3 3 !"},
        {ContestTemplates::arrlDX(swiss), "! ! 3 3 ! ! ! !"},
        {ContestTemplates::sac(swiss), "! ! ! ! ! ! 1 !"},
        {ContestTemplates::sac(american), "! ! ! ! ! ! 3 !"},
        {ContestTemplates::aaDX(swiss), "! ! ! ! 1 ! ! !"},
        {ContestTemplates::russianDX(swiss), "2 3 5 5 5 10 3 0"},
        {ContestTemplates::waeDX(swiss), "! ! 1 1 1 ! ! !"},
    };
    for (const auto& [rules, points] : cases) {
        EXPECT_EQ(pointsOf(score(rules, qsos)), points) << rules.name << " " << rules.station.dxcc;
    }
}

TEST(Templates, CountWhatTheContestCallsAMultiplier) {
    const struct {
        ContestRules rules;
        std::vector<std::string_view> qsos;
        std::vector<std::int64_t> counts;
    } cases[] = {
        // The canton is found in the exchange, and an exchange without one does not hide the other field.
        {ContestTemplates::helvetia(swiss),
         {"CALL=HB9A | BAND=20M | SRX_STRING=599 zh", "CALL=HB9B | BAND=20M | SRX_STRING=59 1 | STATE=ZH",
          "CALL=HB9C | BAND=40M | SRX_STRING=ZH", "CALL=DL1A | BAND=20M | SRX_STRING=001"},
         {2, 3}},
        // Neither a district nor the word for none counts, nor does a number; only the last word does.
        {ContestTemplates::darc10m(german),
         {"CALL=DL1A | BAND=10M | MODE=CW | DOK=nm", "CALL=DL1B | BAND=10M | MODE=CW | SRX_STRING=599 001",
          "CALL=DL1C | BAND=10M | MODE=CW | SRX_STRING=599 Z20", "CALL=DL1C | BAND=10M | MODE=SSB | DOK=Z20"},
         {2, 2}},
        {ContestTemplates::euHFChampionship(swiss),
         {"CALL=DL1A | BAND=10M | SRX_STRING=59 97", "CALL=DL1B | BAND=10M | SRX=97",
          "CALL=DL1C | BAND=10M | SRX_STRING= | SRX=98"},
         {2}},
        {ContestTemplates::waeDX(swiss),
         {"CALL=K1A | BAND=80M | SRX=1", "CALL=K1A | BAND=40M | SRX=1", "CALL=K1A | BAND=10M | SRX=1",
          "CALL=K1A | BAND=160M | SRX=1"},
         {10}},
        {ContestTemplates::sac(swiss),
         {"CALL=SM5A | BAND=20M", "CALL=SK5B | BAND=20M", "CALL=SM3A | BAND=20M", "CALL=OH | BAND=20M",
          "CALL=SM5C | BAND=15M"},
         {4}},
        {ContestTemplates::russianDX(swiss),
         {"CALL=RA3A | BAND=20M | SRX_STRING=599 mo", "CALL=DL1A | BAND=20M | SRX_STRING=001",
          "CALL=RA3B | BAND=20M | SRX_STRING=M1"},
         {1, 2}},
        {ContestTemplates::arrlRTTYRoundup(swiss),
         {"CALL=K1A | BAND=20M | STATE=ct", "CALL=K1A | BAND=40M | STATE=CT", "CALL=DL1A | BAND=20M"},
         {1, 1}},
        {ContestTemplates::vhfDistance(swiss),
         {"CALL=DL1A | BAND=2M | GRIDSQUARE=JO62qm", "CALL=DL1B | BAND=2M | GRIDSQUARE=jo62",
          "CALL=DL1C | BAND=2M | GRIDSQUARE=JO6"},
         {2}},
        {ContestTemplates::nmd(swiss), {"CALL=HB9A/P | BAND=80M"}, {}},
    };
    for (const auto& [rules, qsos, counts] : cases) {
        std::vector<std::int64_t> counted;
        for (const ContestScore::Breakdown& multiplier : score(rules, qsos).multiplierBreakdown) {
            counted.push_back(multiplier.count);
        }
        EXPECT_EQ(counted, counts) << rules.name;
    }
}

TEST(SwissEmergency, SumsTheBandsAndCountsRepeatsAboveShortWave) {
    const ContestScore total =
        score(ContestTemplates::swissEmergency(swiss),
              {"CALL=HB9A | BAND=2M | HIS_ZIP=8000", "CALL=HB9A | BAND=2M | SRX_STRING=59 8000",
               "CALL=HB9B | BAND=2M | HIS_ZIP=3000", "CALL=HB9A | BAND=80M | HIS_ZIP=8000",
               "CALL=HB9A | BAND=80M | HIS_ZIP=8000"});
    EXPECT_EQ(total.dupeQSOs, 1U);
    EXPECT_EQ(total.total, 3 * 2 + 1 * 1);
}

}  // namespace
}  // namespace tallyrig
