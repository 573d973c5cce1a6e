// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/Contests.h"

#include "Quillon/Catalogue/OwnStation.h"
#include "Tallyrig/Contest/ContestTemplates.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {
namespace {

using namespace tallyrig;

TEST(Contests, AreKnownByTheirRawValues) {
    EXPECT_EQ(contests.size(), 33U);
    std::set<std::string_view> labels;
    std::set<std::string> ruleNames;
    for (const Contest contest : contests) {
        EXPECT_EQ(contestNamed(rawValue(contest)), contest) << rawValue(contest);
        EXPECT_FALSE(info(contest).empty()) << rawValue(contest);
        labels.insert(label(contest));
        ruleNames.insert(rulesOf(contest, {}, {}).name);
    }
    EXPECT_EQ(labels.size(), contests.size());
    EXPECT_EQ(ruleNames.size(), contests.size());
    for (const char* const name : {"", "CQWW", "cqWW ", "darc10m", "genericOnePointDXCC", "vhfDistance"}) {
        EXPECT_FALSE(contestNamed(name)) << name;
    }
}

TEST(Contests, HaveTheRulesOfTheirNameButForAFew) {
    const ContestStation station = OwnStation().station();
    EXPECT_EQ(rulesOf(Contest::vhf, {}, station), ContestTemplates::vhfDistance(station));
    EXPECT_EQ(rulesOf(Contest::euHFChamp, {}, station), ContestTemplates::euHFChampionship(station));
    ContestRules wpx = ContestTemplates::cqWPX(station);
    wpx.name = "CQ WPX RTTY";
    EXPECT_EQ(rulesOf(Contest::cqWPXRtty, {}, station), wpx);
    EXPECT_EQ(rulesOf(Contest::wag, {}, {.dxcc = "230"}).name, "WAG (DL-Sicht)");
    EXPECT_EQ(rulesOf(Contest::generic, {}, station), GenericContest().rules(station));
}

TEST(OwnData, AreGivenAsTypedButForTheirCase) {
    const OwnStation typed = {" 230", "eu ", "014", "x", "jo62qm"};
    EXPECT_EQ(typed.station(), (ContestStation{" 230", "EU ", "014", "x", "JO62QM"}));
}

TEST(ContestOfOnesOwn, IsWhatTheFormSays) {
    const ContestStation station = OwnStation().station();
    const ContestRules initial = {.name = "Mein Contest",
                                  .station = station,
                                  .requiredFields = {"CALL"},
                                  .dupeFields = {"CALL", "BAND"},
                                  .points = points::Fixed{1},
                                  .multipliers = {{.name = "DXCC-Gebiete", .field = "DXCC"}}};
    EXPECT_EQ(GenericContest().rules(station), initial);

    GenericContest form;
    form.contestName = "";
    form.pointsKind = PointsKind::distance;
    form.theirGridField = " gridsquare";
    form.dupeMode = DupeMode::callBandMode;
    form.multiplierName = "";
    form.multiplierField = "state ";
    form.multiplierPerBand = true;
    form.multiplierPrefix = 2;
    ContestRules rules = form.rules(station);
    EXPECT_EQ(rules.name, "Contest");
    EXPECT_EQ(rules.points, ContestPoints(points::DistanceKm{"MY_GRIDSQUARE", " gridsquare"}));
    EXPECT_EQ(rules.dupeFields, (std::vector<UpperText>{"CALL", "BAND", "MODE"}));
    EXPECT_EQ(rules.multipliers,
              (std::vector<ContestMultiplier>{
                  {.name = "Multiplikatoren", .field = "STATE ", .perBand = true, .prefixLength = 2}}));

    form.contestName = " ";
    form.pointsKind = PointsKind::field;
    form.dupeMode = DupeMode::call;
    form.multiplierPrefix = -1;
    rules = form.rules(station);
    EXPECT_EQ(rules.name, " ");
    EXPECT_EQ(rules.points, ContestPoints(points::AdifField{"DISTANCE"}));
    EXPECT_EQ(rules.dupeFields, std::vector<UpperText>{"CALL"});
    EXPECT_EQ(rules.multipliers.at(0).prefixLength, std::nullopt);

    form.multiplierField = " \t";
    EXPECT_TRUE(form.rules(station).multipliers.empty());
    form.multiplierField = "DXCC";
    form.multiplierEnabled = false;
    EXPECT_TRUE(form.rules(station).multipliers.empty());
}

TEST(RequiredFields, StandBetweenCommasAndBlanks) {
    const std::pair<std::string, std::vector<UpperText>> cases[] = {
        {"CALL, gridsquare", {"CALL", "GRIDSQUARE"}},
        {" ,SRX  ,, STX\t,\u00A0CQZ", {"SRX", "STX", "CQZ"}},
        {",, ,", {"CALL"}},
        {"", {"CALL"}},
        {"A\nB\tC", {"A\nB\tC"}},
    };
    for (const auto& [text, fields] : cases) {
        GenericContest form;
        form.requiredFieldsText = text;
        EXPECT_EQ(form.rules({}).requiredFields, fields) << text;
    }
}

}  // namespace
}  // namespace quillon
