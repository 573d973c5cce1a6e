// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Adjudication/CrossCheckScoring.h"

#include "Tallyrig/CrossCheck/LogWork.h"
#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace tallyrig {
namespace {

using Status = CrossCheckStatus;

const ContestStation common = {"230", "EU", "14", "28", "JO62"};

TEST(StationOfALog, IsWhereItsCallAndLocatorsSay) {
    using testing::logOf;
    const auto adapted = [](std::string_view owner, const ADIFDocument& log) {
        const ContestStation station = common.adapted(owner, log);
        EXPECT_EQ(station.cqZone + " " + station.ituZone, "14 28");
        return station.dxcc + " " + station.continent + " " + station.gridSquare;
    };
    EXPECT_EQ(adapted("W1AW/P", logOf({"MY_GRIDSQUARE=jo", "MY_GRIDSQUARE= fn31\t", "MY_GRIDSQUARE=FN42",
                                       "MY_GRIDSQUARE=FN42", "CALL=X", "MY_GRIDSQUARE=FN31"})),
              "291 NA FN31");
    EXPECT_EQ(adapted("", logOf({"MY_GRIDSQUARE=JO", "MY_GRIDSQUARE=JO"})), "230 EU JO62");
}

TEST(AdjudicatedScore, TakesTheFirstOfTwoFindingsOnOneRecord) {
    const ADIFDocument log = testing::logOf({"CALL=DL1A | BAND=20M", "CALL=DL1B | BAND=20M"});
    const UUID id = UUID::fresh();
    const auto counted = [&](std::vector<std::pair<std::size_t, Status>> found) {
        CrossCheckReport::Findings findings;
        for (const auto& [index, status] : found) {
            CrossCheckFinding& finding = findings.emplace_back();
            finding.id = log.records()[index].id();
            finding.status = status;
        }
        CrossCheckSummary summary;
        summary.logID = id;
        const CrossCheckReport report({summary}, {findings});
        const ContestRules rules = {.name = "Probe",
                                    .station = common,
                                    .points = points::Fixed{2},
                                    .multipliers = {{.name = "Land", .field = "DXCC"}}};
        const ContestChecker checker(rules);
        EXPECT_EQ(checker.score(log, report, UUID::fresh(), {}).countedQSOs, 2U);
        const ContestChecker::ScorePair pair = checker.scorePair(log, report, id, {});
        EXPECT_EQ(pair.claimed, checker.score(log));
        EXPECT_EQ(pair.checked, checker.score(log, report, id, {}));
        return pair.checked.countedQSOs;
    };
    EXPECT_EQ(counted({{0, Status::notInLog}, {1, Status::confirmed}}), 1U);
    EXPECT_EQ(counted({{0, Status::confirmed}, {0, Status::notInLog}}), 2U);
    EXPECT_EQ(counted({{0, Status::bustedCall}, {0, Status::confirmed}, {1, Status::notInLog}}), 0U);
}

TEST(Scores, AreClaimedAndCheckedByTheRulesOfEachStation) {
    const std::vector<CrossCheckLog> logs = {
        {UUID::fresh(), "", testing::logOf({"CALL=F5A", "CALL=K1A"}), "DL1A"},
        {UUID::fresh(), "", testing::logOf({"CALL=F5A"}), "K1A"}};
    std::vector<CrossCheckSummary> summaries(2);
    std::vector<CrossCheckReport::Findings> findings(2);
    for (std::size_t log = 0; log < 2; ++log) {
        summaries[log].logID = logs[log].id;
        findings[log].emplace_back().id = logs[log].document.records()[0].id();
        findings[log].back().status = log == 0 ? Status::notInLog : Status::confirmed;
    }
    const CrossCheckReport report(summaries, findings);
    const auto rules = [](const ContestStation& station) {
        return ContestRules{
            .name = "Probe", .station = station, .points = points::Fixed{station.dxcc == "291" ? 5 : 3}};
    };
    const CrossCheckScores scores = crossCheckScores(logs, report, {.nilPenaltyFactor = 2}, common, rules);
    ASSERT_EQ(scores.size(), 2U);
    const CrossCheckScore& german = scores.at(logs[0].id);
    EXPECT_EQ(german.logID, logs[0].id);
    EXPECT_EQ(german.station, common);
    EXPECT_EQ(german.claimed.total, 6);
    EXPECT_EQ(german.checked.total, 3 - 6);
    EXPECT_EQ(german.difference(), -9);
    EXPECT_EQ(scores.at(logs[1].id).checked.total, 5);
    EXPECT_EQ(scores.at(logs[1].id).difference(), 0);

    LogWork cancelled;
    cancelled.cancel();
    EXPECT_FALSE(crossCheckScores(logs, report, {}, common, rules, cancelled));
}

}  // namespace
}  // namespace tallyrig
