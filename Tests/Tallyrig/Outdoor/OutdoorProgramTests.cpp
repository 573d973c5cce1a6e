// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Outdoor/OutdoorProgram.h"

#include "Tallyrig/Outdoor/SOTAReference.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace tallyrig {
namespace {

struct Case {
    OutdoorProgram program;
    std::vector<std::string_view> valid;
    std::vector<std::string_view> invalid;
};

TEST(OutdoorReference, HasTheFormOfItsProgram) {
    const std::vector<Case> cases = {
        {OutdoorProgram::pota,
         {"K-1234", "US-12345", "k-1234", "\t K-1234 ", "ÄÖ1-0001", "K-१२३४"},
         {"", "-1234", "K-123", "K-123456", "KKKKK-1234", "K1234", "K-12-34", "K-1234\n", "K/A-1234"}},
        {OutdoorProgram::llota, {"CL-0001"}, {"CL-001"}},
        {OutdoorProgram::bota,
         {"B/DL-0001", "B/DL-1", "b/9a-00001"},
         {"DL-0001", "B-0001", "B/-1", "B/", "B/DLDL-1", "B/DL-000001", "B/DL-", "C/DL-1"}},
        {OutdoorProgram::wwff,
         {"DLFF-0001", "9AFF-00001", "FFF-0001"},
         {"FF-0001", "F-0001", "DL-0001", "DLFF-001", "DLDLFF-0001", "DFLF-0001"}},
        {OutdoorProgram::wca, {"HB-1", "HB-00001"}, {"HB-", "HB-000001"}},
        {OutdoorProgram::gma,
         {"DA/AL-001", "G-01", "VK3/VC-00001"},
         {"DA/AL-1", "DA/AL/X-001", "/AL-001", "DA/-001", "DA/ALPS-001", "DA/AL-0000001", "AL001"}},
        {OutdoorProgram::sota, {}, {"HB/BE-001"}}};
    for (const Case& group : cases) {
        for (const std::string_view reference : group.valid) {
            EXPECT_TRUE(isValidReference(group.program, reference)) << reference;
        }
        for (const std::string_view reference : group.invalid) {
            EXPECT_FALSE(isValidReference(group.program, reference)) << reference;
        }
    }
    for (const OutdoorProgram program : outdoorPrograms) {
        EXPECT_EQ(isValidReference(program, referenceExample(program)), isADIF(program));
    }
}

TEST(OutdoorReference, OfASummitHasAssociationRegionAndNumber) {
    for (const std::string_view valid : {"HB/BE-001", "W4G/NG-001", " hb/be-1 ", "G/LD-0001"}) {
        EXPECT_TRUE(SOTAReference::isValid(valid)) << valid;
    }
    for (const std::string_view invalid :
         {"", "HB-001", "HB/BE001", "HB-BE/001", "/BE-001", "HB/-001", "HB/BE-", "HBHB/BE-001", "HB/BERN-001",
          "HB/B-E-001", "HB/A/B-001", "HB/BE-00001", "HB/BE-00A", "HB/BE-001\n"}) {
        EXPECT_FALSE(SOTAReference::isValid(invalid)) << invalid;
    }
}

TEST(OutdoorReference, StandsBetweenCommasInItsOwnCase) {
    EXPECT_EQ(splitReferences(" K-1234 ,, k-0001\t, ,\n"),
              (std::vector<std::string_view>{"K-1234", "k-0001", "\n"}));
    EXPECT_TRUE(splitReferences(" ,").empty());
}

}  // namespace
}  // namespace tallyrig
