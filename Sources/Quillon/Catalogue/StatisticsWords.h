// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Analysis/ADIFStatistics.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// How the dates of a log's statistics are told to a person. A log may hold eight digits that are no day;
/// such a label is shown as it is written.
struct StatisticsWords {
    /// The day that YYYYMMDD in ASCII digits means in the Gregorian calendar, carried back to the year 0;
    /// none if there is no such day.
    static std::optional<std::chrono::sys_days> dayOf(std::string_view label);
    /// The day of a label of `byDay` as DD.MM.YYYY.
    static std::string day(const std::string& label);
    /// From the first day to the last, or the one day; empty without any.
    static std::string period(const tallyrig::ADIFStatistics& statistics);
};

}  // namespace quillon
