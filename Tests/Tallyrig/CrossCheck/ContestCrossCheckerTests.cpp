// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/ContestCrossChecker.h"

#include "Tallyrig/CrossCheck/LiteralCrossCheck.h"
#include "Tallyrig/CrossCheck/LogWork.h"
#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyrig {
namespace {

using Status = CrossCheckStatus;

/// A QSO of "CALL TIME BAND MODE", and fields behind " | "; a "-" leaves a part out.
testing::Pairs qso(std::string_view text) {
    constexpr std::array<std::string_view, 4> names = {"CALL", "TIME_ON", "BAND", "MODE"};
    const std::size_t more = text.find(" | ");
    testing::Pairs pairs;
    std::size_t name = 0;
    for (const std::string_view part : text::split(text.substr(0, more), ' ')) {
        if (part != "-") {
            pairs.emplace_back(names[name], part);
        }
        ++name;
    }
    if (more != std::string_view::npos) {
        const testing::Pairs others = testing::fields(text.substr(more + 3));
        pairs.insert(pairs.end(), others.begin(), others.end());
    }
    pairs.emplace_back("QSO_DATE", "20240323");
    return pairs;
}

CrossCheckLog log(std::string_view owner, const std::vector<std::string_view>& qsos) {
    std::vector<testing::Pairs> records;
    for (const std::string_view text : qsos) {
        records.push_back(qso(text));
    }
    return {UUID::fresh(), std::string(owner) + ".log", testing::document(records), owner};
}

/// "status counterpart: notes" of each QSO of the first log, the counterpart as log#index.
std::vector<std::string> found(const std::vector<CrossCheckLog>& logs,
                               const CrossCheckOptions& options = {}) {
    const CrossCheckReport report = ContestCrossChecker(options).check(logs);
    std::vector<std::string> lines;
    for (const CrossCheckFinding& finding : report.findings(logs.front().id)) {
        std::string& line = lines.emplace_back(nameOf(finding.status));
        for (std::size_t position = 0; position < logs.size(); ++position) {
            if (finding.counterpartLogID == logs[position].id) {
                line += " " + std::to_string(position) + "#" + std::to_string(*finding.counterpartIndex);
            }
        }
        for (const std::string& note : finding.notes) {
            line += "; " + note;
        }
    }
    return lines;
}

using Lines = std::vector<std::string>;

TEST(Match, IsTheNearestInTimeThatIsLeft) {
    const CrossCheckLog other = log("DL1B", {"DL1A 1203 20m CW", "DL1A 1157 20m CW", "DL1A 1235 20M cw"});
    EXPECT_EQ(found({log("DL1A", {"DL1B 1200 20m CW", "DL1B 1200 20m CW", "DL1B 1200 20m CW"}), other}),
              (Lines{"confirmed 1#0", "confirmed 1#1", "notInLog"}));
    EXPECT_EQ(found({log("DL1A", {"DL1B 1208 20m CW", "DL1B 1205 20m CW", "DL1B 1205 20m CW"}), other}),
              (Lines{"confirmed 1#0", "timeMismatch 1#1; Zeitdifferenz 8 min",
                     "timeMismatch 1#2; Zeitdifferenz 30 min"}));
    EXPECT_EQ(
        found({log("DL1A", {"DL1B 2358 20m CW"}), log("DL1B", {"DL1A 0001 20m CW | QSO_DATE=20240324"})}),
        Lines{"confirmed 1#0"});
}

TEST(Match, WithoutATimeIsWithTheFirstQSOThatIsLeft) {
    EXPECT_EQ(found({log("DL1A", {"DL1B - 20m CW", "DL1B 12 20m CW", "DL1B 1200 20m CW"}),
                     log("DL1B", {"DL1A 1500 20m CW", "DL1A - 20m CW", "DL1A 1000 20m CW"})}),
              (Lines{"confirmed 1#0; Zeit nicht prüfbar", "confirmed 1#1; Zeit nicht prüfbar", "notInLog"}));
}

TEST(Match, SaysInWhatTheCallsDiffer) {
    EXPECT_EQ(
        found({log("DL1A/P", {"F/DL1B/P 1200 20m USB", "dl1b 1207 20m SSB"}),
               log("DL1B", {"DL1A 1200 20m FM | STATION_CALLSIGN= dl1b",
                            "DL1A/P 1200 20m PH | STATION_CALLSIGN=DL1B/M"})}),
        (Lines{"confirmed 1#0; Zusatz abweichend: F/DL1B/P ≠ DL1B; Gegenstation loggte DL1A statt DL1A/P",
               "timeMismatch 1#1; Zeitdifferenz 7 min; Zusatz abweichend: DL1B ≠ DL1B/M"}));
}

TEST(Match, ComparesTheExchange) {
    const std::vector<CrossCheckLog> logs = {
        log("DL1A", {"DL1B - 20m CW | SRX=7 | RST_RCVD=599", "DL1B 1300 20m CW | SRX=8"}),
        log("DL1B/P", {"DL1A 1200 20m CW | STX=9 | RST_SENT=579 | STATION_CALLSIGN=DL1B/P",
                       "DL1A 1300 20m CW | STX=008"})};
    const std::string start = "; Zusatz abweichend: DL1B ≠ DL1B/P; Zeit nicht prüfbar";
    const std::string number = "; Nummer: empfangen 7, gesendet 9";
    EXPECT_EQ(found(logs), (Lines{"bustedExchange 1#0" + start + number, "confirmed 1#1"}));
    EXPECT_EQ(found(logs, {.checkRST = true}).front(),
              "bustedExchange 1#0" + start + number + "; RST: empfangen 599, gesendet 579");
    EXPECT_EQ(found(logs, {.checkExchange = false}).front(), "confirmed 1#0" + start);
}

TEST(OtherBandOrMode, LeavesTheOtherQSOForALaterMatch) {
    const std::vector<CrossCheckLog> logs = {
        log("DL1A", {"DL1B 1200 40m CW", "DL1B 1200 20m SSB", "DL1B 1206 40M CW", "DL1B 1200 20m CW"}),
        log("DL1B", {"DL1A 1201 20M CW"})};
    EXPECT_EQ(found(logs), (Lines{"bandModeMismatch 1#0; bei Gegenstation auf 20m",
                                  "bandModeMismatch 1#0; bei Gegenstation in CW",
                                  "bandModeMismatch 1#0; bei Gegenstation auf 20m", "confirmed 1#0"}));
    EXPECT_EQ(found(logs, {.compareMode = false}), (Lines{"bandModeMismatch 1#0; bei Gegenstation auf 20m",
                                                          "confirmed 1#0", "notInLog", "notInLog"}));
    EXPECT_EQ(found({log("DL1A", {"DL1B 1200 40m CW"}), log("DL1B", {"DL1A 1200 - -"})}),
              Lines{"bandModeMismatch 1#0; bei Gegenstation auf ?; bei Gegenstation in ?"});
}

TEST(MistypedCall, CountsAgainstTheOneWhoLoggedIt) {
    // DL1AC is a station of its own and no miscopy; of two at equal distance the call logged first counts.
    const CrossCheckLog other =
        log("DL1XX", {"DL1AC 1200 20m CW", "DL1AB/P 1203 20m CW", "DL1AAB 1158 20m CW", "DL1AB 1158 20m CW",
                      "K9ZZZ 1200 20m CW"});
    const CrossCheckLog third = log("DL1AC", {"F1A 1000 20m CW"});
    const std::string note = "; Gegenstation loggte dein Rufzeichen als ";
    EXPECT_EQ(found({log("DL1AA", {"DL1XX 1200 20m CW", "DL1XX 1200 20m CW", "DL1XX 1200 20m CW",
                                   "DL1XX 1200 20m CW", "DL1XX 1200 15m CW"}),
                     other, third}),
              (Lines{"confirmed 1#3" + note + "DL1AB", "confirmed 1#2" + note + "DL1AAB",
                     "confirmed 1#1" + note + "DL1AB/P", "notInLog", "notInLog"}));
    // The first station in text order, not the one with the nearest call or time; and it stays for others.
    const std::vector<CrossCheckLog> logs = {
        log("F1A", {"DL1XY 1200 20m CW", "DL1XY 1203 20m CW", "DL1XY 1200 15m CW", "DL9XX 1200 20m CW"}),
        log("DL1XZ", {"F1A 1200 20m CW"}), log("DL1XAB/P", {"F1A 1204 20m CW", "F1A 1201 20m CW"}),
        log("DL9XX", {"OZ7ABC 1200 20m CW"})};
    EXPECT_EQ(found(logs), (Lines{"bustedCall 2#1; vermutlich DL1XAB", "bustedCall 2#0; vermutlich DL1XAB",
                                  "unique", "bustedCall 1#0; vermutlich DL1XZ"}));
    EXPECT_EQ(found(logs, {.maxCallDistance = 1}).front(), "bustedCall 1#0; vermutlich DL1XZ");
}

TEST(MistypedCall, IsTakenCallByCallHoweverManyThereAre) {
    constexpr std::size_t count = 40;
    std::vector<std::string_view> mine;
    std::vector<std::string_view> theirs;
    for (std::size_t index = 0; index < count; ++index) {
        mine.emplace_back("DL1XX 1200 20m CW");
        theirs.emplace_back(index % 2 == 0 ? "DL1AC 1200 20m CW" : "DL1AB 1200 20m CW");
    }
    const Lines lines = found({log("DL1AA", mine), log("DL1XX", theirs)});
    for (std::size_t index = 0; index < count; ++index) {
        const std::size_t other = index < count / 2 ? 2 * index : 2 * index + 1 - count;
        EXPECT_TRUE(lines[index].starts_with("confirmed 1#" + std::to_string(other) + ";")) << lines[index];
    }
}

TEST(CallWithoutLog, IsUniqueUnlessOthersHoldIt) {
    EXPECT_EQ(found({log("DL1A", {"OZ9X 1200 20m CW", "OZ9X/P 1200 20m CW", "LU7Z 1200 20m CW",
                                  "- 1200 20m CW", "DL1A 1200 20m CW", "VK4Q 1200 20m CW"}),
                     log("G1B", {"OZ9X 1800 40m CW", "DL1A 1200 20m CW", "- 1100 20m CW"}),
                     log("G1B/P", {"OZ9X 1900 40m CW"}), log("", {"M/OZ9X 1800 15m CW", "VK4Q 1100 20m CW"}),
                     log("", {"OZ9X 1800 15m CW"})}),
              (Lines{"notCheckable; in 2 weiteren Log(s)", "notCheckable; in 2 weiteren Log(s)", "unique",
                     "unique", "notCheckable; in 1 weiteren Log(s)", "notCheckable; in 1 weiteren Log(s)"}));
}

TEST(LogWithoutOwner, IsCheckedByTheQSOsWithoutCall) {
    EXPECT_EQ(found({log("", {"DL1B 1200 20m CW", "DL1B 1300 20m CW", "DL1C 1204 20m CW"}),
                     log("DL1B", {"- 1201 20m CW"}), log("", {"- 1300 20m CW"})}),
              (Lines{"confirmed 1#0", "notInLog", "bustedCall 1#0; vermutlich DL1B"}));
}

TEST(LogsOfOneStation, AreSearchedTogether) {
    EXPECT_EQ(found({log("DL1A", {"DL1B 1200 20m CW", "DL1B 1200 20m CW", "DL1B 1200 15m CW"}),
                     log("DL1B/P", {"DL1A 1203 20m CW"}), log("DL1B", {}),
                     log("DL1B", {"DL1A 1157 20m CW", "DL1A 1200 15m CW"})}),
              (Lines{"confirmed 1#0", "confirmed 3#0", "confirmed 3#1"}));
}

TEST(Record, VouchesForOneQSOWhateverLogsItStandsIn) {
    const CrossCheckLog other = log("DL1B", {"DL1A 1200 20m CW"});
    const CrossCheckLog copy(UUID::fresh(), "", other.document, "OZ9X");
    EXPECT_EQ(found({log("DL1A", {"DL1B 1200 20m CW", "OZ9X 1200 20m CW"}), other, copy}),
              (Lines{"confirmed 1#0", "notInLog"}));
}

/// A contest of a few stations with calls that are easily mistaken for each other, in which everything goes
/// wrong that can. `random` decides.
class Muddle {
  public:
    /// A crowd is a few stations that work each other again and again within few minutes.
    explicit Muddle(std::uint32_t seed, bool isMuchCrowded = false) : random(seed), isCrowd(isMuchCrowded) {}

