// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tallyrig {

/// The minutes from 1970-01-01 to a date and time of ADIF, YYYYMMDD and HHMM or HHMMSS, with blanks around
/// them or without. Seconds do not count. Absent if either is no such text; the parts are added up as they
/// stand, so that minute 75 is a quarter past the next hour and a part may have a sign. The size is below
/// 2^33.
std::optional<std::int64_t> minutesOf(std::string_view date, std::string_view time);

/// Tells the same of one QSO after the other; most are of the date of the one before. Refers to the last
/// date.
class QSOClock {
  public:
    std::optional<std::int64_t> minutesOf(std::string_view date, std::string_view time);

  private:
    std::string_view lastDate;
    std::optional<std::int64_t> toLastDate;
};

}  // namespace tallyrig
