#include "Quillon/Catalogue/DuplicateCriterion.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

TEST(DuplicateCriteria, AreStoredAndOfferedAsTheyAreKnown) {
    struct Case {
        const char* stored;
        std::vector<std::string> fields;
        const char* label;
    };
    const Case cases[] = {
        {"call_band_mode", {"CALL", "BAND", "MODE"}, "Call + Band + Modus"},
        {"call_band", {"CALL", "BAND"}, "Call + Band"},
        {"call_band_mode_date", {"CALL", "BAND", "MODE", "QSO_DATE"}, "Call + Band + Modus + Datum"},
        {"call", {"CALL"}, "Nur Call"},
    };
    ASSERT_EQ(std::size(cases), duplicateCriteria.size());
    for (std::size_t i = 0; i < duplicateCriteria.size(); ++i) {
        const DuplicateCriterion criterion = duplicateCriteria[i];
        EXPECT_EQ(storedValue(criterion), cases[i].stored);
        EXPECT_EQ(keyFields(criterion), cases[i].fields);
        EXPECT_EQ(label(criterion), cases[i].label);
        EXPECT_EQ(duplicateCriterionOrDefault(cases[i].stored), criterion);
    }
}

TEST(DuplicateCriteria, FallBackOnCallBandAndMode) {
    for (const char* const stored : {"", "CALL", "call_mode", "call "}) {
        EXPECT_FALSE(duplicateCriterionStoredAs(stored)) << stored;
        EXPECT_EQ(duplicateCriterionOrDefault(stored), DuplicateCriterion::callBandMode) << stored;
    }
}

}  // namespace
}  // namespace quillon
