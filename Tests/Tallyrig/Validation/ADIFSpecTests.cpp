// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Validation/ADIFSpec317.h"

#include "Tallyrig/Log/LogSupport.h"
#include "Tallyrig/Text/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace tallyrig {
namespace {

TEST(FieldTable, IsLookedUpExactly) {
    for (const char* const name : {"CALL", "ADIF_VER", "S\u212ACC"}) {
        EXPECT_TRUE(ADIFSpec::fields().contains(name)) << name;
    }
    for (const char* const name : {"call", "Call", "", "CALL ", "APP_X", "USERDEF1", "CALLÄ"}) {
        EXPECT_FALSE(ADIFSpec::fields().contains(name)) << name;
        EXPECT_EQ(ADIFSpec::fields().find(name), nullptr) << name;
    }
}

TEST(Tables, HaveTheSizesOfTheStandard) {
    EXPECT_EQ(ADIFSpec::fields().size(), 186U);
    EXPECT_EQ(ADIFSpec::bandFrequencies().size(), 33U);
    std::string sizes;
    for (const auto& row : ADIFSpec::enumerations()) {
        std::vector<std::string_view> values(row.value.begin(), row.value.end());
        std::ranges::sort(values);
        EXPECT_EQ(std::ranges::adjacent_find(values), values.end()) << row.name << " has a value twice";
        sizes += std::to_string(values.size()) + ' ';
    }
    EXPECT_EQ(sizes, "33 4 90 7 256 403 91 20 3 5 5 4 4 3 187 ");
}

TEST(Enumerations, AdmitTheirValuesOnly) {
    // Values that belong to an enumeration, and values that do not, parted by bars.
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"MODE", "FT8|PSK31|THRBX|CW", "ft8|FT4|USB|"},
        {"SUBMODE", "FT4|VARA FM 1200|OLIVIA 4/125|JT9E FAST", "FT8|VARA FM"},
        {"CONTEST_ID", "EU SPRINT|RSGB-21/28-CW|YUDXC|070-160M-SPRINT", "XYZ"},
        {"ARRL_SECTION", "AL|WY|TER|O\u212A", "XX"},
        {"QSL_SENT", "Q", "V"},
        {"BAND", "20M|1.25CM|SUBMM", "20m|20|11M"},
        {"DXCC", "0|72|74|155|157|289|309|312|345|420|499|501|522",
         "73|83|156|290|300|310|313|346|500|523|00|01|-1"}};
    for (const auto& [key, members, others] : cases) {
        const SpecSet* const values = ADIFSpec::enumerations().find(key);
        ASSERT_NE(values, nullptr) << key;
        for (const std::string_view value : text::split(members, '|')) {
            EXPECT_TRUE(values->contains(value)) << key << " " << value;
        }
        for (const std::string_view value : text::split(others, '|')) {
            EXPECT_FALSE(values->contains(value)) << key << " " << value;
        }
    }
    EXPECT_EQ(ADIFSpec::enumerations().find("mode"), nullptr);
}

TEST(BandTable, AscendsWithGapsBetweenTheBands) {
    const auto& bands = ADIFSpec::bandFrequencies();
    double upper = 0;
    for (const auto& row : bands) {
        EXPECT_LT(upper, row.value.lower) << row.name;
        EXPECT_LT(row.value.lower, row.value.upper) << row.name;
        upper = row.value.upper;
    }
    const SpecSet& names = *ADIFSpec::enumerations().find("BAND");
    EXPECT_TRUE(std::ranges::all_of(bands, [&](const auto& row) { return names.contains(row.name); }));
}

TEST(BandTable, TellsTheBandOfAFrequency) {
    const auto bandOf = [](double megahertz) -> std::string {
        for (const auto& row : ADIFSpec::bandFrequencies()) {
            if (row.value.contains(megahertz)) {
                return std::string(row.name);
            }
        }
        return "";
    };
    for (const auto& [frequency, band] : testing::fields(
             "0.1357=2190M | 0.479=630M | 0.4791= | 1.8=160M | 2.0=160M | 5.06=60M | 5.45=60M | 14.35=20M | "
             "14.3501= | 18.0679= | 53.9999=6M | 54.0=6M | 54.0000005= | 54.000001=5M | 69.9=5M | 69.95= | "
             "70=4M | 149= | 1300=23CM | 24250=1.25CM | 299999= | 7500000=SUBMM | 7500000.1=")) {
        EXPECT_EQ(bandOf(std::stod(frequency)), band) << frequency;
    }
}

}  // namespace
}  // namespace tallyrig
