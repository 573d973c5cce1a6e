// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/EDIParser.h"
#include "Tallyrig/Log/ReadingSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace tallyrig {
namespace {

std::string reading(const std::string& log) {
    const ReadDocument read = EDIParser::read(log);
    std::string text;
    for (const ADIFRecord& record : read.document.records()) {
        text += record.valueOrEmpty("CALL");
        text += " ";
    }
    return text + "\n" + testing::notesIn(read.report);
}

const std::string good = "240302;1405;DL1AB;1;59;001;59;002;;JN58SD;430;;N;;\n";     // 51 bytes.
const std::string duplicate = "240302;1406;DL1AB;1;59;002;59;003;;JN58SD;0;;;;D\n";  // 49 bytes.

TEST(DamagedEDI, IsKeptAndNoted) {
    const std::pair<std::string, std::string> cases[] = {
        // QSO lines.
        {"[QSORecords;2]\n240302;1405;DL1AB\n" + good, "DL1AB \ntooFewColumns at 15 in 2 3/4"},
        {"[QSORecords;3]\n" + good + "240302;1405;DL2AB;1;59\n240302;1405; ;1;59;001;59;002;;JN58SD\n",
         "DL1AB DL2AB  \nfewerColumns at 66 in 3 #1 5/10\ncallMissing at 89 in 4 #2"},
        {good + "[QSORecords]\n" + good + "[Remarks]\n" + good + "see you; all\n",
         "DL1AB \nlineLeftOut at 0 in 1\nlineLeftOut at 125 in 5"},
        // What the file says of its QSOs.
        {"[QSORecords;3]\n" + good + "[qsorecords;1]\n" + good, "DL1AB DL1AB \ncountDisagrees at 0 in 1 2/4"},
        {"CQSOs=3;1\nCQSOP=500\n[QSORecords;2]\n" + good + duplicate,
         "DL1AB DL1AB \nclaimDisagrees at 0 in 1 CQSOs 1/3\nclaimDisagrees at 10 in 2 CQSOP 430/500"},
        // Header lines.
        {"PCall=DL1AB\nPCall=DL2AB\nRName=a\nRName=b\n[QSORecords;1]\n" + good,
         "DL1AB \nheaderTwice at 12 in 2 PCALL =DL1AB"},
        {"J\xE4ger\n[REG1TEST;1]\nTName\n[QSORecords;1]\n" + good + ";\n",
         "DL1AB \ntextLeftOut at 0 in 1 x 2\nlatin1 at 1 in 1\ncountDisagrees at 25 in 4 2/1\n"
         "tooFewColumns at 91 in 6 2/4"},
    };
    for (const auto& [log, expected] : cases) {
        EXPECT_EQ(reading(log), expected) << log;
    }
}

TEST(SoundEDI, GivesNoNotes) {
    for (const std::string claims : {"CQSOs=2;1\nCQSOP=430\n", "CQSOs=1;1\nCQSOP=\n", "CQSOs=;\n"}) {
        EXPECT_EQ(reading("[REG1TEST;1]\r\nPCall=DL2AB\r\nRHBBS=\r\n" + claims + "[Remarks]\nFun; really.\n" +
                          "[QSORecords;2]\n" + good + duplicate + "[END;by hand]\n"),
                  "DL1AB DL1AB \n");
    }
}

}  // namespace
}  // namespace tallyrig
