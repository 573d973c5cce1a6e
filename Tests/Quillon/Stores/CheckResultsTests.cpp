// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/CheckResults.h"

#include "Quillon/Support/LogText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

namespace finding = tallyrig::finding;
using tallyrig::ValidationSeverity;

TEST(CheckResults, TellTheWorstSeverityAndAllMessagesOfARecord) {
    const auto records = testing::recordsOf({"A=1", "A=2", "A=3"});
    // The last is about no record that there is.
    const CheckResults results(records, {{2, finding::UnknownBand{"20 m"}},
                                         {1, finding::UnknownMode{"X"}},
                                         {1, finding::MissingRequiredField{"CALL"}},
                                         {3, finding::MissingRequiredField{"CALL"}}});
    EXPECT_EQ(results.severity(records[0].id()), std::nullopt);
    EXPECT_EQ(results.severity(records[1].id()), ValidationSeverity::error);
    EXPECT_EQ(results.severity(records[2].id()), ValidationSeverity::warning);
    EXPECT_EQ(results.messages(records[1].id()),
              (std::vector<std::string>{"Pflichtfeld fehlt: Rufzeichen", "Unbekannter Modus: X"}));
    EXPECT_EQ(results.messages(tallyrig::UUID::fresh()), std::vector<std::string>());
    EXPECT_EQ(results.errorCount(), 2U);
    EXPECT_EQ(results.warningCount(), 2U);
    EXPECT_EQ(results.issues().back().recordIndex, 3U);
    EXPECT_TRUE(results.marksRecords());
    EXPECT_FALSE(CheckResults({}, results.issues()).marksRecords());
}

}  // namespace
}  // namespace quillon
