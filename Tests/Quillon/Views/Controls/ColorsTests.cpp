// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/Colors.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>

namespace quillon {
namespace {

/// Palettes of desktops: window, base, alternate base, text.
const QColor desktops[][4] = {
    {"#efefef", "#ffffff", "#f7f7f7", "#000000"},
    {"#2a2e32", "#1b1e20", "#232629", "#fcfcfc"},
    {"#222020", "#3d3d3d", "#5c5b5a", "#ffffff"},
};

TEST(Contrast, IsReckonedByTheLightOfBothColors) {
    EXPECT_DOUBLE_EQ(contrast(Qt::black, Qt::white), 21);
    EXPECT_NEAR(contrast(QColor("#767676"), Qt::white), 4.54, 0.01) << "known for the palest readable gray";
    EXPECT_NEAR(contrast(Qt::red, Qt::white), 4.0, 0.01);
}

TEST(Color, StandsOutFromEachGround) {
    const QColor pale("#9acdf2");
    EXPECT_EQ(standingOut(pale, {Qt::black}, shapeContrast), pale) << "what stands out stays";
    const QColor darker = standingOut(pale, {Qt::white, "#dddddd"}, shapeContrast);
    EXPECT_GE(contrast(darker, "#dddddd"), shapeContrast);
    EXPECT_LT(contrast(darker, "#dddddd"), shapeContrast + 0.3) << "no further than needed";
    EXPECT_EQ(standingOut(pale, {Qt::white, Qt::black, "#eeeeee"}, 6), QColor(Qt::black)) << "best of two";
}

TEST(SecondaryText, IsReadableOnEveryDesktop) {
    const QPalette before = QApplication::palette();
    for (const auto& [window, base, alternate, text] : desktops) {
        SCOPED_TRACE(window.name().toStdString());
        QPalette palette(text, window, window, window, window, text, text, base, window);
        palette.setColor(QPalette::AlternateBase, alternate);
        QApplication::setPalette(palette);
        makePaletteReadable();
        const QColor secondary = QApplication::palette().color(QPalette::PlaceholderText);
        for (const QColor& ground : {window, base, alternate}) {
            EXPECT_GE(contrast(secondary, ground), textContrast) << ground.name().toStdString();
        }
        EXPECT_LT(contrast(secondary, window), contrast(text, window)) << "it stands back behind the text";
    }
    QApplication::setPalette(before);
}

TEST(CalmSelection, IsSeenAndReadableOnEveryDesktop) {
    const QWidget list;
    for (const auto& [window, base, alternate, text] : desktops) {
        SCOPED_TRACE(window.name().toStdString());
        QPalette palette(text, window, window, window, window, text, text, base, window);
        palette.setColor(QPalette::Highlight, "#3daee9");
        calmSelection(palette, &list);
        const QColor ground = palette.color(QPalette::Highlight);
        EXPECT_GE(contrast(palette.color(QPalette::HighlightedText), ground), textContrast);
        EXPECT_GE(contrast(ground, base), 1.2) << "told from the other rows";
        EXPECT_GE(contrast(ground, "#3daee9"), 1.5) << "told from what has the keyboard";
    }
}

}  // namespace
}  // namespace quillon
