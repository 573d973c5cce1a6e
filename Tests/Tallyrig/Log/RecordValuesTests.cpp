// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/RecordValues.h"

#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Log/ADIFWriter.h"
#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {
namespace {

TEST(RecordValues, AreThoseOfEachRecordWhateverTheOneBeforeWasLike) {
    const std::string_view qsos[] = {
        "CALL=A | BAND=20M | MODE=CW",
        "CALL=B | BAND=40M | MODE=SSB",
        "CALL=C | MODE=FM | BAND=2M",
        "CALL=D | band=first | BAND=second",
        "MODE=CW | NAME=x | CALL=E",
        "CALL= | NAME=x | QTH=y",
        "CALL=F | BAND=6M",
        "CALL=G | BAND=6M | MODE=FM | A=1 | B=2 | C=3 | D=4 | E=5 | F=6 | G=7",
        "CALL=H | BAND=6M | A=1 | B=2 | C=3 | D=4 | E=5 | F=6 | G=7 | MODE=AM",
        "NAME=only",
    };
    std::vector<testing::Pairs> records;
    for (int round = 0; round < 2; ++round) {
        for (const std::string_view qso : qsos) {
            records.push_back(testing::fields(qso));
        }
    }
    const std::string text = ADIFWriter().write(testing::document(records));
    for (const ADIFDocument& log : {testing::document(records), ADIFParser::parse(text)}) {
        RecordValues few{"CALL"};
        RecordValues all{"call", "BAND", "MODE"};
        for (const ADIFRecord& record : log.records()) {
            few.read(record);
            all.read(record);
            EXPECT_EQ(few[0], record["CALL"]);
            EXPECT_EQ(all[0], record["CALL"]);
            EXPECT_EQ(all[1], record["BAND"]) << record.valueOrEmpty("CALL");
            EXPECT_EQ(all[2], record["MODE"]) << record.valueOrEmpty("CALL");
        }
    }
}

}  // namespace
}  // namespace tallyrig
