// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/ChartGeometry.h"

#include "Quillon/Views/Controls/ChartScale.h"
#include "Quillon/Views/Controls/Strings.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr int usualHeightPx = 200;
/// In lines of text: where letters are large, the axes leave more room for the bars.
constexpr double leastHeight = 12;
constexpr double paddingPx = 6;
constexpr double gapPx = 10;
constexpr double leastBarPx = 2;
constexpr double widestBarPx = 56;
constexpr double widestDayPx = 32;
constexpr double barShare = 0.66;
constexpr double pointerReachPx = 8;
constexpr std::size_t measuredLabels = 100;
/// In widths of a digit. Longer labels are cut off at their end.
constexpr double widestColumnLabel = 10;
constexpr double widestRowLabel = 0.35;  ///< As a share of the chart.

double widestCount(const ChartData& data, const ChartLetters& letters) {
    return letters.width(numberText(data.highest()));
}

double widestLabel(const ChartData& data, const ChartLetters& letters) {
    double widest = 0;
    for (std::size_t entry = 0; entry < std::min(data.barCount(), measuredLabels); ++entry) {
        widest = std::max(widest, letters.width(data.label(entry)));
    }
    return widest;
}

double rowHeight(const ChartLetters& letters) {
    return std::ceil(letters.lineHeight) + 8;
}

/// The least that a bar takes with the gap beside it.
double columnWidth(const ChartData& data, const ChartLetters& letters) {
    const double longestLabel = widestColumnLabel * letters.width(QStringLiteral("8"));
    return gapPx + std::max({widestCount(data, letters), letters.width(QStringLiteral("888")),
                             std::min(widestLabel(data, letters), longestLabel)});
}

double titleHeight(const ChartLetters& letters) {
    return letters.lineHeight + paddingPx;
}

/// What lies on the left of upright bars: the numbers and the title of their axis.
double columnsLeft(const ChartData& data, const ChartLetters& letters) {
    return titleHeight(letters) + widestCount(data, letters) + 2 * paddingPx;
}

/// What lies below the plot: a tick's label of so many lines and the title of the axis.
double footHeight(int lines, const ChartLetters& letters) {
    return paddingPx + lines * letters.lineHeight + titleHeight(letters);
}

QString dayAndMonth(const year_month_day& date) {
    return QStringLiteral("%1.%2.")
        .arg(static_cast<unsigned>(date.day()), 2, 10, QLatin1Char('0'))
        .arg(static_cast<unsigned>(date.month()), 2, 10, QLatin1Char('0'));
}

}  // namespace

int ChartGeometry::height(const ChartData& chart, const ChartLetters& letters) {
    if (chart.form == ChartData::Form::rows) {
        return static_cast<int>(std::ceil(static_cast<double>(chart.barCount()) * rowHeight(letters) +
                                          footHeight(1, letters) + paddingPx));
    }
    return std::max(usualHeightPx, static_cast<int>(std::ceil(leastHeight * letters.lineHeight)));
}

double ChartGeometry::width(const ChartData& chart, const ChartLetters& letters) {
    return chart.form == ChartData::Form::columns
               ? static_cast<double>(chart.barCount()) * columnWidth(chart, letters) +
                     columnsLeft(chart, letters) + paddingPx
               : 0;
}

ChartGeometry::ChartGeometry(const ChartData& chart, QSize size, std::size_t firstBar,
                             const ChartLetters& letters)
    : data(&chart), form(chart.form), whole(size), count(chart.barCount()), first(firstBar) {
    if (count == 0) {
        return;
    }
    placePlot(letters);
    placeCountTicks(letters);
    if (form == ChartData::Form::days) {
        placeDays(letters);
    } else {
        placeBars(letters);
    }
}

