// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tallyrig {

/// Totals of a log and how often the values of a few fields occur in it.
///
/// A record without a value in a field is not counted in its table, so that the sum of a table may be below
/// `total`. White space and line ends around a value do not count. Labels are in the canonical composed form;
/// no table has one twice.
struct ADIFStatistics {
    struct Bucket {
        std::string label;
        std::size_t count = 0;
        friend bool operator==(const Bucket&, const Bucket&) = default;
    };

    ADIFStatistics() = default;
    /// Cost: a pass over the records, and sorting the different values.
    explicit ADIFStatistics(const ADIFDocument& document);

    bool isEmpty() const { return total == 0; }

    std::size_t total = 0;                 ///< Records.
    std::size_t uniqueCalls = 0;           ///< Different calls, letter case apart.
    std::optional<std::string> firstDate;  ///< The first and the last label of `byDay`.
    std::optional<std::string> lastDate;
    std::vector<Bucket>
        byBand;  ///< Bands in lower case, ascending by frequency, behind them what is no band.
    std::vector<Bucket> byMode;  ///< Modes in upper case, the most frequent first, then in text order.
    /// Days as YYYYMMDD, ascending: the first 8 characters of each date that begins with 8 digits. They need
    /// be no day of the calendar.
    std::vector<Bucket> byDay;
    /// Countries in upper case, in the order of `byMode`. If no record names one, the numbers of DXCC
    /// entities.
    std::vector<Bucket> byCountry;
};

}  // namespace tallyrig
