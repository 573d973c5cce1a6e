// SPDX-License-Identifier: GPL-3.0-or-later
// What the application's model of a log does at a keystroke or a click, beside reading the log.

#include "MemoryCount.h"
#include "StoreStandIns.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Timing.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace quillon {
namespace {

using tallyrig::ADIFParser;
using tallyrig::benchmarks::heapInUse;
using tallyrig::benchmarks::inTurns;
using tallyrig::benchmarks::logOf;
using tallyrig::benchmarks::secondsOf;

void besideReading(benchmark::State& state, std::size_t count, const std::function<void()>& work) {
    const std::string& text = logOf(count);
    inTurns(state, "readings", work, [&] { benchmark::DoNotOptimize(ADIFParser::parse(text)); });
}

/// A click on the header of a column and the first look at the rows.
void sorting(benchmark::State& state, const char* column) {
    const auto count = static_cast<std::size_t>(state.range(0));
    OpenLog log(count);
    besideReading(state, count, [&] {
        log.log().toggleSort(column);
        benchmark::DoNotOptimize(log.log().displayedIndex(count / 2));
    });
}
BENCHMARK_CAPTURE(sorting, byCall, "CALL")->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(sorting, byName, "NAME")->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A key in the search field and the rows that it leaves.
void searching(benchmark::State& state, const char* text) {
    const auto count = static_cast<std::size_t>(state.range(0));
    OpenLog log(count);
    const QString lower = QString::fromUtf8(text);
    besideReading(state, count, [&] {
        // Another text each time, or nothing would be searched.
        log.log().setSearchText(log.log().searchText() == lower ? lower.toUpper() : lower);
        benchmark::DoNotOptimize(log.log().filteredCount());
    });
    state.counters["found"] = static_cast<double>(log.log().filteredCount());
}
BENCHMARK_CAPTURE(searching, oneLetter, "q")->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searching, call, "hb9xy")->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searching, umlaut, "jörg")->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// One cell edit with its undo step, each in another record: the middle one of a hundred by time.
void editingACell(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    OpenLog log(count);
    std::size_t step = 0;
    const std::size_t before = heapInUse();
    std::vector<double> times;
    for (auto _ : state) {
        ++step;
        const tallyrig::UUID id = log.log().document().records()[step * 7919 % count].id();
        times.push_back(secondsOf([&] { log.log().setCell(id, "COMMENT", std::to_string(step)); }));
    }
    std::ranges::nth_element(times, times.begin() + 50);
    state.counters["medianUs"] = times[50] * 1e6;
    state.counters["bytesPerStep"] = static_cast<double>(heapInUse() - before) / 100;
}
BENCHMARK(editingACell)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Iterations(100)
    ->Unit(benchmark::kMicrosecond);

/// A step back behind a check that found something in every record, which forgets the findings.
void undoingBehindACheck(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    OpenLog log(count);
    log.log().setColumnValue("MODE", "none", tallyrig::ColumnTarget::allRecords);
    std::size_t findings = 0;
    for (auto _ : state) {
        log.log().setCell(log.log().document().records()[0].id(), "COMMENT", "x");
        log.log().runCheck();
        findings = log.log().validationIssues().size();
        state.SetIterationTime(secondsOf([&] { log.log().undo(); }));
    }
    state.counters["findings"] = static_cast<double>(findings);
}
BENCHMARK(undoingBehindACheck)->Arg(1'000'000)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillon

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
