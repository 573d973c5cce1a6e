// What the user sees: a frame of the table, and the first window.

#include "Quillon/Views/Grid/TableScroll.h"
#include "Quillon/Views/Table/QSOTableView.h"
#include "Quillon/Views/Table/TableBody.h"
#include "Quillon/Views/Table/TableQuestions.h"
#include "StoreStandIns.h"
#include "Timing.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QProcess>

#include <cstddef>

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
