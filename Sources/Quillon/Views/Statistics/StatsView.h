// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>

#include <array>

class QBoxLayout;
class QScrollArea;
class QStackedLayout;

namespace tallyrig {
struct ADIFStatistics;
}

namespace quillon {

class ChartCard;
class ChartPainter;
class LogStore;
class Tile;

/// What there is to tell about the open log in figures: key figures, and charts of its bands, modes, days and
/// countries.
///
/// The figures are computed when the log has changed, once for each turn of the event loop. Nothing is
/// computed while the view is hidden.
class StatsView : public QWidget {
    Q_OBJECT

  public:
    /// With more QSOs than these, the statistics take longer than a wait that nobody notices.
    static constexpr std::size_t longLog = 100'000;

    /// Store and painter outlive the view. Without a painter, the numbers stand in tables.
    StatsView(const LogStore& logStore, ChartPainter* painter, QWidget* parent = nullptr);

  signals:
    /// The figures are those of the log as it is now.
    void computed();

  protected:
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QWidget* keyFigures();
    QWidget* bandsAndModes(ChartPainter* painter);
    void arrangeTiles(int width);
    void takeKeyboard();
    void computeWhenIdle();
    void compute();
    void fill(tallyrig::ADIFStatistics statistics);

    const LogStore& log;
    QTimer pause;
    bool isStale = true;  ///< What is shown is not of the log as it is now.

    QStackedLayout* body;
    QScrollArea* page;
    QWidget* keyboardPart;  ///< Takes the keyboard for the view.
    QBoxLayout* figures = nullptr;
    std::array<Tile*, 4> tiles{};
    Tile* period = nullptr;
    ChartCard* bands = nullptr;
    ChartCard* modes = nullptr;
    ChartCard* days = nullptr;
    ChartCard* countries = nullptr;
};

}  // namespace quillon
