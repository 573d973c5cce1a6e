// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Grid/TableGeometry.h"

#include <algorithm>
#include <cmath>

namespace quillon {
namespace {

/// How far beyond a column's right edge its handle can be grasped: just over it, for there the next column's
/// name begins. To the left the header keeps room for it.
constexpr double handleReachRight = 2;

std::size_t wholeRows(double height) {
    return static_cast<std::size_t>(std::max(0.0, height));
}

/// The position nearest to `scroll` at which `begin` to `end` is within an extent of `viewport`; `begin`
/// comes first.
double scrollShowing(double begin, double end, double scroll, double viewport) {
    return std::max(0.0, std::min(begin, std::max(scroll, end - viewport)));
}

}  // namespace

TableGeometry::TableGeometry(const std::vector<double>& columnWidths, std::size_t rowCount,
                             StatusGutter gutter, const TableMetrics& tableMetrics)
    : rows(rowCount), lengths(tableMetrics) {
    edges.reserve(columnWidths.size() + 1);
    edges.push_back(gutter == StatusGutter::shown ? gutterWidth : 0);
    for (const double width : columnWidths) {
        edges.push_back(edges.back() + width);
    }
}

TableGeometry::RowRange TableGeometry::bodyRows(double scrollY, double viewportHeight,
                                                double fallbackViewport) const {
    const double viewport = viewportHeight > 1 ? viewportHeight : fallbackViewport;
    const std::size_t top = wholeRows(scrollY / rowHeight());
    const std::size_t visible = wholeRows(std::ceil(viewport / rowHeight())) + 2 * rowBuffer;
    const std::size_t first = std::min(top - std::min(top, rowBuffer), rows);
    return {first, std::min(first + visible, rows)};
}

std::size_t TableGeometry::columnIndex(double atX) const {
    const auto right = std::upper_bound(edges.begin() + 1, edges.end(), atX);
    const auto index = static_cast<std::size_t>(right - (edges.begin() + 1));
    return std::min(index, columnCount() == 0 ? 0 : columnCount() - 1);
}

TableGeometry::Range TableGeometry::columnsBetween(double left, double right) const {
    const auto end = std::lower_bound(edges.begin(), edges.end() - 1, right);
    const auto last = static_cast<std::size_t>(end - edges.begin());
    return {std::min(columnIndex(left), last), last};
}

std::optional<std::size_t> TableGeometry::rowAt(double y) const {
    if (y < 0 || y >= contentHeight()) {
        return std::nullopt;
    }
    return wholeRows(y / rowHeight());
}

std::optional<std::size_t> TableGeometry::columnAt(double x) const {
    if (x < edges.front() || x >= edges.back()) {
        return std::nullopt;
    }
    return columnIndex(x);
}

std::optional<std::size_t> TableGeometry::resizeHandleAt(double x) const {
    const auto right = std::lower_bound(edges.begin() + 1, edges.end(), x - handleReachRight);
    if (right == edges.end() || x < *right - lengths.handleRoom || x >= *right + handleReachRight) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(right - (edges.begin() + 1));
}

QRectF TableGeometry::rowRect(std::size_t row) const {
    return {0, static_cast<double>(row) * rowHeight(), totalWidth(), rowHeight()};
}

QRectF TableGeometry::gutterRect(std::size_t row) const {
    return {0, static_cast<double>(row) * rowHeight(), edges.front(), rowHeight()};
}

QRectF TableGeometry::cellRect(CellPosition cell) const {
    return {columnLeft(cell.column), static_cast<double>(cell.row) * rowHeight(), columnWidth(cell.column),
            rowHeight()};
}

double TableGeometry::scrollYShowing(std::size_t row, double scrollY, double viewportHeight) const {
    const double top = static_cast<double>(row) * rowHeight();
    return scrollShowing(top, top + rowHeight(), scrollY, viewportHeight);
}

double TableGeometry::scrollXShowing(std::size_t column, double scrollX, double viewportWidth) const {
    return scrollShowing(columnLeft(column) - edges.front(), columnRight(column), scrollX, viewportWidth);
}

std::optional<CellPosition> TableGeometry::target(CellPosition from, TableMove move,
                                                  double viewportHeight) const {
    const std::optional<CellPosition> nearest = nearestCell(from);
    if (!nearest) {
        return std::nullopt;
    }
    const std::size_t lastRow = rows - 1;
    const std::size_t lastColumn = columnCount() == 0 ? 0 : columnCount() - 1;
    const std::size_t page = std::max<std::size_t>(1, wholeRows(viewportHeight / rowHeight()));
    CellPosition cell = *nearest;
    switch (move) {
        case TableMove::up:
            cell.row -= std::min<std::size_t>(cell.row, 1);
            break;
        case TableMove::down:
            cell.row = std::min(cell.row + 1, lastRow);
            break;
        case TableMove::left:
            cell.column -= std::min<std::size_t>(cell.column, 1);
            break;
        case TableMove::right:
            cell.column = std::min(cell.column + 1, lastColumn);
            break;
        case TableMove::pageUp:
            cell.row -= std::min(cell.row, page);
            break;
        case TableMove::pageDown:
            cell.row = std::min(cell.row + page, lastRow);
            break;
        case TableMove::rowStart:
            cell.column = 0;
            break;
        case TableMove::rowEnd:
            cell.column = lastColumn;
            break;
        case TableMove::tableStart:
            cell = {0, 0};
            break;
        case TableMove::tableEnd:
            cell = {lastRow, lastColumn};
            break;
    }
    return cell;
}

std::optional<CellPosition> TableGeometry::cellAfter(CellPosition cell) const {
    if (cell.column + 1 < columnCount()) {
        return CellPosition{cell.row, cell.column + 1};
    }
    if (cell.row + 1 < rows) {
        return CellPosition{cell.row + 1, 0};
    }
    return std::nullopt;
}

std::optional<CellPosition> TableGeometry::cellBefore(CellPosition cell) const {
    if (cell.column > 0) {
        return CellPosition{cell.row, cell.column - 1};
    }
    if (cell.row > 0 && columnCount() > 0) {
        return CellPosition{cell.row - 1, columnCount() - 1};
    }
    return std::nullopt;
}

std::optional<CellPosition> TableGeometry::nearestCell(CellPosition cell) const {
    if (rows == 0) {
        return std::nullopt;
    }
    return CellPosition{std::min(cell.row, rows - 1),
                        std::min(cell.column, columnCount() == 0 ? 0 : columnCount() - 1)};
}

}  // namespace quillon