void ChartGeometry::placePlot(const ChartLetters& letters) {
    const double counted = widestCount(*data, letters);
    double left = columnsLeft(*data, letters);
    double right = paddingPx;
    double above = titleHeight(letters);
    const double below = footHeight(form == ChartData::Form::days ? 2 : 1, letters);
    if (form == ChartData::Form::rows) {
        left = titleHeight(letters) + 2 * paddingPx +
               std::min(widestLabel(*data, letters), widestRowLabel * whole.width());
        // Room for the number at the end of the longest bar.
        right = counted + 2 * paddingPx;
        above = paddingPx;
    } else if (form == ChartData::Form::days) {
        right = letters.width(QStringLiteral("88.88.")) / 2 + paddingPx;
    }
    const QPoint corner(static_cast<int>(std::ceil(left)), static_cast<int>(std::ceil(above)));
    plotArea = QRect(corner, QSize(std::max(1, whole.width() - corner.x() - static_cast<int>(right)),
                                   std::max(1, whole.height() - corner.y() - static_cast<int>(below))));
}

void ChartGeometry::placeCountTicks(const ChartLetters& letters) {
    const std::size_t highest = data->highest();
    const double length = isSideways() ? plotArea.width() : plotArea.height();
    const double apart =
        isSideways() ? 2 * letters.width(numberText(highest)) + gapPx : 2 * letters.lineHeight;
    const auto ticks =
        quillon::countTicks(highest, std::max<std::size_t>(1, static_cast<std::size_t>(length / apart)));
    top = static_cast<double>(ticks.back());
    for (const std::size_t tick : ticks) {
        const double from0 = length * static_cast<double>(tick) / top;
        counts.push_back({isSideways() ? from0 : length - from0, numberText(tick)});
    }
}

double ChartGeometry::lengthOf(std::size_t entry) const {
    const double length = isSideways() ? plotArea.width() : plotArea.height();
    // The smallest count is something else than none.
    return std::max(leastBarPx, std::round(length * static_cast<double>(data->entries[entry].count) / top));
}

void ChartGeometry::placeBars(const ChartLetters& letters) {
    const double length = isSideways() ? plotArea.height() : plotArea.width();
    const double least = isSideways() ? rowHeight(letters) : columnWidth(*data, letters);
    inSight = std::clamp<std::size_t>(static_cast<std::size_t>(length / least), 1, count);
    first = std::min(first, count - inSight);
    slot = length / static_cast<double>(inSight);
    thickness =
        static_cast<int>(std::max(2.0, isSideways() ? slot - gapPx : std::min(widestBarPx, barShare * slot)));
    for (std::size_t entry = first; entry < first + inSight; ++entry) {
        const double middle = (static_cast<double>(entry - first) + 0.5) * slot;
        const double labelWidth =
            (isSideways() ? plotArea.left() - titleHeight(letters) - 2 * paddingPx : slot - paddingPx);
        labels.push_back({middle, letters.elided(data->label(entry), labelWidth)});
        shownBars.push_back({barOf(entry), entry, numberText(data->entries[entry].count)});
    }
}

double ChartGeometry::dayMiddle(sys_days day) const {
    const auto behind = std::ranges::upper_bound(stretches, day, {}, &Stretch::first);
    const Stretch& stretch = *std::prev(behind);
    return stretch.left + (static_cast<double>((day - stretch.first).count()) + 0.5) * stretch.slot;
}

/// A stretch has room for a label at least, and a gap for another one.
void ChartGeometry::placeStretches(double labelWidth) {
    std::vector<sys_days> charted;
    charted.reserve(count);
    for (std::size_t entry = 0; entry < count; ++entry) {
        charted.push_back(data->entries[entry].day);
    }
    auto found = dayStretches(charted);
    const double fixed = static_cast<double>(2 * found.size() - 1) * labelWidth;
    if (found.size() > 1 && fixed > plotArea.width() / 2.0) {
        found = {{found.front().first, found.back().last}};
    }
    const bool isBroken = found.size() > 1;
    double all = 0;
    for (const DayStretch& stretch : found) {
        all += static_cast<double>((stretch.last - stretch.first).count() + 1);
    }
    const double shared = plotArea.width() - (isBroken ? fixed : 0);
    double left = 0;
    for (const DayStretch& stretch : found) {
        const auto days = static_cast<double>((stretch.last - stretch.first).count() + 1);
        const double width = (isBroken ? labelWidth : 0) + shared * days / all;
        stretches.push_back({stretch.first, stretch.last, left, width / days});
        left += width + labelWidth;
    }
}

