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
    const std::pair<const char*, double> cases[] = {{"2190m", 0},
                                                    {"630M", 0.6180339887},
                                                    {"560M", 0.2360679774},
                                                    {"17M", 0.5623058983},
                                                    {"SubMM", 0.7770876384}};
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

TEST(ModeColors, AreFixedForTheUsualModes) {
    const std::pair<SystemColor, std::vector<const char*>> cases[] = {
        {SystemColor::blue, {"SSB", "usb", "LSB"}},
        {SystemColor::orange, {"CW"}},
        {SystemColor::green, {"ft8"}},
        {SystemColor::teal, {"FT4"}},
        {SystemColor::purple, {"RTTY"}},
        {SystemColor::pink, {"PSK", "psk31", "PSK63"}},
        {SystemColor::red, {"FM"}},
        {SystemColor::brown, {"AM"}},
        {SystemColor::indigo, {"JT65"}},
        {SystemColor::cyan, {"JT9"}},
        {SystemColor::mint, {"MFSK"}},
        {SystemColor::gray, {"DIGITAL", "data"}},
    };
    for (const auto& [color, modes] : cases) {
        for (const char* const mode : modes) {
            EXPECT_EQ(ModePalette::color(mode), PaletteColor(color)) << mode;
        }
    }
}

TEST(ModeColors, AreMadeFromTheNameOfOtherModes) {
    const std::pair<const char*, int> cases[] = {
        {"OLIVIA", 729}, {"olivia", 729}, {"", 450}, {"HELL", 669}, {"äb", 481}};
    for (const auto& [mode, step] : cases) {
        EXPECT_EQ(ModePalette::color(mode), PaletteColor(HueColor{step / 997.0, 0.6, 0.85})) << mode;
    }
}

}  // namespace
}  // namespace quillon