    CrossCheckOptions options() {
        return {of<std::int64_t>({1, 5, 30}),
                of<std::int64_t>({30, 30, 3}),
                !chance(4),
                !chance(4),
                chance(2),
                of<std::int64_t>({2, 2, 1, 0, 9, -1})};
    }

    std::vector<CrossCheckLog> logs() {
        const std::size_t stations = isCrowd ? 3 : 2 + below(7);
        std::vector<std::vector<testing::Pairs>> records(stations);
        for (std::size_t count = isCrowd ? 500 : 4 + below(60); count > 0; --count) {
            const std::size_t left = below(stations);
            const std::size_t right = below(stations);
            const auto minute = static_cast<std::int64_t>(below(isCrowd ? 4 : 90));
            const std::string_view band = of<std::string_view>({"20m", "40M", "20M", ""});
            for (std::size_t copies = chance(8) ? 2 : 1; copies > 0; --copies) {
                records[left].push_back(record(right, minute, band));
                records[right].push_back(record(left, minute, band));
            }
        }
        std::vector<CrossCheckLog> logs;
        for (std::size_t station = 0; station < stations; ++station) {
            if (chance(5)) {
                continue;  // sent no log
            }
            ADIFDocument document = testing::document(records[station]);
            if (chance(12) && !logs.empty()) {
                document = logs[below(logs.size())].document;
            }
            logs.emplace_back(UUID::fresh(), std::to_string(station), document,
                              chance(12) ? "" : calls[station]);
        }
        return logs;
    }

