// SPDX-License-Identifier: GPL-3.0-or-later
// Scoring a contest log by rules of different kinds, beside reading the same log as ADI text ("readings"),
// and the distance of two locators beside a bare haversine ("haversines").

#include "AllocationCount.h"
#include "GeneratedLog.h"
#include "MemoryCount.h"
#include "Tallyrig/Contest/ContestChecker.h"
#include "Tallyrig/Contest/ContestTemplates.h"
#include "Tallyrig/Geography/Locator.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Timing.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <map>
#include <numbers>
#include <string>
#include <string_view>
#include <utility>

namespace tallyrig::benchmarks {
namespace {

using Template = ContestRules (*)(const ContestStation&);

const ContestStation german = {"230", "EU", "14", "28", "JO62QM"};

const std::string& scoredLogOf(std::size_t count, std::string_view band) {
    static std::map<std::string, std::string> logs;
    std::string& text = logs[std::to_string(count) + std::string(band)];
    if (text.empty()) {
        text = generatedScoredLog(count, band);
    }
    return text;
}

/// Scores the log of `count` QSOs in `text` beside reading it.
void scoreBesideReading(benchmark::State& state, ContestRules rules, const std::string& text,
                        std::size_t count) {
    const ADIFDocument log = ADIFParser::parse(text);
    const ContestChecker checker(std::move(rules));
    inTurns(
        state, "readings", [&] { benchmark::DoNotOptimize(checker.score(log)); },
        [&] { benchmark::DoNotOptimize(ADIFParser::parse(text)); });
    state.counters["nsPerQSO"] = state.counters["bestMs"] * 1e6 / static_cast<double>(count);
    const std::size_t allocations = allocationCount();
    const std::size_t bytes = heapInUse();
    const ContestScore score = checker.score(log);
    state.counters["allocationsPerQSO"] =
        static_cast<double>(allocationCount() - allocations) / static_cast<double>(count);
    state.counters["bytesPerQSO"] = static_cast<double>(heapInUse() - bytes) / static_cast<double>(count);
    state.counters["counted"] = static_cast<double>(score.countedQSOs);
    state.counters["multipliers"] = static_cast<double>(score.multiplierCount);
}

void scoring(benchmark::State& state, Template rules, std::string_view band) {
    const auto count = static_cast<std::size_t>(state.range(0));
    scoreBesideReading(state, rules(german), scoredLogOf(count, band), count);
}
#define SCORING(name, band)                                        \
    BENCHMARK_CAPTURE(scoring, name, ContestTemplates::name, band) \
        ->Arg(10'000)                                              \
        ->Arg(100'000)                                             \
        ->Arg(1'000'000)                                           \
        ->UseManualTime()                                          \
        ->Unit(benchmark::kMillisecond)
SCORING(cqWW, "");
SCORING(cqWPX, "");
SCORING(iaruR1VHF, "2M");
SCORING(wag, "");
#undef SCORING

/// 1,000,000 QSOs of which none counts, for two reasons each.
void scoringWithoutBandAndMode(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    std::string text = "<EOH>\n";
    for (std::size_t qso = 0; qso < count; ++qso) {
        const std::string call = "DL" + std::to_string(qso);
        text += "<CALL:" + std::to_string(call.size()) + ">" + call + "<EOR>\n";
    }
    ContestRules rules = ContestTemplates::cqWW(german);
    rules.modes = UpperTextSet{"CW"};
    scoreBesideReading(state, std::move(rules), text, count);
}
BENCHMARK(scoringWithoutBandAndMode)->Arg(1'000'000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// 100 points for each of 1,000,000 QSOs.
void scoringByFixedPoints(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    ContestRules rules = {.name = "Example", .station = german, .points = points::Fixed{100}};
    scoreBesideReading(state, std::move(rules), scoredLogOf(count, ""), count);
}
BENCHMARK(scoringByFixedPoints)->Arg(1'000'000)->UseManualTime()->Unit(benchmark::kMillisecond);

struct Place {
    double lat;
    double lon;
};

double haversine(const Place& from, const Place& to) {
    constexpr double radian = std::numbers::pi / 180;
    const double sinLat = std::sin((to.lat - from.lat) * radian / 2);
    const double sinLon = std::sin((to.lon - from.lon) * radian / 2);
    const double a =
        sinLat * sinLat + std::cos(from.lat * radian) * std::cos(to.lat * radian) * sinLon * sinLon;
    return 2 * std::atan2(std::sqrt(a), std::sqrt(1 - a)) * 6371.0;
}

void distance(benchmark::State& state) {
    constexpr std::size_t rounds = 10'000;
    constexpr std::array<std::string_view, 8> locators = {"JO62QM", "JN58TD", "FN31PR", "RE78IR",
                                                          "KO85AA", "IO91WM", "JN47PI", "PM95VQ"};
    std::array<Place, locators.size()> places{};
    for (std::size_t index = 0; index < locators.size(); ++index) {
        const Coordinate place = maidenheadToCoordinate(locators[index]).value_or(Coordinate());
        places[index] = {place.lat, place.lon};
    }
    const auto eachPair = [&](const auto& visit) {
        for (std::size_t round = 0; round < rounds; ++round) {
            visit(round % locators.size(), round / locators.size() % locators.size());
        }
    };
    inTurns(
        state, "haversines",
        [&] {
            eachPair([&](std::size_t from, std::size_t to) {
                benchmark::DoNotOptimize(greatCircleKm(locators[from], locators[to]));
            });
        },
        [&] {
            eachPair([&](std::size_t from, std::size_t to) {
                benchmark::DoNotOptimize(haversine(places[from], places[to]));
            });
        });
}
BENCHMARK(distance)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tallyrig::benchmarks

BENCHMARK_MAIN();
