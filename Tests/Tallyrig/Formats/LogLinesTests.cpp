// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/LogLines.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace tallyrig {
namespace {

using testing::logOf;

TEST(TimeOrder, IsThatOfTheTextsAndStable) {
    const ADIFDocument log = logOf({"N=1 | QSO_DATE=20240116", "N=2 | QSO_DATE=20240115 | TIME_ON=1200",
                                    "N=3 | TIME_ON=2024011512", "N=4 | TIME_ON=1200 | QSO_DATE=20240115",
                                    "N=5", "N=6 | QSO_DATE=2024011512", "N=7 | QSO_DATE=ö",
                                    "N=8 | QSO_DATE=o\u0308", "N=9 | QSO_DATE=z"});
    std::string order;
    for (const ADIFRecord& record : inTimeOrder(log.records())) {
        order += record.valueOrEmpty("N");
    }
    EXPECT_EQ(order, "536241978");
}

TEST(FirstValue, IsSoughtRecordByRecord) {
    const ADIFDocument log = logOf({"A= | A=hidden", "B=b", "A=a"});
    EXPECT_EQ(firstValue(log, {"A", "B"}), "b");
    EXPECT_EQ(firstValue(log, {"A"}), "a");
    EXPECT_EQ(firstValue(log, {"C"}), "");
}

}  // namespace
}  // namespace tallyrig