void ChartGeometry::placeDays(const ChartLetters& letters) {
    first = 0;
    inSight = count;
    const double labelWidth = letters.width(QStringLiteral("88.88.")) + gapPx;
    placeStretches(labelWidth);
    const double daySlot = std::ranges::min_element(stretches, {}, &Stretch::slot)->slot;
    thickness = static_cast<int>(std::clamp(std::floor(0.8 * daySlot), 1.0, widestDayPx));
    for (std::size_t entry = 0; entry < count; ++entry) {
        const QRect area = barOf(entry);
        // Only the highest of several days on one pixel is seen.
        if (thickness == 1 && !shownBars.empty() && shownBars.back().area.left() == area.left()) {
            if (area.top() < shownBars.back().area.top()) {
                shownBars.back() = {area, entry, QString()};
            }
            continue;
        }
        shownBars.push_back({area, entry, QString()});
    }
    labelDays(labelWidth);
}

/// The year stands below the first label of a stretch and wherever it is another than that before.
void ChartGeometry::labelDays(double labelWidth) {
    for (const Stretch& stretch : stretches) {
        if (!labels.empty()) {
            labels.push_back({stretch.left - labelWidth / 2, QStringLiteral("…")});
        }
        const double width = stretch.slot * static_cast<double>((stretch.last - stretch.first).count() + 1);
        const auto most = static_cast<std::size_t>(width / labelWidth);
        const bool hasRoom = most > 1 || stretches.size() == 1;
        std::optional<std::chrono::year> yearBefore;
        for (const sys_days day : hasRoom
                                      ? dayTicks(stretch.first, stretch.last, std::max<std::size_t>(2, most))
                                      : std::vector{stretch.first}) {
            const year_month_day date(day);
            QString label = dayAndMonth(date);
            if (date.year() != yearBefore) {
                label += QStringLiteral("\n%1").arg(static_cast<int>(date.year()), 4, 10, QLatin1Char('0'));
                yearBefore = date.year();
            }
            labels.push_back({dayMiddle(day), label});
        }
    }
}

std::size_t ChartGeometry::firstBarToShow(std::size_t entry) const {
    if (entry < first) {
        return entry;
    }
    return entry < first + inSight ? first : entry + 1 - inSight;
}

QRect ChartGeometry::barOf(std::size_t entry) const {
    if (entry < first || entry >= first + inSight) {
        return {};
    }
    const double middle = form == ChartData::Form::days ? dayMiddle(data->entries[entry].day)
                                                        : (static_cast<double>(entry - first) + 0.5) * slot;
    const int length = static_cast<int>(lengthOf(entry));
    const int begin = static_cast<int>(std::floor(middle - thickness / 2.0 + 0.5));
    return isSideways() ? QRect(plotArea.left(), plotArea.top() + begin, length, thickness)
                        : QRect(plotArea.left() + begin, plotArea.bottom() + 1 - length, thickness, length);
}

std::optional<std::size_t> ChartGeometry::entryAt(QPointF point) const {
    if (count == 0 || !QRectF(plotArea).contains(point)) {
        return std::nullopt;
    }
    if (form != ChartData::Form::days) {
        const double along = isSideways() ? point.y() - plotArea.top() : point.x() - plotArea.left();
        return first + std::min(static_cast<std::size_t>(along / slot), inSight - 1);
    }
    const auto distance = [&point](const Bar& bar) {
        return std::abs(QRectF(bar.area).center().x() - point.x());
    };
    const auto right =
        std::ranges::lower_bound(shownBars, point.x(), {}, [](const Bar& bar) { return bar.area.left(); });
    auto nearest = right == shownBars.end() ? std::prev(right) : right;
    if (right != shownBars.begin() && distance(*std::prev(right)) < distance(*nearest)) {
        nearest = std::prev(right);
    }
    const double reach = std::max(pointerReachPx, thickness / 2.0);
    return distance(*nearest) <= reach ? std::optional(nearest->entry) : std::nullopt;
}

}  // namespace quillon
