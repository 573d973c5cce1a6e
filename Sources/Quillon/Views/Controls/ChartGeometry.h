// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/ChartData.h"

#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QString>

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace quillon {

/// The font of a chart as far as its arithmetic has to know it, in logical pixels.
struct ChartLetters {
    double lineHeight = 0;
    std::function<double(const QString&)> width;
    /// The text, at its end cut off so that it is no wider than this.
    std::function<QString(const QString&, double)> elided;
};

/// Where the parts of a chart lie. Computed at once, without a widget; all places are in logical pixels from
/// the upper left corner of the chart.
///
/// Bars keep a width at which their labels can be read. If that is too wide for all of them, only as many
/// as fit are there, from a chosen one on. On an axis of days all are always there: where several days fall
/// on one pixel, the highest of them covers the others. It is broken where nothing is for a lifetime
/// (`dayStretches`), and labelled with an ellipsis there.
class ChartGeometry {
  public:
    struct Tick {
        double at = 0;  ///< From the left edge of the plot; on a vertical axis, from its upper edge.
        QString label;  ///< Of one line, or of two with a line break between.
    };
    struct Bar {
        QRect area;
        std::size_t entry = 0;
        QString annotation;  ///< Its count, to stand at its end; empty on an axis of days.
    };

    ChartGeometry() = default;
    /// `firstBar` is moved back to where the last bar is the last in sight. `data` outlives the geometry.
    /// Cost: the number of entries; texts are measured for those in sight and at most a hundred others.
    ChartGeometry(const ChartData& data, QSize size, std::size_t firstBar, const ChartLetters& letters);

    /// How high a chart of `data` wants to be.
    static int height(const ChartData& data, const ChartLetters& letters);
    /// How wide it has to be for all bars to be in sight, where they stand beside each other; otherwise 0.
    static double width(const ChartData& data, const ChartLetters& letters);

    QSize size() const { return whole; }
    /// Where the bars stand; the axes lie along its left and its lower edge.
    QRect plot() const { return plotArea; }
    bool isSideways() const { return form == ChartData::Form::rows; }
    const std::vector<Tick>& labelTicks() const { return labels; }
    const std::vector<Tick>& countTicks() const { return counts; }
    /// From the left to the right, or from the top to the bottom.
    const std::vector<Bar>& bars() const { return shownBars; }

    std::size_t firstBar() const { return first; }
    /// How many bars fit beside each other.
    std::size_t barsInSight() const { return inSight; }
    std::size_t barCount() const { return count; }
    /// The smallest `firstBar` near the present one with which `entry` is in sight.
    std::size_t firstBarToShow(std::size_t entry) const;

    /// Where the bar of an entry stands, also behind a higher one; empty if it is not in sight.
    QRect barOf(std::size_t entry) const;
    /// The entry that a person means who points there: that of the bar at, above or below the point, on an
    /// axis of days the nearest within a few pixels.
    std::optional<std::size_t> entryAt(QPointF point) const;

  private:
    void placePlot(const ChartLetters& letters);
    void placeCountTicks(const ChartLetters& letters);
    void placeBars(const ChartLetters& letters);
    void placeDays(const ChartLetters& letters);
    void placeStretches(double labelWidth);
    void labelDays(double labelWidth);
    double lengthOf(std::size_t entry) const;
    double dayMiddle(std::chrono::sys_days day) const;

    /// A part of an axis of days that is as long as its days are many.
    struct Stretch {
        std::chrono::sys_days first;
        std::chrono::sys_days last;
        double left = 0;  ///< From the left edge of the plot.
        double slot = 0;  ///< Pixels that a day has.
    };

    const ChartData* data = nullptr;
    ChartData::Form form = ChartData::Form::columns;
    QSize whole;
    QRect plotArea;
    std::size_t count = 0;
    std::size_t first = 0;
    std::size_t inSight = 0;
    double slot = 0;  ///< Pixels that a bar has with the gap beside it.
    std::vector<Stretch> stretches;
    double top = 1;     ///< The count at the end of the axis.
    int thickness = 0;  ///< Of all bars, in pixels.
    std::vector<Tick> labels;
    std::vector<Tick> counts;
    std::vector<Bar> shownBars;
};

}  // namespace quillon