  private:
    static constexpr std::array<std::string_view, 9> calls = {
        "DL1AA", "DL1AB", "DL2AA", "DL1AAB", "DL1AA/P", "EA8/DL1AB/QRP", "OZ9X", "OZ9XX", "F5A"};

    testing::Pairs record(std::size_t other, std::int64_t minute, std::string_view band) {
        const std::int64_t time =
            1000 + std::max<std::int64_t>(0, minute + of<std::int64_t>({0, 0, 0, 0, 1, -3, 5, 6, -20, 31}));
        const std::string_view call =
            chance(6) ? of<std::string_view>({"DL1AC", "DL1A", "dl1ab/m", "", "OZ8X", "F5B"}) : calls[other];
        const std::string number = std::to_string(below(chance(4) ? 3 : 1));
        return {{"CALL", std::string(call)},
                {"QSO_DATE", chance(20) ? "2024" : "20240323"},
                {"TIME_ON", chance(10) ? "" : std::to_string(time / 60 * 100 + time % 60)},
                {"BAND", std::string(chance(8) ? "15m" : band)},
                {"MODE", std::string(of<std::string_view>({"CW", "CW", "CW", "SSB", "usb"}))},
                {chance(2) ? "STX" : "STX_STRING", "0" + number},
                {chance(2) ? "SRX" : "SRX_STRING", number},
                {"RST_RCVD", "599"},
                {"RST_SENT", chance(9) ? "579" : "599"},
                {"STATION_CALLSIGN", std::string(chance(3) ? calls[below(calls.size())] : "")}};
    }

