// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Outdoor/OutdoorExporter.h"

#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {
namespace {

using testing::logOf;

OutdoorExportFiles filesOf(const ADIFDocument& log, OutdoorProgram program = OutdoorProgram::pota) {
    return OutdoorExporter{program, "Quillon", "1.0", "3.1.7"}.files(log, "20240601 120000");
}

std::vector<std::string> names(const OutdoorExportFiles& files) {
    std::vector<std::string> names;
    for (std::size_t index = 0; index < files.size(); ++index) {
        names.push_back(files[index].filename);
    }
    return names;
}

TEST(OutdoorExport, WritesAFileForEachReference) {
    const ADIFDocument log = logOf({"CALL=A1A | QSO_DATE=20240502 | MY_SIG_INFO=B/9A-0002,B/9A-0001",
                                    "CALL=B1B | MY_SIG=BOTA | QSO_DATE= 20240501 | MY_SIG_INFO= B/9A-0001",
                                    "CALL=C1C | QSO_DATE=20240101 | OPERATOR=x"});
    const OutdoorExportFiles files = filesOf(log, OutdoorProgram::bota);
    ASSERT_EQ(files.size(), 2U);
    const OutdoorExportFile second = files[1];
    EXPECT_EQ(files[0].reference, "B/9A-0002");
    EXPECT_EQ(files[0].qsoCount, 1U);
    EXPECT_EQ(second.reference, "B/9A-0001");
    EXPECT_EQ(second.filename, "UNKNOWN@B-9A-0001 20240501.adi");
    EXPECT_EQ(second.qsoCount, 2U);
    EXPECT_EQ(second.content,
              "ADIF-Export erstellt mit Quillon\n"
              "<ADIF_VER:5>3.1.7 <PROGRAMID:7>Quillon <PROGRAMVERSION:3>1.0 "
              "<CREATED_TIMESTAMP:15>20240601 120000 <EOH>\n\n"
              "<CALL:3>A1A <QSO_DATE:8>20240502 <MY_SIG_INFO:9>B/9A-0001 <MY_SIG:6>WWBOTA <EOR>\n"
              "<CALL:3>B1B <MY_SIG:6>WWBOTA <QSO_DATE:9> 20240501 <MY_SIG_INFO:9>B/9A-0001 <EOR>\n");
    EXPECT_EQ(testing::pairs(log)[0].back().second, "B/9A-0002,B/9A-0001") << "the log itself stays";
}

TEST(OutdoorExport, NamesAFileForTheCallInItsFirstQSO) {
    EXPECT_EQ(names(filesOf(logOf({"STATION_CALLSIGN= dl1abc/p | OPERATOR=x | MY_SIG_INFO=K-0001",
                                   "OPERATOR=dl2xyz | QSO_DATE=20240501 | MY_SIG_INFO=K-0001,k-0001",
                                   "STATION_CALLSIGN= | OPERATOR=x | QSO_DATE= | MY_SIG_INFO=K-2"}))),
              (std::vector<std::string>{"DL1ABC/P@K-0001 20240501.adi", "DL2XYZ@k-0001 20240501.adi",
                                        "@K-2 .adi"}));
}

TEST(OutdoorExport, HasNoFilesWithoutReferencesAndForSOTA) {
    EXPECT_TRUE(filesOf(logOf({"CALL=A | MY_SIG_INFO= ,", "CALL=B"})).empty());
    EXPECT_TRUE(filesOf(logOf({"MY_SIG_INFO=K-0001"}), OutdoorProgram::sota).empty());
}

TEST(OutdoorExport, FilesAQSOUnderEachOfAThousandReferences) {
    std::string list;
    for (int number = 1000; number < 2000; ++number) {
        list += "K-" + std::to_string(number) + ',';
    }
    const ADIFDocument log = testing::document({{{"CALL", "A1A"}, {"MY_SIG_INFO", list + "K-1000"}}});
    const OutdoorExportFiles files = filesOf(log);
    ASSERT_EQ(files.size(), 1000U);
    EXPECT_EQ(files[0].qsoCount, 2U) << "named twice";
    EXPECT_EQ(testing::pairs(ADIFParser::parse(std::string_view(files[999].content))),
              (std::vector<testing::Pairs>{testing::fields("CALL=A1A | MY_SIG_INFO=K-1999 | MY_SIG=POTA")}));
}

}  // namespace
}  // namespace tallyrig
