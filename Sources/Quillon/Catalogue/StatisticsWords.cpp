// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/StatisticsWords.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"

#include <algorithm>
#include <charconv>

namespace quillon {

std::optional<std::chrono::sys_days> StatisticsWords::dayOf(std::string_view label) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (label.size() != 8 || !std::ranges::all_of(label, isDigit)) {
        return std::nullopt;
    }
    const auto number = [label](std::size_t position, std::size_t length) {
        int value = 0;
        std::from_chars(label.data() + position, label.data() + position + length, value);
        return value;
    };
    const std::chrono::year_month_day date(std::chrono::year(number(0, 4)),
                                           std::chrono::month(static_cast<unsigned>(number(4, 2))),
                                           std::chrono::day(static_cast<unsigned>(number(6, 2))));
    return date.ok() ? std::optional<std::chrono::sys_days>(date) : std::nullopt;
}

std::string StatisticsWords::day(const std::string& label) {
    return dayOf(label) ? ADIFFieldCatalog::formatDate(label) : label;
}

std::string StatisticsWords::period(const tallyrig::ADIFStatistics& statistics) {
    if (!statistics.firstDate) {
        return {};
    }
    const std::string first = day(*statistics.firstDate);
    const std::string last = day(*statistics.lastDate);
    return first == last ? first : first + " – " + last;
}

}  // namespace quillon
