// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/QSOTime.h"

#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"

namespace tallyrig {

namespace {

/// Days from 1970-01-01 in the Gregorian calendar, carried on in both directions. Years are taken to begin in
/// March, so that the leap day is their last, and lie in eras of 400 of them.
std::int64_t dayNumber(std::int64_t year, std::int64_t month, std::int64_t day) {
    constexpr std::int64_t yearsOfEra = 400;
    constexpr std::int64_t daysOfEra = 146097;
    constexpr std::int64_t daysTo1970 = 719468;
    const std::int64_t marchYear = month > 2 ? year : year - 1;
    const std::int64_t marchMonth = month > 2 ? month - 3 : month + 9;
    const std::int64_t era = (marchYear >= 0 ? marchYear : marchYear - (yearsOfEra - 1)) / yearsOfEra;
    const std::int64_t yearOfEra = marchYear - era * yearsOfEra;
    const std::int64_t dayOfYear = (153 * marchMonth + 2) / 5 + day - 1;
    return era * daysOfEra + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear - daysTo1970;
}

/// A few characters as an integer, a sign included.
std::optional<std::int64_t> number(std::string_view text) {
    std::int64_t value = 0;
    for (const char c : text) {
        if (!text::isASCIIDigit(c)) {
            return text::integer(text);
        }
        value = value * 10 + (c - '0');
    }
    return value;
}

/// The minutes to the beginning of a date.
std::optional<std::int64_t> minutesToDate(std::string_view date) {
    constexpr std::size_t dateLength = 8;
    date = text::trimmedOfBlanks(date);
    if (date.size() != dateLength) {
        return std::nullopt;
    }
    const auto year = number(date.substr(0, 4));
    const auto month = number(date.substr(4, 2));
    const auto day = number(date.substr(6, 2));
    if (!year || !month || !day) {
        return std::nullopt;
    }
    return dayNumber(*year, *month, *day) * 24 * 60;
}

/// Those of the day until a time.
std::optional<std::int64_t> minutesToTime(std::string_view time) {
    constexpr std::size_t timeLength = 4;
    time = text::firstCharacters(text::trimmedOfBlanks(time), timeLength);
    // A character of several bytes makes no number.
    if (time.size() != timeLength) {
        return std::nullopt;
    }
    const auto hour = number(time.substr(0, 2));
    const auto minute = number(time.substr(2, 2));
    return hour && minute ? std::optional(*hour * 60 + *minute) : std::nullopt;
}

}  // namespace

std::optional<std::int64_t> QSOClock::minutesOf(std::string_view date, std::string_view time) {
    if (date != lastDate) {
        lastDate = date;
        toLastDate = minutesToDate(date);
    }
    const std::optional<std::int64_t> toTime = toLastDate ? minutesToTime(time) : std::nullopt;
    return toTime ? std::optional(*toLastDate + *toTime) : std::nullopt;
}

std::optional<std::int64_t> minutesOf(std::string_view date, std::string_view time) {
    return QSOClock().minutesOf(date, time);
}

}  // namespace tallyrig
