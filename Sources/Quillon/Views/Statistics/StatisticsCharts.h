#pragma once

#include "Quillon/Views/Controls/ChartData.h"
#include "Tallyrig/Analysis/ADIFStatistics.h"

#include <QString>

#include <chrono>
#include <optional>
#include <string_view>
#include <vector>

namespace quillon {

/// How the figures of a log are shown: its charts, and the words for its dates.
struct StatisticsCharts {
    using Buckets = std::vector<tallyrig::ADIFStatistics::Bucket>;

    static ChartData bands(Buckets byBand);
    static ChartData modes(Buckets byMode);
    /// Without the labels that are no day of the calendar.
    static ChartData days(const Buckets& byDay);
    /// Bars for the first 15 only.
    static ChartData countries(Buckets byCountry);

    /// From the first day to the last, or the one day; empty without any.
    static QString period(const tallyrig::ADIFStatistics& statistics);

    /// The day that YYYYMMDD in ASCII digits means in the Gregorian calendar, carried back to the year 0;
    /// none if there is no such day.
    static std::optional<std::chrono::sys_days> dayOf(std::string_view label);
};

}  // namespace quillon
