// SPDX-License-Identifier: GPL-3.0-or-later
// What the user sees: a frame of the table and of a comparison, the statistics of a log, and the first
// window.

#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Views/Compare/CompareTable.h"
#include "Quillon/Views/Compare/CompareView.h"
#include "Quillon/Views/Controls/ChartPainter.h"
#include "Quillon/Views/Grid/TableScroll.h"
#include "Quillon/Views/Statistics/StatsView.h"
#include "Quillon/Views/Table/QSOTableView.h"
#include "Quillon/Views/Table/TableBody.h"
#include "Quillon/Views/Table/TableQuestions.h"
#include "StoreStandIns.h"
#include "Tallyrig/Analysis/ADIFComparator.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Timing.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QProcess>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quillon {
namespace {

using tallyrig::benchmarks::inTurns;

class NoQuestions : public TableQuestions {
  public:
    bool confirmRename(const QString&, const QString&, std::size_t) override { return false; }
    bool confirmDeletion(std::size_t, std::size_t) override { return false; }
    std::optional<QString> newColumnName(const QString&) override { return std::nullopt; }
    std::optional<std::size_t> rowNumber(std::size_t, std::size_t) override { return std::nullopt; }
};

/// The table of a log of `count` QSOs, which scrolls on and paints itself anew.
class ScrollingTable {
  public:
    explicit ScrollingTable(std::size_t count) : log(count), view(log.log(), questions) {
        view.resize(1280, 800);
        view.show();
        QApplication::processEvents();
        picture = QImage(view.size(), QImage::Format_RGB32);
        lowest = 22.0 * static_cast<double>(count) - 700;
    }

    void paintNextFrame() {
        position = position + 22 > lowest ? 0 : position + 22;
        view.scroll().setScrollY(position);
        view.render(&picture);
    }

  private:
    OpenLog log;
    NoQuestions questions;
    QSOTableView view;
    QImage picture;
    double position = 0;
    double lowest = 0;
};

/// A frame while scrolling, beside the same of a log of 200 QSOs.
void scrolling(benchmark::State& state) {
    ScrollingTable table(static_cast<std::size_t>(state.range(0)));
    ScrollingTable small(200);
    inTurns(
        state, "framesOf200", [&] { table.paintNextFrame(); }, [&] { small.paintNextFrame(); });
}
BENCHMARK(scrolling)->Arg(10'000)->Arg(1'000'000)->Iterations(300)->UseManualTime()->Unit(
    benchmark::kMillisecond);

/// The comparison of the log of `count` QSOs with a copy in which each fiftieth is another one, which scrolls
/// on and paints itself anew.
class ScrollingComparison {
  public:
    explicit ScrollingComparison(std::size_t count) : log(count), compare(settings, panels) {
        compare.setRight({editedCopy(log.log().document()), QStringLiteral("copy.adi"), {}});
        view.emplace(log.log(), compare);
        view->resize(1280, 800);
        view->show();
        QApplication::processEvents();
        picture = QImage(view->size(), QImage::Format_RGB32);
        lowest = ComparisonModel::rowHeight * static_cast<double>(count) - 800;
    }

    void paintNextFrame() {
        position = position + ComparisonModel::rowHeight > lowest ? 0 : position + ComparisonModel::rowHeight;
        view->table().scroll(ComparisonModel::Side::right).setScrollY(position);
        view->render(&picture);
    }

  private:
    static tallyrig::ADIFDocument editedCopy(tallyrig::ADIFDocument copy) {
        std::size_t index = 0;
        copy.records().transform(
            [&index](const tallyrig::ADIFRecord& record) -> std::optional<tallyrig::ADIFRecord> {
                if (++index % 50 != 0) {
                    return std::nullopt;
                }
                tallyrig::ADIFRecord edited = record;
                edited.set("RST_SENT", "339");
                return edited;
            });
        return copy;
    }

    OpenLog log;
    NoSettings settings;
    NoPanels panels;
    CompareStore compare;
    std::optional<CompareView> view;
    QImage picture;
    double position = 0;
    double lowest = 0;
};

/// A frame while scrolling, beside the same of a comparison of 200 rows.
void scrollingComparison(benchmark::State& state) {
    ScrollingComparison comparison(static_cast<std::size_t>(state.range(0)));
    ScrollingComparison small(200);
    inTurns(
        state, "framesOf200", [&] { comparison.paintNextFrame(); }, [&] { small.paintNextFrame(); });
}
BENCHMARK(scrollingComparison)
    ->Arg(10'000)
    ->Arg(1'000'000)
    ->Iterations(300)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// What follows of a key typed into a cell of a compared log, beside the comparison of both logs.
void editingComparedLog(benchmark::State& state) {
    OpenLog open(static_cast<std::size_t>(state.range(0)));
    const tallyrig::ADIFDocument right = open.log().document();
    tallyrig::ADIFDocument left = right;
    const std::vector<std::string> keys = {"CALL", "QSO_DATE", "TIME_ON", "BAND", "MODE"};
    ComparedLogs logs;
    logs.follow(left, right, keys);
    std::size_t edits = 0;
    inTurns(
        state, "comparisons",
        [&] {
            left.records().modify(left.records().size() / 2, [&edits](tallyrig::ADIFRecord& record) {
                record.set("RST_SENT", std::to_string(++edits));
            });
            logs.follow(left, right, keys);
        },
        [&] { benchmark::DoNotOptimize(tallyrig::ADIFComparator(keys).compare(left, right)); });
}
BENCHMARK(editingComparedLog)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Iterations(10)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// From the choice of the statistics to their first picture, beside reading the log.
void openingStatistics(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    OpenLog log(count);
    const std::string& text = tallyrig::benchmarks::logOf(count);
    inTurns(
        state, "readings",
        [&] {
            StatsView view(log.log(), chartPainter());
            view.resize(1000, 800);
            view.show();
            QApplication::processEvents();
        },
        [&] { benchmark::DoNotOptimize(tallyrig::ADIFParser::parse(text)); });
}
BENCHMARK(openingStatistics)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Iterations(3)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// From the start of the process to the first painted window, beside an empty one with the same libraries.
void starting(benchmark::State& state) {
    const QString probe = QCoreApplication::applicationDirPath() + QStringLiteral("/StartProbe");
    inTurns(
        state, "emptyWindows", [&] { QProcess::execute(probe, {}); },
        [&] { QProcess::execute(probe, {QStringLiteral("empty")}); });
}
BENCHMARK(starting)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillon

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
