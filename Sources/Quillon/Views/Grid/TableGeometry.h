// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/TableMetrics.h"

#include <QRectF>

#include <cstddef>
#include <optional>
#include <vector>

namespace quillon {

/// A cell by its place on screen: the row among the displayed records, the column among the columns.
struct CellPosition {
    std::size_t row = 0;
    std::size_t column = 0;

    friend bool operator==(const CellPosition&, const CellPosition&) = default;
};

/// The ways in which a key moves the current cell.
enum class TableMove { up, down, left, right, pageUp, pageDown, rowStart, rowEnd, tableStart, tableEnd };

/// Whether the column of check marks stands in front of the columns.
enum class StatusGutter { hidden, shown };

/// Where everything of the table lies: rows, columns, the gutter, all in logical pixels of the content, whose
/// origin is the upper left corner of the first row. The header shares the horizontal axis.
///
/// A value that knows no widget and no log. Every question but the construction costs a binary search over
/// the columns at most, whatever the number of rows.
class TableGeometry {
  public:
    static constexpr std::size_t rowBuffer = 8;  ///< Rows kept outside the viewport on each side.
    static constexpr double gutterWidth = 26;
    static constexpr double separatorHeight = 1;  ///< The last line of each row.
    static constexpr double dividerWidth = 1;     ///< The last pixels of each cell.

    /// Rows or columns from `first` up to, but not including, `last`.
    struct Range {
        std::size_t first = 0;
        std::size_t last = 0;

        friend bool operator==(const Range&, const Range&) = default;
    };
    using RowRange = Range;

    /// No columns and no rows.
    TableGeometry() : TableGeometry({}, 0, StatusGutter::hidden) {}
    TableGeometry(const std::vector<double>& columnWidths, std::size_t rowCount, StatusGutter gutter,
                  const TableMetrics& tableMetrics = {});

    const TableMetrics& metrics() const { return lengths; }
    double rowHeight() const { return lengths.rowHeight; }

    std::size_t rowCount() const { return rows; }
    std::size_t columnCount() const { return edges.size() - 1; }
    bool hasGutter() const { return edges.front() > 0; }

    /// The widths of all columns and of the gutter.
    double totalWidth() const { return edges.back(); }
    double contentHeight() const { return rowHeight() * static_cast<double>(rows); }

    /// The rows to build: those in the viewport and `rowBuffer` more on each side. `viewportHeight` is what
    /// the scroll container reported last; as long as it reported nothing (1 or less), `fallbackViewport`
    /// counts.
    RowRange bodyRows(double scrollY, double viewportHeight, double fallbackViewport) const;

    /// The column under `atX`, the first left of all columns, the last right of them; 0 if there are none.
    std::size_t columnIndex(double atX) const;

    /// The columns of which something lies between `left` and `right`.
    Range columnsBetween(double left, double right) const;

    /// The row at height `y`, absent above the first and below the last.
    std::optional<std::size_t> rowAt(double y) const;
    /// The column at `x`, absent in the gutter and beyond the last column.
    std::optional<std::size_t> columnAt(double x) const;
    /// The column whose right edge can be grasped at `x`.
    std::optional<std::size_t> resizeHandleAt(double x) const;

    /// The whole row as wide as the content.
    QRectF rowRect(std::size_t row) const;
    QRectF gutterRect(std::size_t row) const;
    /// The cell with its divider and its piece of the separator.
    QRectF cellRect(CellPosition cell) const;
    double columnLeft(std::size_t column) const { return edges[column]; }
    double columnRight(std::size_t column) const { return edges[column + 1]; }
    double columnWidth(std::size_t column) const { return edges[column + 1] - edges[column]; }

    /// The position nearest to `scrollY` at which the whole row is in view.
    double scrollYShowing(std::size_t row, double scrollY, double viewportHeight) const;
    /// The position nearest to `scrollX` at which the whole column is in view and clear of the gutter, which
    /// stays at the left edge of the viewport; its left edge if it is wider than what is there.
    double scrollXShowing(std::size_t column, double scrollX, double viewportWidth) const;

    /// Where `move` leads from `from`, which may lie outside the table. Absent in a table without rows.
    std::optional<CellPosition> target(CellPosition from, TableMove move, double viewportHeight) const;
    /// The cell behind or in front of `cell` in reading order, over the ends of rows; absent at the table's
    /// end.
    std::optional<CellPosition> cellAfter(CellPosition cell) const;
    std::optional<CellPosition> cellBefore(CellPosition cell) const;
    /// The cell nearest to `cell` that exists; absent in a table without rows.
    std::optional<CellPosition> nearestCell(CellPosition cell) const;

    friend bool operator==(const TableGeometry&, const TableGeometry&) = default;

  private:
    std::vector<double> edges;  ///< The left edge of each column and the right edge of the last.
    std::size_t rows = 0;
    TableMetrics lengths;
};

}  // namespace quillon
