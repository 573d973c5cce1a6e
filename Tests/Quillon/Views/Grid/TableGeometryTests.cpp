// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Grid/TableGeometry.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <vector>

namespace quillon {

void PrintTo(const CellPosition& cell, std::ostream* out) {
    *out << "row " << cell.row << " column " << cell.column;
}

void PrintTo(const TableGeometry::RowRange& rows, std::ostream* out) {
    *out << rows.first << " to " << rows.last;
}

namespace {

/// Three columns that end at 100, 150 and 350.
TableGeometry table(std::size_t rowCount, StatusGutter gutter = StatusGutter::hidden) {
    return {{100, 50, 200}, rowCount, gutter};
}

TEST(RowsBuilt, AreThoseInTheViewportAndEightOnEachSide) {
    struct Case {
        std::size_t rowCount;
        double scrollY;
        double viewportHeight;
        double fallbackViewport;
        TableGeometry::RowRange rows;
        const char* what;
    };
    const Case cases[] = {
        {100'000, 0, 440, 0, {0, 36}, "at the top nothing is taken off"},
        {100'000, 175.9, 440, 0, {0, 36}, "seven rows down, still all of the first"},
        {100'000, 198, 440, 0, {1, 37}, "nine rows down"},
        {100'000, 2'199'560, 440, 0, {99'972, 100'000}, "at the end"},
        {100'000, 220, 441, 0, {2, 39}, "a row shown in part counts as visible"},
        {100'000, -30, 440, 0, {0, 36}, "pulled above the top"},
        {5, 0, 440, 0, {0, 5}, "fewer records than fit"},
        {0, 0, 440, 0, {0, 0}, "no records"},
        {5, 9'000, 440, 0, {5, 5}, "scrolled beyond rows that are gone"},
        {100'000, 0, 0, 220, {0, 26}, "no viewport reported yet"},
        {100'000, 0, 1, 220, {0, 26}, "one pixel is no viewport"},
        {100'000, 0, 2, 220, {0, 17}, "two are"},
        {1'000'000, 21'999'560, 440, 0, {999'972, 1'000'000}, "the end of a million rows"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(table(c.rowCount).bodyRows(c.scrollY, c.viewportHeight, c.fallbackViewport), c.rows)
            << c.what;
    }
}

TEST(ContentSize, IsTheSumOfColumnsGutterAndRows) {
    EXPECT_EQ(table(3).totalWidth(), 350);
    EXPECT_EQ(table(3, StatusGutter::shown).totalWidth(), 376);
    EXPECT_EQ(table(1'000'000).contentHeight(), 22'000'000);
    EXPECT_EQ(TableGeometry().totalWidth(), 0);
}

TEST(ColumnUnderThePointer, IsTheLastBeyondAllColumns) {
    struct Case {
        double x;
        std::size_t withoutGutter;
        std::size_t withGutter;
    };
    const Case cases[] = {
        {-50, 0, 0}, {0, 0, 0},   {99.9, 0, 0}, {100, 1, 0}, {125.9, 1, 0}, {126, 1, 1},
        {150, 2, 1}, {175, 2, 1}, {176, 2, 2},  {349, 2, 2}, {350, 2, 2},   {5'000, 2, 2},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(table(1).columnIndex(c.x), c.withoutGutter) << c.x;
        EXPECT_EQ(table(1, StatusGutter::shown).columnIndex(c.x), c.withGutter) << c.x << " with gutter";
    }
    EXPECT_EQ(TableGeometry({}, 4, StatusGutter::shown).columnIndex(10), 0U);
}

TEST(ColumnsPainted, AreThoseOfWhichAnythingIsInView) {
    using Range = TableGeometry::Range;
    EXPECT_EQ(table(1).columnsBetween(0, 1'000), (Range{0, 3}));
    EXPECT_EQ(table(1).columnsBetween(99, 101), (Range{0, 2}));
    EXPECT_EQ(table(1).columnsBetween(100, 150), (Range{1, 2})) << "edges do not count";
    EXPECT_EQ(table(1, StatusGutter::shown).columnsBetween(0, 20), (Range{0, 0})) << "the gutter alone";
    EXPECT_EQ(TableGeometry().columnsBetween(0, 20), (Range{0, 0}));
}

TEST(HitTesting, FindsNothingInTheGutterAndOutsideTheContent) {
    const TableGeometry geometry = table(10, StatusGutter::shown);
    EXPECT_EQ(geometry.columnAt(25.5), std::nullopt);
    EXPECT_EQ(geometry.columnAt(26), 0U);
    EXPECT_EQ(geometry.columnAt(375), 2U);
    EXPECT_EQ(geometry.columnAt(376), std::nullopt);
    EXPECT_EQ(geometry.rowAt(-0.5), std::nullopt);
    EXPECT_EQ(geometry.rowAt(21.9), 0U);
    EXPECT_EQ(geometry.rowAt(219.9), 9U);
    EXPECT_EQ(geometry.rowAt(220), std::nullopt);
    EXPECT_EQ(geometry.cellRect({2, 1}), QRectF(126, 44, 50, 22));
    EXPECT_EQ(geometry.gutterRect(9), QRectF(0, 198, 26, 22));
}

TEST(ResizeHandle, IsGraspedAroundTheRightEdgeOfItsColumn) {
    struct Case {
        double x;
        std::optional<std::size_t> column;
    };
    const Case cases[] = {{0, {}},  {93.9, {}}, {94, 0},   {100, 0}, {101.9, 0}, {102, {}},
                          {144, 1}, {151, 1},   {343, {}}, {345, 2}, {351, 2},   {352, {}}};
    for (const Case& c : cases) {
        EXPECT_EQ(table(1).resizeHandleAt(c.x), c.column) << c.x;
    }
}

TEST(BringingIntoView, MovesNoFurtherThanNeeded) {
    const TableGeometry geometry = table(1'000, StatusGutter::shown);
    EXPECT_EQ(geometry.scrollYShowing(10, 100, 440), 100) << "in view already";
    EXPECT_EQ(geometry.scrollYShowing(2, 100, 440), 44) << "above: to the top edge";
    EXPECT_EQ(geometry.scrollYShowing(30, 100, 440), 242) << "below: to the bottom edge";
    EXPECT_EQ(geometry.scrollYShowing(30, 0, 10), 660) << "a viewport lower than a row shows its top";
    EXPECT_EQ(geometry.scrollXShowing(1, 200, 300), 100) << "beside the gutter, which stays";
    EXPECT_EQ(geometry.scrollXShowing(2, 0, 300), 76);
    EXPECT_EQ(geometry.scrollXShowing(2, 0, 150), 150)
        << "a column wider than the viewport shows its beginning";
}

TEST(MovingByKey, StaysWithinTheTable) {
    struct Case {
        CellPosition from;
        TableMove move;
        CellPosition to;
        const char* what;
    };
    const Case cases[] = {
        {{0, 0}, TableMove::up, {0, 0}, "up at the top"},
        {{5, 1}, TableMove::up, {4, 1}, "up"},
        {{99, 1}, TableMove::down, {99, 1}, "down at the bottom"},
        {{5, 0}, TableMove::left, {5, 0}, "left at the first column"},
        {{5, 2}, TableMove::right, {5, 2}, "right at the last column"},
        {{50, 1}, TableMove::pageUp, {40, 1}, "a page is the rows that fit whole"},
        {{3, 1}, TableMove::pageUp, {0, 1}, "a page up near the top"},
        {{50, 1}, TableMove::pageDown, {60, 1}, "a page down"},
        {{95, 1}, TableMove::pageDown, {99, 1}, "a page down near the bottom"},
        {{5, 1}, TableMove::rowStart, {5, 0}, "to the first column"},
        {{5, 1}, TableMove::rowEnd, {5, 2}, "to the last column"},
        {{5, 1}, TableMove::tableStart, {0, 0}, "to the first cell"},
        {{5, 1}, TableMove::tableEnd, {99, 2}, "to the last cell"},
        {{500, 7}, TableMove::up, {98, 2}, "from a place that is gone"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(table(100).target(c.from, c.move, 235), c.to) << c.what;
    }
    EXPECT_EQ(table(100).target({5, 1}, TableMove::pageDown, 10), (CellPosition{6, 1}))
        << "a page is a row at least";
    EXPECT_EQ(table(0).target({0, 0}, TableMove::down, 235), std::nullopt);
}

TEST(NextCell, GoesOverTheEndsOfRowsAndStopsAtTheEndsOfTheTable) {
    const TableGeometry geometry = table(2);
    EXPECT_EQ(geometry.cellAfter({0, 0}), (CellPosition{0, 1}));
    EXPECT_EQ(geometry.cellAfter({0, 2}), (CellPosition{1, 0}));
    EXPECT_EQ(geometry.cellAfter({1, 2}), std::nullopt);
    EXPECT_EQ(geometry.cellBefore({1, 0}), (CellPosition{0, 2}));
    EXPECT_EQ(geometry.cellBefore({0, 0}), std::nullopt);
}

}  // namespace
}  // namespace quillon
