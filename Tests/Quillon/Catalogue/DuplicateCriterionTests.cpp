// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/DuplicateCriterion.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

TEST(DuplicateCriteria, AreFoundByTheTextUnderWhichTheyAreStored) {
    for (const DuplicateCriterion criterion : duplicateCriteria) {
        EXPECT_EQ(duplicateCriterionStoredAs(storedValue(criterion)), criterion) << label(criterion);
    }
    EXPECT_EQ(keyFields(duplicateCriterionOrDefault("call_band")),
              (std::vector<std::string>{"CALL", "BAND"}));
}

TEST(DuplicateCriteria, FallBackOnCallBandAndMode) {
    for (const char* const stored : {"", "CALL", "call_mode", "call "}) {
        EXPECT_FALSE(duplicateCriterionStoredAs(stored)) << stored;
        EXPECT_EQ(duplicateCriterionOrDefault(stored), DuplicateCriterion::callBandMode) << stored;
    }
}

}  // namespace
}  // namespace quillon