    std::size_t below(std::size_t limit) { return random() % limit; }
    bool chance(std::size_t oneIn) { return below(oneIn) == 0; }
    template <typename Value>
    Value of(std::initializer_list<Value> values) {
        return values.begin()[below(values.size())];
    }

    std::mt19937 random;
    bool isCrowd;
};

/// Checks on so many threads, and once more as one would do it by hand.
void checkTwice(Muddle muddle, std::size_t threads) {
    const std::vector<CrossCheckLog> logs = muddle.logs();
    const CrossCheckOptions options = muddle.options();
    LogWork work(threads);
    const auto report = ContestCrossChecker(options).check(logs, work);
    ASSERT_TRUE(report);
    ASSERT_TRUE(logs.empty() || work.progress() == 1 || report->findings().empty());
    const CrossCheckReport expected = testing::LiteralCrossCheck(logs, options).report();
    ASSERT_EQ(report->summaries(), expected.summaries());
    ASSERT_TRUE(std::ranges::equal(report->findings(), expected.findings()));
}

TEST(Muddle, IsJudgedAsByHandOnAnyNumberOfThreads) {
    for (std::uint32_t seed = 1; seed <= 400; ++seed) {
        ASSERT_NO_FATAL_FAILURE(checkTwice(Muddle(seed), 1 + seed % 4)) << seed;
    }
}

TEST(Crowd, IsJudgedAsByHand) {
    for (std::uint32_t seed = 1; seed <= 16; ++seed) {
        ASSERT_NO_FATAL_FAILURE(checkTwice(Muddle(seed, true), 2)) << seed;
    }
}

TEST(Report, CountsEachLogInTheOrderOfTheLogs) {
    const std::vector<CrossCheckLog> logs = {
        log("DL1A", {"DL1B 1200 20m CW", "DL1B 1300 20m CW", "OZ9X 1200 20m CW", "LU7Z 1200 20m CW"}),
        log("DL1C", {}), log("DL1B", {"DL1A 1200 20m CW", "DL1C 1200 20m CW", "OZ9X 1200 20m CW"})};
    const CrossCheckReport report = ContestCrossChecker({}).check(logs);
    ASSERT_EQ(report.summaries().size(), 3U);
    const CrossCheckSummary& first = report.summaries()[0];
    EXPECT_EQ(first.logID, logs[0].id);
    EXPECT_EQ(first.name, "DL1A.log");
    EXPECT_EQ(first.owner, "DL1A");
    EXPECT_EQ(first.counts.total(), 4U);
    EXPECT_EQ(first.counts.checkable(), 2U);
    EXPECT_EQ(first.counts.errors(), 1U);
    EXPECT_EQ(first.counts.accuracy(), 0.5);
    EXPECT_EQ(report.summaries()[1].counts.accuracy(), std::nullopt);
    EXPECT_TRUE(report.findings(logs[1].id).empty());
    EXPECT_TRUE(report.findings(UUID::fresh()).empty());
    const auto last = report.findings(logs[2].id);
    ASSERT_EQ(last.size(), 3U);
    EXPECT_EQ(last[1].id, logs[2].document.records()[1].id());
    EXPECT_EQ(last[1].logID, logs[2].id);
    EXPECT_EQ(last[1].index, 1U);
    EXPECT_EQ(last[1].call, "DL1C");

    LogWork cancelled;
    cancelled.cancel();
    EXPECT_FALSE(ContestCrossChecker({}).check(logs, cancelled));
    EXPECT_TRUE(ContestCrossChecker({}).check({}).summaries().empty());
}

}  // namespace
}  // namespace tallyrig
