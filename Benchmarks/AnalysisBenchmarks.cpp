// SPDX-License-Identifier: GPL-3.0-or-later
// Comparing two logs, counting the values of one, and checking and exporting it for an outdoor program,
// beside reading them from memory ("readings": of both logs for a comparison).

#include "Tallyrig/Analysis/ADIFComparator.h"
#include "Tallyrig/Analysis/ADIFStatistics.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Log/ADIFWriter.h"
#include "Tallyrig/Outdoor/OutdoorCheck.h"
#include "Tallyrig/Outdoor/OutdoorExporter.h"
#include "Tallyrig/Outdoor/SOTACSVExporter.h"
#include "Tallyrig/Validation/ADIFValidator.h"
#include "Timing.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tallyrig::benchmarks {
namespace {

const std::vector<std::string> usualKey = {"CALL", "QSO_DATE", "TIME_ON", "BAND", "MODE"};

/// Two logs that were read on their own. They differ in every hundredth QSO: by turns another value, a field
/// more, another key, a QSO less.
struct Logs {
    explicit Logs(std::size_t count) : leftText(logOf(count)), left(ADIFParser::parse(leftText)) {
        ADIFDocument changed = left;
        std::size_t position = 0;
        changed.records().transform([&](const ADIFRecord& record) -> std::optional<ADIFRecord> {
            if (position++ % 100 != 0) {
                return std::nullopt;
            }
            ADIFRecord other = record;
            switch (position / 100 % 3) {
                case 0:
                    other.set("NAME", "Otto");
                    break;
                case 1:
                    other.set("NOTES", "Danke");
                    break;
                default:
                    other.set("TIME_ON", "0000");
            }
            return other;
        });
        position = 0;
        changed.records().removeIf([&](const ADIFRecord&) { return position++ % 400 == 0; });
        rightText = ADIFWriter{"Quillon", "1", "3.1.7", true}.write(changed);
        right = ADIFParser::parse(rightText);
    }

