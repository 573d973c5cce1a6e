// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Analysis/DayCounter.h"

#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <string>

namespace tallyrig {

namespace {

/// The front of `date` if that is a day in digits, otherwise empty.
std::string_view dayOf(std::string_view date) {
    constexpr std::size_t length = 8;
    const std::string_view front = text::firstCharacters(date, length);
    return text::hasLength(front, length) && text::isAllNumeric(front) ? front : std::string_view();
}

}  // namespace

std::vector<ADIFStatistics::Bucket> DayCounter::buckets() {
    std::map<std::string, std::size_t> beside;
    for (const auto& [value, count] : others.entries()) {
        const std::string_view day = dayOf(text::trimmed(value));
        if (const auto known = calendarDay(day)) {
            countOn(*known) += count;
        } else if (!day.empty()) {
            beside[text::canonicalKey(day)] += count;
        }
    }
    std::vector<ADIFStatistics::Bucket> result;
    for (std::size_t year = 0; year < years.size(); ++year) {
        for (std::size_t day = 0; years[year] && day < years[year]->size(); ++day) {
            if (const std::size_t count = (*years[year])[day]; count > 0) {
                result.push_back(
                    {fmt::format("{:04}{:02}{:02}", year, day / mostDays + 1, day % mostDays + 1), count});
            }
        }
    }
    const auto calendarEnd = static_cast<std::ptrdiff_t>(result.size());
    for (const auto& [label, count] : beside) {
        result.push_back({label, count});
    }
    std::ranges::inplace_merge(result, result.begin() + calendarEnd, {}, &ADIFStatistics::Bucket::label);
    return result;
}

}  // namespace tallyrig
