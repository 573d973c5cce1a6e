// SPDX-License-Identifier: GPL-3.0-or-later
// Checking and scoring the logs of a contest on one thread, beside reading the same logs from memory
// ("readings"); on two threads beside one; a check in which nothing is found beside one as usual, and of logs
// that no station would send. With --largest also a contest of the largest size, which takes some minutes and
// 6 GB.

#include "GeneratedContest.h"
#include "MemoryCount.h"
#include "Tallyrig/Adjudication/CrossCheckScoring.h"
#include "Tallyrig/Contest/ContestTemplates.h"
#include "Tallyrig/CrossCheck/ContestCrossChecker.h"
#include "Tallyrig/CrossCheck/CrossCheckIndex.h"
#include "Tallyrig/CrossCheck/LogWork.h"
#include "Tallyrig/Formats/CabrilloParser.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Timing.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig::benchmarks {
namespace {

const ContestStation german = {"230", "EU", "14", "28", "JO62QM"};

struct Contest {
    std::vector<std::string> texts;
    std::vector<CrossCheckLog> logs;
    std::size_t qsoCount = 0;

    void read() const {
        for (const std::string& text : texts) {
            benchmark::DoNotOptimize(CabrilloParser::parse(text));
        }
    }
};

/// The contest of the benchmark's size, made once.
const Contest& contestOf(const benchmark::State& state) {
    static std::map<std::int64_t, Contest> contests;
    Contest& contest = contests[state.range(1)];
    if (contest.texts.empty()) {
        contest.texts = generatedContest(static_cast<std::size_t>(state.range(0)),
                                         static_cast<std::size_t>(state.range(1)));
        for (const std::string& text : contest.texts) {
            contest.logs.emplace_back(UUID::fresh(), "", CabrilloParser::parse(text));
            contest.qsoCount += contest.logs.back().document.records().size();
        }
    }
    return contest;
}

CrossCheckReport checked(const std::vector<CrossCheckLog>& logs, std::size_t threads) {
    LogWork work(threads);
    return ContestCrossChecker({}).check(logs, work).value_or(CrossCheckReport());
}

void setCounters(benchmark::State& state, const Contest& contest) {
    state.counters["QSOs"] = static_cast<double>(contest.qsoCount);
    state.counters["nsPerQSO"] = state.counters["bestMs"] * 1e6 / static_cast<double>(contest.qsoCount);
}

void checking(benchmark::State& state) {
    const Contest& contest = contestOf(state);
    inTurns(
        state, "readings", [&] { benchmark::DoNotOptimize(checked(contest.logs, 1)); },
        [&] { contest.read(); });
    setCounters(state, contest);
    CrossCheckCounts counts;
    for (const CrossCheckSummary& summary : checked(contest.logs, 1).summaries()) {
        counts += summary.counts;
    }
    for (const CrossCheckStatus status : crossCheckStatuses) {
        state.counters[std::string(nameOf(status))] =
            static_cast<double>(counts.count(status)) / static_cast<double>(counts.total());
    }
    LogWork work(1);
    std::vector<CrossCheckReport::Findings> findings;
    const std::size_t before = heapInUse();
    const CrossCheckIndex index(contest.logs, {}, findings, work);
    findings = {};
    state.counters["indexBytesPerQSO"] =
        static_cast<double>(heapInUse() - before) / static_cast<double>(contest.qsoCount);
}

void scoring(benchmark::State& state) {
    const Contest& contest = contestOf(state);
    const CrossCheckReport report = checked(contest.logs, 0);
    inTurns(
        state, "readings",
        [&] {
            LogWork work(1);
            benchmark::DoNotOptimize(
                crossCheckScores(contest.logs, report, {}, german, ContestTemplates::cqWPX, work));
        },
        [&] { contest.read(); });
    setCounters(state, contest);
}

void checkingOnTwoThreads(benchmark::State& state) {
    const Contest& contest = contestOf(state);
    inTurns(
        state, "ofOneThread", [&] { benchmark::DoNotOptimize(checked(contest.logs, 2)); },
        [&] { benchmark::DoNotOptimize(checked(contest.logs, 1)); });
    setCounters(state, contest);
}

/// Each log goes by the call of the next: there are logs of all calls as before, and none holds what it
/// should.
void checkingInVain(benchmark::State& state) {
    const Contest& contest = contestOf(state);
    std::vector<CrossCheckLog> others = contest.logs;
    for (std::size_t log = 0; log < others.size(); ++log) {
        others[log].owner = contest.logs[(log + 1) % others.size()].owner;
    }
    inTurns(
        state, "ofAMatch", [&] { benchmark::DoNotOptimize(checked(others, 1)); },
        [&] { benchmark::DoNotOptimize(checked(contest.logs, 1)); });
    setCounters(state, contest);
}

/// What is odd of the QSOs of two stations, each with a log of `count`. Texts in ADIF; "#" is the QSO's
/// number.
struct OddLogs {
    const char* name;
    std::string_view mine;    ///< What DL1A has logged each time.
    std::string_view theirs;  ///< What DL1B has.
};

constexpr OddLogs oddLogs[] = {
    {"timelessUnderALikeCall", "<CALL:4>DL1B<BAND:3>20m", "<CALL:5>DL1AX<BAND:3>20m"},
    {"timeless", "<CALL:4>DL1B<BAND:3>20m", "<CALL:4>DL1A<BAND:3>20m<TIME_ON:5>#"},
    {"eachOnABandOfItsOwn", "<CALL:4>DL1B<BAND:6>A#<TIME_ON:4>1200", "<CALL:4>DL1A<BAND:6>B#<TIME_ON:4>1200"},
    {"otherCallsInOneMinute", "<CALL:6>K#<BAND:3>20m<TIME_ON:4>1200",
     "<CALL:4>DL1A<BAND:3>20m<TIME_ON:4>1200"},
    {"otherBandInOneMinute", "<CALL:4>DL1B<BAND:3>20m<TIME_ON:4>1200",
     "<CALL:4>DL1A<BAND:3>40m<TIME_ON:4>1200"},
};

CrossCheckLog repeatedQSO(std::string_view owner, std::string_view fields, std::size_t count) {
    std::string text;
    for (std::size_t number = 0; number < count; ++number) {
        const std::string digits = std::to_string(100'000 + number).substr(1);
        for (const char c : fields) {
            text += c == '#' ? digits : std::string(1, c);
        }
        text += "<MODE:2>CW<QSO_DATE:8>20240323<EOR>";
    }
    return {UUID::fresh(), "", ADIFParser::parse(text), owner};
}

void checkingOddLogs(benchmark::State& state, const OddLogs& odd) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const std::vector<CrossCheckLog> logs = {repeatedQSO("DL1A", odd.mine, count),
                                             repeatedQSO("DL1B", odd.theirs, count)};
    // The same stations at ten QSOs a minute.
    const std::vector<CrossCheckLog> matching = {
        repeatedQSO("DL1A", "<CALL:4>DL1B<BAND:3>20m<TIME_ON:5>#", count),
        repeatedQSO("DL1B", "<CALL:4>DL1A<BAND:3>20m<TIME_ON:5>#", count)};
    inTurns(
        state, "ofAMatch", [&] { benchmark::DoNotOptimize(checked(logs, 1)); },
        [&] { benchmark::DoNotOptimize(checked(matching, 1)); });
    state.counters["nsPerQSO"] = state.counters["bestMs"] * 1e6 / static_cast<double>(2 * count);
}

void addSize(std::int64_t logs, std::int64_t qsos) {
    const auto add = [&](const char* name, void (*run)(benchmark::State&)) {
        benchmark::RegisterBenchmark(name, run)
            ->Args({logs, qsos})
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    };
    add("checking", checking);
    add("scoring", scoring);
    add("checkingOnTwoThreads", checkingOnTwoThreads);
    add("checkingInVain", checkingInVain);
}

}  // namespace
}  // namespace tallyrig::benchmarks

int main(int argc, char** argv) {
    using namespace tallyrig::benchmarks;
    addSize(100, 25'000);
    addSize(1'860, 480'000);
    for (const OddLogs& odd : oddLogs) {
        benchmark::RegisterBenchmark((std::string("checkingOddLogs/") + odd.name).c_str(), checkingOddLogs,
                                     odd)
            ->Arg(2'000)
            ->Arg(20'000)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }
    char** const end = std::remove(argv + 1, argv + argc, std::string_view("--largest"));
    if (end != argv + argc) {
        addSize(7'442, 5'500'000);
        argc = static_cast<int>(end - argv);
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
}
