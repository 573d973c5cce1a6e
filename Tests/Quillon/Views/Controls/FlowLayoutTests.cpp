// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/FlowLayout.h"

#include <gtest/gtest.h>

#include <QWidget>

namespace quillon {
namespace {

TEST(ItemsInAFlow, GoOnInTheNextLineWhereTheyDoNotFit) {
    QWidget area;
    auto* layout = new FlowLayout(&area);
    layout->setContentsMargins(5, 3, 5, 3);
    layout->setSpacing(10);
    for (const int width : {100, 60, 40}) {
        auto* item = new QWidget(&area);
        item->setMinimumSize(width, 20);
        layout->addWidget(item);
    }
    EXPECT_EQ(layout->sizeHint(), QSize(230, 26));
    EXPECT_EQ(layout->heightForWidth(230), 26);
    EXPECT_EQ(layout->heightForWidth(229), 48);
    EXPECT_EQ(layout->heightForWidth(20), 70) << "each in a line of its own";
    layout->setGeometry(QRect(7, 9, 300, 26));
    EXPECT_EQ(layout->itemAt(1)->geometry(), QRect(7 + 115, 9 + 3, 60, 20));
    EXPECT_EQ(layout->itemAt(2)->geometry().right(), 7 + 300 - 5 - 1) << "the last stands at the right";
}

}  // namespace
}  // namespace quillon
