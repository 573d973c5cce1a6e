// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace quillon {

class Chart;

/// Lets assistive technology see charts as what they are: a child for each bar, with its label and its count.
/// Every chart calls it; only the first call does something.
void registerChartAccessibility();

/// Tells that the keyboard is at this bar, if it is in the chart at all.
void announceBar(Chart& chart, std::size_t bar);

/// Tells that the bars are others than before.
void announceOtherBars(Chart& chart);

}  // namespace quillon