    const std::string& leftText;
    std::string rightText;
    ADIFDocument left;
    ADIFDocument right;
};

void report(benchmark::State& state, const Logs& logs, const std::vector<std::string>& key) {
    const ADIFComparator comparator(key);
    inTurns(
        state, "readings", [&] { benchmark::DoNotOptimize(comparator.compare(logs.left, logs.right)); },
        [&] {
            benchmark::DoNotOptimize(ADIFParser::parse(logs.leftText));
            benchmark::DoNotOptimize(ADIFParser::parse(logs.rightText));
        });
    const ADIFComparison::Counts counts = comparator.compare(logs.left, logs.right).counts();
    state.counters["differs"] = static_cast<double>(counts.differs);
    state.counters["onlyLeft"] = static_cast<double>(counts.onlyLeft);
    state.counters["onlyRight"] = static_cast<double>(counts.onlyRight);
}

void comparing(benchmark::State& state) {
    report(state, Logs(static_cast<std::size_t>(state.range(0))), usualKey);
}
BENCHMARK(comparing)->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->UseManualTime()->Unit(
    benchmark::kMillisecond);

/// By a field that no record has: one key for all.
void comparingByPosition(benchmark::State& state) {
    report(state, Logs(static_cast<std::size_t>(state.range(0))), {"NO_SUCH_FIELD"});
}
BENCHMARK(comparingByPosition)->Arg(100'000)->Arg(1'000'000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// By a field of few values: many duplicates.
void comparingByBand(benchmark::State& state) {
    report(state, Logs(static_cast<std::size_t>(state.range(0))), {"BAND"});
}
BENCHMARK(comparingByBand)->Arg(100'000)->Arg(1'000'000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// One cell edited and taken back, beside comparing anew ("comparisons"). By the second number: its value,
/// its field, which others have too, or a field that no other record of its log has.
void refreshing(benchmark::State& state) {
    const Logs logs(static_cast<std::size_t>(state.range(0)));
    const ADIFComparator comparator(usualKey);
    ADIFComparison comparison = comparator.compare(logs.left, logs.right);
    const std::size_t row = logs.left.records().size() / 2;
    ADIFDocument edited = logs.left;
    edited.records().modify(row, [&](ADIFRecord& record) {
        switch (state.range(1)) {
            case 0:
                record.set("NAME", "Otto");
                break;
            case 1:
                record.removeField("NAME");
                break;
            default:
                record.set("NOTES", "Danke");
        }
    });
    const ADIFRecord before = logs.left.records()[row];
    const ADIFRecord after = edited.records()[row];
    using Side = ADIFComparison::Side;
    inTurns(
        state, "comparisons",
        [&] {
            const bool there = comparator.refresh(comparison, edited, logs.right, {row, Side::left, before});
            const bool back = comparator.refresh(comparison, logs.left, logs.right, {row, Side::left, after});
            benchmark::DoNotOptimize(there && back);
        },
        [&] { benchmark::DoNotOptimize(comparator.compare(logs.left, logs.right)); });
}
BENCHMARK(refreshing)
    ->ArgsProduct({{100'000, 1'000'000}, {0, 1, 2}})
    ->Iterations(20)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

void reportStatistics(benchmark::State& state, const std::string& text) {
    const ADIFDocument log = ADIFParser::parse(text);
    inTurns(
        state, "readings", [&] { benchmark::DoNotOptimize(ADIFStatistics(log)); },
        [&] { benchmark::DoNotOptimize(ADIFParser::parse(text)); });
    const ADIFStatistics statistics(log);
    state.counters["calls"] = static_cast<double>(statistics.uniqueCalls);
    state.counters["days"] = static_cast<double>(statistics.byDay.size());
    state.counters["countries"] = static_cast<double>(statistics.byCountry.size());
}

void counting(benchmark::State& state) {
    reportStatistics(state, logOf(static_cast<std::size_t>(state.range(0))));
}
BENCHMARK(counting)->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->UseManualTime()->Unit(
    benchmark::kMillisecond);

/// The second number is that of the countries, which are named at random.
void countingManyCountries(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const auto countries = static_cast<std::size_t>(state.range(1));
    std::size_t number = 0;
    ADIFDocument log = ADIFParser::parse(logOf(count));
    log.records().transform([&](const ADIFRecord& record) -> std::optional<ADIFRecord> {
        ADIFRecord other = record;
        other.set("COUNTRY", "Land " + std::to_string(++number * 2'654'435'761U % countries));
        return other;
    });
    reportStatistics(state, ADIFWriter{"Quillon", "1", "3.1.7", true}.write(log));
}
BENCHMARK(countingManyCountries)
    ->Args({100'000, 50'000})
    ->Args({1'000'000, 50'000})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// A log of an operator outdoors, who changes between so many parks, or summits, from QSO to QSO.
std::string outdoorLog(std::size_t count, std::size_t places) {
    std::size_t number = 0;
    ADIFDocument log = ADIFParser::parse(logOf(count));
    log.records().transform([&](const ADIFRecord& record) -> std::optional<ADIFRecord> {
        ADIFRecord other = record;
        const std::string place = std::to_string(number++ % places);
        other.set("MY_SIG", "POTA");
        other.set("MY_SIG_INFO",
                  "DE-" + std::string(5 - std::min<std::size_t>(place.size(), 5), '0') + place);
        other.set("MY_SOTA_REF", "DM/BW-" + place);
        return other;
    });
    return ADIFWriter{"Quillon", "1", "3.1.7", true}.write(log);
}

/// Beside it stands what the check of the log itself takes, duplicates included.
void checkingForParks(benchmark::State& state) {
    const std::string text =
        outdoorLog(static_cast<std::size_t>(state.range(0)), static_cast<std::size_t>(state.range(1)));
    const ADIFDocument log = ADIFParser::parse(text);
    const auto read = [&] { benchmark::DoNotOptimize(ADIFParser::parse(text)); };
    inTurns(
        state, "readings",
        [&] { benchmark::DoNotOptimize(outdoorIssues(log, OutdoorProgram::pota, SOTARole::activator)); },
        read);
    const ADIFValidator plain(ADIFValidator::usualRequiredFields(), {"CALL", "BAND", "MODE"}, true, true,
                              true, true);
    const auto check = [&] { benchmark::DoNotOptimize(plain.issues(log)); };
    double bestCheck = secondsOf(check);
    double bestReading = secondsOf(read);
    for (int turn = 0; turn < 4; ++turn) {
        bestCheck = std::min(bestCheck, secondsOf(check));
        bestReading = std::min(bestReading, secondsOf(read));
    }
    state.counters["plainCheckReadings"] = bestCheck / bestReading;
    state.counters["findings"] =
        static_cast<double>(outdoorIssues(log, OutdoorProgram::pota, SOTARole::activator).size());
}
BENCHMARK(checkingForParks)
    ->Args({100'000, 1})
    ->Args({100'000, 1'000})
    ->Args({1'000'000, 1'000'000})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void reportExport(benchmark::State& state, const auto& filesOf) {
    const std::string text =
        outdoorLog(static_cast<std::size_t>(state.range(0)), static_cast<std::size_t>(state.range(1)));
    const ADIFDocument log = ADIFParser::parse(text);
    const auto makeAll = [&] {
        const OutdoorExportFiles files = filesOf(log);
        for (std::size_t file = 0; file < files.size(); ++file) {
            benchmark::DoNotOptimize(files[file]);
        }
    };
    inTurns(state, "readings", makeAll, [&] { benchmark::DoNotOptimize(ADIFParser::parse(text)); });
    state.counters["files"] = static_cast<double>(filesOf(log).size());
}

void exportingParks(benchmark::State& state) {
    reportExport(state, [](const ADIFDocument& log) {
        return OutdoorExporter{OutdoorProgram::pota, "Quillon", "1", "3.1.7"}.files(log);
    });
}
void exportingSummits(benchmark::State& state) {
    reportExport(state,
                 [](const ADIFDocument& log) { return SOTACSVExporter{SOTARole::activator}.files(log); });
}
BENCHMARK(exportingParks)
    ->Args({100'000, 1})
    ->Args({100'000, 100'000})
    ->Args({1'000'000, 1'000'000})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(exportingSummits)
    ->Args({100'000, 1})
    ->Args({1'000'000, 1'000'000})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tallyrig::benchmarks

BENCHMARK_MAIN();
