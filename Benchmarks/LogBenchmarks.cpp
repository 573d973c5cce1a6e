// SPDX-License-Identifier: GPL-3.0-or-later
// Reading, writing and changing a log. Each operation stands beside a pass of memchr('<') over the same
// bytes, made in turns with it in one run, and says how many times that pass it takes ("passes").

#include "MemoryCount.h"
#include "Tallyrig/Formats/LogReader.h"
#include "Tallyrig/Formats/WritingReport.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Log/ADIFWriter.h"
#include "Tallyrig/Validation/ADIFValidator.h"
#include "Timing.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>
#include <vector>

namespace tallyrig::benchmarks {
namespace {

void reading(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const std::string& text = logOf(count);
    besideThePass(state, text, count, [&] { benchmark::DoNotOptimize(ADIFParser::parse(text)); });
    const std::size_t before = heapInUse();
    const ADIFDocument document = ADIFParser::parse(text);
    state.counters["memoryPerFileByte"] =
        static_cast<double>(heapInUse() - before) / static_cast<double>(text.size());
}
BENCHMARK(reading)->Arg(1'000)->Arg(10'000)->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(reading)->Arg(1'000'000)->Iterations(8)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The same with a report, beside reading without one ("readings").
void readingWithReport(benchmark::State& state) {
    const std::string& text = logOf(static_cast<std::size_t>(state.range(0)));
    inTurns(
        state, "readings", [&] { benchmark::DoNotOptimize(ADIFParser::read(text)); },
        [&] { benchmark::DoNotOptimize(ADIFParser::parse(text)); });
}
BENCHMARK(readingWithReport)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void writing(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const std::string& text = logOf(count);
    const ADIFDocument document = ADIFParser::parse(text);
    const ADIFWriter writer{"Quillon", "1", "3.1.7", true};
    besideThePass(state, text, count, [&] { benchmark::DoNotOptimize(writer.write(document)); });
}
BENCHMARK(writing)->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Reading back what is about to be saved, beside reading it as a log that is opened ("readings").
void readingBack(benchmark::State& state) {
    const ADIFDocument document = ADIFParser::parse(logOf(static_cast<std::size_t>(state.range(0))));
    const ADIFWriter writer{"Quillon", "1", "3.1.7", true};
    const std::string text = writer.write(document);
    inTurns(
        state, "readings", [&] { benchmark::DoNotOptimize(readBack(writer, document, text)); },
        [&] { benchmark::DoNotOptimize(LogReader::read(text)); });
}
BENCHMARK(readingBack)->Arg(10'000)->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(readingBack)->Arg(1'000'000)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The full check with all switches on, beside reading the log.
void checking(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const std::string& text = logOf(count);
    const ADIFDocument document = ADIFParser::parse(text);
    const ADIFValidator validator({"CALL", "QSO_DATE", "TIME_ON", "BAND", "MODE"}, {"CALL", "BAND", "MODE"},
                                  true, true, true, true);
    inTurns(
        state, "readings", [&] { benchmark::DoNotOptimize(validator.issues(document)); },
        [&] { benchmark::DoNotOptimize(ADIFParser::parse(text)); });
    state.counters["findings"] = static_cast<double>(validator.issues(document).size());
}
BENCHMARK(checking)->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Setting one cell in each of 100 copies of a log, as an undo history holds them.
void hundredSnapshots(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const std::size_t before = heapInUse();
    ADIFDocument document = ADIFParser::parse(logOf(count));
    const std::size_t size = heapInUse() - before;
    std::size_t growth = 0;
    for (auto _ : state) {
        std::vector<ADIFDocument> history;
        history.reserve(100);
        const std::size_t start = heapInUse();
        const ADIFDocument kept = document;
        for (std::size_t step = 0; step < 100; ++step) {
            history.push_back(document);
            document.records().modify(step * 7919 % count,
                                      [](ADIFRecord& record) { record.set("COMMENT", "Dank für das QSO"); });
        }
        growth = heapInUse() - start;
        document = kept;
    }
    state.counters["bytesPerStep"] = static_cast<double>(growth) / 100;
    state.counters["shareOfLog"] = static_cast<double>(growth) / static_cast<double>(size);
}
BENCHMARK(hundredSnapshots)->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);

void columnSetEverywhere(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const std::string& text = logOf(count);
    const ADIFDocument document = ADIFParser::parse(text);
    besideThePass(state, text, count, [&] {
        ADIFDocument changed = document;
        changed.setColumn("COMMENT", "Dank", ColumnTarget::allRecords);
        benchmark::DoNotOptimize(changed);
    });
}
BENCHMARK(columnSetEverywhere)->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tallyrig::benchmarks

BENCHMARK_MAIN();
