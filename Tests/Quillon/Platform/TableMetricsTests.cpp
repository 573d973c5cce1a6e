// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/TableMetrics.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(TableMetrics, AreTheUsualOnesUntilALineNoLongerFitsIntoARow) {
    EXPECT_EQ(TableMetrics::forFontHeight(0), TableMetrics());
    EXPECT_EQ(TableMetrics::forFontHeight(18), TableMetrics());
    const TableMetrics large = TableMetrics::forFontHeight(28.2);
    EXPECT_EQ(large.rowHeight, 33);
    EXPECT_EQ(large.cellMargins, 24);
    EXPECT_EQ(large.bandDotRoom, 20);
    EXPECT_EQ(large.menuRoom, 33);
}

}  // namespace
}  // namespace quillon
