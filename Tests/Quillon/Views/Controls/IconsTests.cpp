// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/Icons.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>

namespace quillon {
namespace {

/// The picture on a transparent ground.
QImage painted(const QIcon& picture, int sizePx, double scale = 1) {
    QImage image(QSize(sizePx, sizePx) * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    picture.paint(&painter, QRect(0, 0, sizePx, sizePx));
    return image;
}

/// The number of pixels that are covered fully, and those that are only in part.
std::pair<int, int> coverage(const QImage& image) {
    std::pair<int, int> pixels;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int alpha = qAlpha(image.pixel(x, y));
            pixels.first += alpha > 240 ? 1 : 0;
            pixels.second += alpha > 15 && alpha <= 240 ? 1 : 0;
        }
    }
    return pixels;
}

int lightnessOf(const QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 240) {
                return image.pixelColor(x, y).lightness();
            }
        }
    }
    return -1;
}

TEST(Icon, IsCrispInTheSizesOfItsTheme) {
    const QIcon bin = icon(QStringLiteral("edit-delete"));
    for (const int size : {16, 22, 32}) {
        for (const double scale : {1.0, 2.0}) {
            SCOPED_TRACE(testing::Message() << size << " at " << scale);
            const auto [full, partial] = coverage(painted(bin, size, scale));
            EXPECT_GT(full, size);
            EXPECT_EQ(partial, 0) << "the lines of this icon lie on whole pixels";
        }
    }
}

TEST(Icon, FollowsThePalette) {
    const QIcon plus = icon(QStringLiteral("list-add"));
    const QPalette before = QApplication::palette();
    EXPECT_LT(lightnessOf(painted(plus, 22)), 100);
    QApplication::setPalette(QPalette(Qt::white, Qt::black, Qt::gray, Qt::black, Qt::darkGray, Qt::white,
                                      Qt::white, Qt::black, Qt::black));
    EXPECT_GT(lightnessOf(painted(plus, 22)), 200);
    QApplication::setPalette(before);
    EXPECT_LT(lightnessOf(painted(plus, 22)), 100);
}

TEST(Icon, OfOurOwnIsThere) {
    for (const QIcon& own : {severityIcon(tallyrig::ValidationSeverity::error),
                             severityIcon(tallyrig::ValidationSeverity::warning), successIcon(), checkIcon(),
                             applicationIcon(), icon(QStringLiteral(":/Icons/close.svg"))}) {
        EXPECT_GT(coverage(painted(own, 32)).first, 30);
    }
    EXPECT_EQ(coverage(painted(icon(QStringLiteral("no-such-icon")), 32)).first, 0);
}

}  // namespace
}  // namespace quillon
