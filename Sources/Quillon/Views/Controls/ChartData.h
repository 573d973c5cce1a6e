// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Catalogue/BandColors.h"

#include <QString>

#include <chrono>
#include <cstddef>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// How many QSOs have something in common: what one bar of a chart stands for.
struct ChartEntry {
    std::string label;  ///< Text of a log, as long and as odd as it may be.
    std::size_t count = 0;
    std::chrono::sys_days day;  ///< In a chart of days alone.
};

/// What a chart shows: QSOs counted by a value, or by the day.
struct ChartData {
    enum class Form {
        columns,  ///< Bars beside each other.
        rows,     ///< Bars below each other.
        days,     ///< Bars on an axis of time; the entries ascend by day.
    };

    Form form = Form::columns;
    QString title;
    QString word;  ///< What the labels are, such as "Band".
    QString labelAxis;
    QString countAxis;
    std::vector<ChartEntry> entries;
    /// Only so many entries from the first on have a bar.
    std::size_t mostBars = std::numeric_limits<std::size_t>::max();
    /// The colour for a label; without it, all bars have one.
    std::function<PaletteColor(std::string_view)> color;
    /// What stands in the place of a chart without entries.
    QString nothing = QStringLiteral("Im Log steht dazu nichts.");

    std::size_t barCount() const;
    /// The highest of all that has a bar, 0 if there is none.
    std::size_t highest() const;
    /// The label for one line on the screen; very long ones without their end.
    QString label(std::size_t entry) const;
    /// "20m: 1.204 QSOs".
    QString sentence(std::size_t entry) const;
    /// An entry as a line of text for a spreadsheet: its label, a tab and the count without grouping.
    QString line(std::size_t entry) const;
    /// A heading and all lines.
    QString numbers() const;
};

}  // namespace quillon
