// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/TileLayout.h"

#include <gtest/gtest.h>

#include <QWidget>

namespace quillon {
namespace {

TEST(Tiles, StandInRowsOfEquallyMany) {
    const auto columns = [](int count, int width) { return TileLayout::columns(count, width, 100, 10); };
    EXPECT_EQ(columns(6, 650), 6);
    EXPECT_EQ(columns(6, 649), 3) << "not five and one";
    EXPECT_EQ(columns(6, 319), 2);
    EXPECT_EQ(columns(6, 209), 1);
    EXPECT_EQ(columns(6, 10), 1);
    EXPECT_EQ(columns(4, 500), 4);
    EXPECT_EQ(columns(0, 500), 1);
}

TEST(Tiles, StandInAsFewRowsAsThereCanBe) {
    const auto columns = [](int count, int width) {
        return TileLayout::columns(count, width, 100, 10, TileRows::fewest);
    };
    EXPECT_EQ(columns(7, 760), 7);
    EXPECT_EQ(columns(7, 759), 4) << "not six and one";
    EXPECT_EQ(columns(7, 319), 2);
    EXPECT_EQ(columns(7, 10), 1);
    EXPECT_EQ(columns(0, 10), 1);
}

TEST(Tiles, AreAllOfOneSize) {
    QWidget area;
    auto* layout = new TileLayout(&area);
    for (const int width : {40, 100, 70, 20}) {
        auto* tile = new QWidget(&area);
        tile->setMinimumSize(width, width / 2);
        layout->addWidget(tile);
    }
    layout->setGeometry(QRect(5, 7, 300, layout->heightForWidth(300)));
    EXPECT_EQ(layout->itemAt(3)->geometry(), QRect(5 + 156, 7 + 50 + 12, 144, 50));
    EXPECT_EQ(layout->heightForWidth(300), 112);
    layout->setGeometry(QRect(0, 0, 301, 112));
    EXPECT_EQ(layout->itemAt(3)->geometry().right(), 300) << "the last ends where the row does";
}

}  // namespace
}  // namespace quillon
