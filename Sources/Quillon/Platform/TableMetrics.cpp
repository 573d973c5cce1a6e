// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/TableMetrics.h"

#include <algorithm>
#include <cmath>

namespace quillon {

TableMetrics TableMetrics::forFontHeight(double fontHeight) {
    // Above and below a line of text, for the frame of an editor and the separator.
    constexpr double roomAroundLine = 4;
    const TableMetrics usual;
    TableMetrics metrics;
    metrics.rowHeight = std::max(usual.rowHeight, std::ceil(fontHeight) + roomAroundLine);
    const double scale = metrics.rowHeight / usual.rowHeight;
    for (double TableMetrics::*const length :
         {&TableMetrics::cellMargins, &TableMetrics::bandDotRoom, &TableMetrics::sortMarkRoom,
          &TableMetrics::handleRoom, &TableMetrics::menuRoom}) {
        metrics.*length = std::round(usual.*length * scale);
    }
    return metrics;
}

}  // namespace quillon
