// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillon {

/// The lengths, in logical pixels, on which fitting a column's width and painting its cells must agree.
///
/// All are whole numbers. They are the usual ones for every font that fits into a row of 22 pixels, and grow
/// in proportion to the row for larger ones.
struct TableMetrics {
    double rowHeight = 22;     ///< With the line that separates it from the next.
    double cellMargins = 16;   ///< Left and right of a cell's text together, half of it on each side.
    double bandDotRoom = 13;   ///< The coloured dot in front of a band, with the space behind it.
    double sortMarkRoom = 12;  ///< The chevron behind the label of a sorted column, with the space before it.
    double handleRoom = 6;     ///< At a column's right edge, for the handle that changes its width.
    double menuRoom = 22;      ///< The button of a column's menu and the handle's room to the right of it.

    /// The lengths for cells in a font whose lines are `fontHeight` high.
    static TableMetrics forFontHeight(double fontHeight);

    friend bool operator==(const TableMetrics&, const TableMetrics&) = default;
};

}  // namespace quillon
