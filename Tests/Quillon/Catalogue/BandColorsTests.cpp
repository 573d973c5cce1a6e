// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/BandColors.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace quillon {
namespace {

TEST(BandColors, StepAroundTheCircleOfHues) {
    ASSERT_EQ(BandPalette::orderedBands().size(), 33U);
    EXPECT_EQ(BandPalette::orderedBands().front(), "2190M");
    EXPECT_EQ(BandPalette::orderedBands()[8], "20M");
    EXPECT_EQ(BandPalette::orderedBands().back(), "SUBMM");
    const std::pair<const char*, double> cases[] = {
        {"2190m", 0}, {"630M", 0.6180339887}, {"SubMM", 0.7770876384}};
    for (const auto& [band, hue] : cases) {
        const PaletteColor color = BandPalette::color(band);
        ASSERT_TRUE(std::holds_alternative<HueColor>(color)) << band;
        EXPECT_NEAR(std::get<HueColor>(color).hue, hue, 1e-9) << band;
        EXPECT_EQ(std::get<HueColor>(color).saturation, 0.7);
        EXPECT_EQ(std::get<HueColor>(color).brightness, 0.88);
    }
}

TEST(BandColors, AreGrayForWhatIsNoBand) {
    for (const char* const band : {"11M", "", "20 M", "m"}) {
        EXPECT_EQ(BandPalette::color(band), PaletteColor(SystemColor::gray)) << band;
    }
}

TEST(ModeColors, AreFixedForTheUsualModesAndMadeFromTheNameOfOthers) {
    EXPECT_EQ(ModePalette::color("psk31"), PaletteColor(SystemColor::pink));
    const std::pair<const char*, int> cases[] = {{"olivia", 729}, {"", 450}, {"äb", 481}};
    for (const auto& [mode, step] : cases) {
        EXPECT_EQ(ModePalette::color(mode), PaletteColor(HueColor{step / 997.0, 0.6, 0.85})) << mode;
    }
}

}  // namespace
}  // namespace quillon
