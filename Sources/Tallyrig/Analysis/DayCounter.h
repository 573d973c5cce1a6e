// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Analysis/ADIFStatistics.h"
#include "Tallyrig/Analysis/ValueCounts.h"

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace tallyrig {

/// How many QSOs there are on each day.
///
/// A log of many years has thousands of days. Nearly all dates are a day and nothing else, and those are
/// counted by calendar, which needs no search.
class DayCounter {
  public:
    DayCounter() : years(10'000) {}

    /// `date` as it is written, which has to stay.
    void add(std::string_view date) {
        if (const auto day = calendarDay(date)) {
            ++countOn(*day);
        } else {
            others.add(date);
        }
    }

    /// A bucket for each day, as `ADIFStatistics::byDay` has them.
    std::vector<ADIFStatistics::Bucket> buckets();

  private:
    struct Day {
        std::size_t year;
        std::size_t month;  ///< From 0, as `day`.
        std::size_t day;
    };
    static constexpr std::size_t mostDays = 31;
    using Year = std::array<std::size_t, 12 * mostDays>;

    /// Absent if `date` is anything but eight digits of ASCII that may be a day, in a month of 31 of them.
    static std::optional<Day> calendarDay(std::string_view date) {
        if (date.size() != 8) {
            return std::nullopt;
        }
        std::array<std::size_t, 8> digits{};
        bool areDigits = true;
        for (std::size_t place = 0; place < digits.size(); ++place) {
            digits[place] = static_cast<unsigned char>(date[place] - '0');
            areDigits &= digits[place] < 10;
        }
        const std::size_t year = digits[0] * 1000 + digits[1] * 100 + digits[2] * 10 + digits[3];
        // 0 becomes a large number.
        const std::size_t month = digits[4] * 10 + digits[5] - 1;
        const std::size_t day = digits[6] * 10 + digits[7] - 1;
        return areDigits && month < 12 && day < mostDays ? std::optional(Day{year, month, day})
                                                         : std::nullopt;
    }

    std::size_t& countOn(const Day& day) {
        std::unique_ptr<Year>& year = years[day.year];
        if (!year) {
            year = std::make_unique<Year>();
        }
        return (*year)[day.month * mostDays + day.day];
    }

    std::vector<std::unique_ptr<Year>> years;
    ValueCounts others;
};

}  // namespace tallyrig
