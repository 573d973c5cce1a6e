// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/ChartScale.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace quillon {

namespace {

using std::chrono::days;
using std::chrono::months;
using std::chrono::sys_days;
using std::chrono::year_month;
using std::chrono::year_month_day;

/// The step behind `step` in 1, 2, 5, 10, 20, 50, …
std::size_t nextStep(std::size_t step) {
    std::size_t leading = step;
    while (leading >= 10) {
        leading /= 10;
    }
    return leading == 2 ? step / 2 * 5 : step * 2;
}

/// One more than `most` stands for "too many".
std::vector<sys_days> everyFewDays(sys_days first, sys_days last, int step, std::size_t most) {
    std::vector<sys_days> ticks;
    for (sys_days day = first; day <= last && ticks.size() <= most; day += days(step)) {
        ticks.push_back(day);
    }
    return ticks;
}

/// The first days of those months that lie `step` apart, counted from the year 0; likewise.
std::vector<sys_days> everyFewMonths(sys_days first, sys_days last, int step, std::size_t most) {
    const year_month_day begin(first);
    const int monthsBefore = static_cast<int>(begin.year()) * 12 +
                             static_cast<int>(static_cast<unsigned>(begin.month())) - 1 +
                             (begin.day() > std::chrono::day(1) ? 1 : 0);
    std::vector<sys_days> ticks;
    for (int month = (monthsBefore + step - 1) / step * step; ticks.size() <= most; month += step) {
        const year_month which = year_month(std::chrono::year(0), std::chrono::January) + months(month);
        const sys_days day = which / std::chrono::day(1);
        if (day > last) {
            break;
        }
        ticks.push_back(day);
    }
    return ticks;
}

}  // namespace

std::vector<std::size_t> countTicks(std::size_t highest, std::size_t most) {
    assert(most > 0);
    const std::size_t reach = std::max<std::size_t>(highest, 1);
    std::size_t step = 1;
    while ((reach - 1) / step + 1 > most) {
        step = nextStep(step);
    }
    std::vector<std::size_t> ticks = {0};
    while (ticks.back() < reach) {
        ticks.push_back(ticks.back() + step);
    }
    return ticks;
}

std::vector<sys_days> dayTicks(sys_days first, sys_days last, std::size_t most) {
    assert(most > 1 && first <= last);
    constexpr std::array daySteps = {1, 2, 7, 14};
    for (const int step : daySteps) {
        if (auto ticks = everyFewDays(first, last, step, most); ticks.size() <= most) {
            return ticks;
        }
    }
    std::vector<sys_days> ticks;
    constexpr std::array monthSteps = {1, 2, 3, 6};
    for (const int step : monthSteps) {
        if (ticks = everyFewMonths(first, last, step, most); ticks.size() <= most) {
            break;
        }
    }
    for (std::size_t years = 1; ticks.size() > most; years = nextStep(years)) {
        ticks = everyFewMonths(first, last, static_cast<int>(years) * 12, most);
    }
    // A span that is too long for days may still lie between two steps.
    return ticks.empty() ? std::vector{first} : ticks;
}

std::vector<DayStretch> dayStretches(std::span<const sys_days> all) {
    constexpr auto widestGap = std::chrono::round<days>(std::chrono::years(50));
    std::vector<DayStretch> stretches;
    for (const sys_days day : all) {
        if (stretches.empty() || day - stretches.back().last > widestGap) {
            stretches.push_back({day, day});
        }
        stretches.back().last = day;
    }
    return stretches;
}

}  // namespace quillon
