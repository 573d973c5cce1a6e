// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/ChartPainter.h"

#include "Quillon/Views/Controls/Chart.h"

#include <gtest/gtest.h>

#include <memory>

namespace quillon {
namespace {

TEST(ChartModule, PaintsBarsInTheColoursOfTheirLabelsOnTheGroundOfThePalette) {
    ASSERT_NE(chartPainter(), nullptr);
    for (const ChartData::Form form :
         {ChartData::Form::columns, ChartData::Form::rows, ChartData::Form::days}) {
        auto data = std::make_shared<ChartData>();
        data->form = form;
        data->color = [](std::string_view label) {
            return label == "red" ? SystemColor::red : SystemColor::blue;
        };
        const std::chrono::sys_days day{};
        data->entries = {{.label = "red", .count = 4, .day = day},
                         {.label = "blue", .count = 2, .day = day + std::chrono::days(1)}};
        Chart chart(*chartPainter());
        chart.resize(500, 200);
        chart.setData(data);
        for (const QColor ground : {Qt::white, Qt::black}) {
            QPalette palette;
            palette.setColor(QPalette::Base, ground);
            chart.setPalette(palette);
            const QImage picture = chart.grab().toImage();
            const auto colorAt = [&picture](QPointF point) {
                return picture.pixelColor((point * picture.devicePixelRatio()).toPoint());
            };
            const QRect red = chart.places().barOf(0);
            const QRect blue = chart.places().barOf(1);
            EXPECT_GT(colorAt(red.center()).red(), colorAt(red.center()).blue());
            EXPECT_GT(colorAt(blue.center()).blue(), colorAt(blue.center()).red());
            EXPECT_EQ(colorAt({2, 2}), ground);
            // Where the shorter bar ends, the longer one goes on.
            const QPoint beyond = chart.places().isSideways() ? QPoint(blue.right() + 4, red.center().y())
                                                              : QPoint(red.center().x(), blue.top() - 4);
            EXPECT_EQ(colorAt(beyond), colorAt(red.center()));
        }
    }
}

}  // namespace
}  // namespace quillon
