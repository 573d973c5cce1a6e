// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/CrossCheckWords.h"

#include "Tallyrig/CrossCheck/LogWork.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(CrossCheckWords, TellHowFarTheReadingIs) {
    tallyrig::LogWork work;
    EXPECT_EQ(readingText(work), "Logs werden gesucht …");
    work.start(1860);
    work.addDone(1204);
    EXPECT_EQ(readingText(work), "1.204 von 1.860 Logs gelesen …");
}

TEST(CrossCheckWords, RoundAQuotaToOneDecimal) {
    EXPECT_EQ(quotaText(2.0 / 3), "66,7 %");
    EXPECT_EQ(quotaText(1), "100,0 %");
    EXPECT_EQ(quotaText({}), "–");
}

}  // namespace
}  // namespace quillon
