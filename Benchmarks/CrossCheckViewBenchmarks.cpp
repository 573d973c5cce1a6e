// SPDX-License-Identifier: GPL-3.0-or-later
// What an evaluator waits for in the window with the logs of a contest: the result behind a changed
// tolerance, and the frame behind a filter, a selection or a step of the wheel.

#include "GeneratedContest.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Views/CrossCheck/CrossCheckRunner.h"
#include "Quillon/Views/CrossCheck/CrossCheckView.h"
#include "Quillon/Views/CrossCheck/RankingTable.h"
#include "StoreStandIns.h"
#include "Tallyrig/Formats/CabrilloParser.h"
#include "Timing.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QScrollBar>

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace quillon {
namespace {

using tallyrig::benchmarks::inTurns;

/// The pane with the result of so many logs.
class EvaluatedContest {
  public:
    EvaluatedContest(std::int64_t logs, std::int64_t qsos) {
        AddedLogs added;
        for (const std::string& text : tallyrig::benchmarks::generatedContest(
                 static_cast<std::size_t>(logs), static_cast<std::size_t>(qsos))) {
            CrossCheckFile& file = added.files.emplace_back();
            file.id = tallyrig::UUID::fresh();
            file.path = "/" + std::to_string(added.files.size()) + ".log";
            file.document = tallyrig::CabrilloParser::parse(text);
            file.detectedOwner = tallyrig::CrossCheckLog::detectOwner(file.document).value_or(std::string());
        }
        contest.setContest(Contest::cqWPX);
        store.take(std::move(added));
        view.resize(1280, 800);
        view.show();
        awaitResult();
        picture = QImage(view.size(), QImage::Format_RGB32);
    }

    /// Until what is on screen is the result of all that was set.
    void awaitResult() {
        do {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        } while (!store.evaluation() || runner.isBusy());
        paint();
    }
    void paint() { view.render(&picture); }
    CrossCheckInput input() const {
        return store.input(log.document(), log.fileURL(),
                           {contest.contest(), contest.genericContest(), contest.station()});
    }

    NoSettings settings;
    NoPanels panels;
    FixedWidths measurer;
    NoFileManager files;
    LogStore log{settings, panels, measurer, files};
    ContestStore contest;
    CrossCheckStore store{panels, files};
    CrossCheckRunner runner{log, contest, store};
    CrossCheckView view{log, store, runner, 2'000};
    QImage picture = QImage(1, 1, QImage::Format_RGB32);
};

void changingTheTolerance(benchmark::State& state) {
    EvaluatedContest contest(state.range(0), state.range(1));
    int minutes = contest.store.toleranceMinutes();
    inTurns(
        state, "ofCheckAndScores",
        [&] {
            minutes = minutes == 5 ? 4 : 5;
            contest.store.setToleranceMinutes(minutes);
            contest.awaitResult();
        },
        [&] {
            EvaluationWork work;
            benchmark::DoNotOptimize(evaluated(contest.input(), work));
        });
}

/// One of the steps that must not take longer than a frame, by number.
using Step = void (*)(EvaluatedContest& contest, std::size_t number);

void filter(EvaluatedContest& contest, std::size_t number) {
    contest.store.setFindingFilter(number % 2 == 0 ? FindingFilter::all() : FindingFilter::problems());
}

void selection(EvaluatedContest& contest, std::size_t number) {
    const CrossCheckFiles& entries = contest.store.entries();
    contest.store.setSelectedLogID(entries[number * 17 % entries.size()].id);
}

void scrolling(EvaluatedContest& contest, std::size_t number) {
    QScrollBar* const bar = contest.view.findChild<RankingTable*>()->verticalScrollBar();
    bar->setValue(static_cast<int>(number) % (bar->maximum() + 1));
}

/// Until the frame is painted, beside the same of a contest of 25 logs.
void stepping(benchmark::State& state, Step step) {
    EvaluatedContest contest(state.range(0), state.range(1));
    EvaluatedContest small(25, 2'500);
    std::size_t number = 0;
    const auto stepOf = [&](EvaluatedContest& which) {
        step(which, ++number);
        QApplication::processEvents();
        which.paint();
    };
    inTurns(
        state, "ofASmallContest", [&] { stepOf(contest); }, [&] { stepOf(small); });
}

BENCHMARK(changingTheTolerance)
    ->Args({1'860, 480'000})
    ->Iterations(5)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(stepping, filter, filter)
    ->Args({1'860, 480'000})
    ->Iterations(50)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(stepping, selection, selection)
    ->Args({1'860, 480'000})
    ->Iterations(50)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(stepping, scrolling, scrolling)
    ->Args({1'860, 480'000})
    ->Iterations(50)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillon

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
