// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/ChartData.h"
#include "Tallyrig/Analysis/ADIFStatistics.h"

#include <vector>

namespace quillon {

/// How the figures of a log are shown: its charts.
struct StatisticsCharts {
    using Buckets = std::vector<tallyrig::ADIFStatistics::Bucket>;

    static ChartData bands(Buckets byBand);
    static ChartData modes(Buckets byMode);
    /// Without the labels that are no day of the calendar.
    static ChartData days(const Buckets& byDay);
    /// Bars for the first 15 only.
    static ChartData countries(Buckets byCountry);
};

}  // namespace quillon
