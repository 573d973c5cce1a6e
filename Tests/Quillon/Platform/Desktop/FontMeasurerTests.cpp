// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Desktop/FontMeasurer.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>

namespace quillon {
namespace {

TEST(MeasuredText, IsAsWideAsTheFontPaintsIt) {
    const FontMeasurer measurer;
    for (const MeasuredFont font : {MeasuredFont::cell, MeasuredFont::label, MeasuredFont::tag}) {
        const QFontMetricsF metrics(fontFor(font));
        for (const char* text : {"", "D", "DL1ABC", "AVAVA", "Tokyo, To.", "JO62qm", "15.01.2024",
                                 "fjord ~ {|}", "Zürich", "日本", "tab\there"}) {
            SCOPED_TRACE(text);
            EXPECT_NEAR(measurer.width(font, text), metrics.horizontalAdvance(QString::fromUtf8(text)), 0.01);
            EXPECT_NEAR(measurer.width(font, text), metrics.horizontalAdvance(QString::fromUtf8(text)), 0.01)
                << "when everything is known already";
        }
    }
}

}  // namespace
}  // namespace quillon
