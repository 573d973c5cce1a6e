// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/EDIParser.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallyrig {
namespace {

using testing::fields;
using testing::pairs;
using testing::Pairs;

std::vector<Pairs> recordsOf(std::string_view bytes) {
    return pairs(EDIParser::parse(bytes));
}

TEST(EDIReading, GivesOneRecordForEachQSO) {
    const ADIFDocument log = EDIParser::parse(
        "[REG1TEST;1]\r\nTName=Marconi Memorial\r\nTDate=20240302;20240303\r\nPCall=dl1abc\r\n"
        "PWWLo=jo62qm\r\nPExch=B01\r\nPBand=144 MHz\r\nMOpe1=dl1abc\r\nMOpe2=\r\nMOpe3=dl2xyz\r\n"
        "CQSOs=2;1\r\n[Remarks]\r\nSunny; all day\r\n[QSORecords;2]\r\n"
        "240302;1405;ok1kim/p;2;599;001;579;014;;jn79or;312;;N;N;\r\n"
        "240303;0731;DK5EW;1;59;1002;;;;;0;;;;D\r\n[END;Quick]\r\n");
    EXPECT_EQ(log.headerComment(), "");
    EXPECT_TRUE(log.headerFields().empty());
    ASSERT_EQ(log.records().size(), 2U);
    EXPECT_EQ(pairs(log.records()[0]),
              fields("QSO_DATE=20240302 | TIME_ON=140500 | CALL=OK1KIM/P | MODE=CW | RST_SENT=599 | STX=1 | "
                     "RST_RCVD=579 | SRX=14 | GRIDSQUARE=JN79OR | BAND=2M | STATION_CALLSIGN=DL1ABC | "
                     "MY_GRIDSQUARE=JO62QM | CONTEST_ID=Marconi Memorial | OPERATOR=DL1ABC,DL2XYZ"));
    EXPECT_EQ(pairs(log.records()[1]),
              fields("QSO_DATE=20240303 | TIME_ON=073100 | CALL=DK5EW | MODE=SSB | RST_SENT=59 | STX=1002 | "
                     "BAND=2M | STATION_CALLSIGN=DL1ABC | MY_GRIDSQUARE=JO62QM | CONTEST_ID=Marconi Memorial "
                     "| OPERATOR=DL1ABC,DL2XYZ"))
        << "what is empty gives no field";
}

TEST(EDIColumns, BecomeFieldsOneByOne) {
    const std::pair<std::string, std::string> cases[] = {
        {"240302;1200;DL1ABC", ""},
        {"240302;1200;DL1ABC;", "QSO_DATE=20240302 | TIME_ON=120000 | CALL=DL1ABC | MODE=SSB"},
        {" 240302\t; 1200 ; dl1abc\u00A0; 2 ", "QSO_DATE=20240302 | TIME_ON=120000 | CALL=DL1ABC | MODE=CW"},
        {";;stra\u00DFe;5", "CALL=STRASSE | MODE=AM"},
        {"24-03-02;12:00;;6", "QSO_DATE=20240302 | TIME_ON=120000 | MODE=FM"},
        {"20240302;120059;;7", "QSO_DATE=20240302 | TIME_ON=120059 | MODE=FT8"},
        {"2403;120;;8", "QSO_DATE=2403 | TIME_ON=120 | MODE=RTTY"},
        {"date;time;;9", "MODE=SSTV"},
        {"٢٤٠٣٠٢;١٢٠٠;;0", "QSO_DATE=20٢٤٠٣٠٢ | TIME_ON=١٢٠٠00 | MODE=SSB"},
        {";;;3;;;;;XX;", "MODE=SSB"},
        {";;;4;;;;;;jo62\u00E4;1;2", "MODE=SSB | GRIDSQUARE=JO62\u00C4"},
        {";;;12;599a;;5x9;", "MODE=SSB | RST_SENT=599a | RST_RCVD=5x9"},
        {";;;;;007;;000", "MODE=SSB | STX=7 | SRX=0"},
        {";;;;;12a;;1,5", "MODE=SSB | STX=0 | SRX=0"},
        {";;;;;-003;;+4", "MODE=SSB | STX=-3 | SRX=4"},
        {";;;;;9223372036854775807;;9223372036854775808", "MODE=SSB | STX=9223372036854775807 | SRX=0"}};
    for (const auto& [line, expected] : cases) {
        const auto record = EDIParser::record(line, {});
        EXPECT_EQ(record ? pairs(*record) : Pairs{}, fields(expected)) << line;
    }
}

TEST(EDIHeaderKeys, GoIntoEveryRecord) {
    const std::pair<std::string, std::string> cases[] = {
        {"\t PCall \t= dl1abc\t", " | STATION_CALLSIGN=DL1ABC"},
        {"=DL1ABC\nPCall:DL1ABC", ""},
        {"PCall=DL1ABC\nPCALL=", ""},
        {"PExch=jo62qm", " | MY_GRIDSQUARE=JO62QM"},
        {"PWWLo=jo62qm\nPExch=12", " | MY_GRIDSQUARE=JO62QM"},
        {"PWWLo=\nPExch=JO62QM", ""},
        {"TName= A = b ", " | CONTEST_ID=A = b"},
        {"PBand=145 MHz", " | BAND=145 MHz"},
        {"PBand= 1,3 ghz ", " | BAND=23CM"},
        {"PBand=2m ", " | BAND=2m"},
        {"MOpe2=dl2abc\nMOpe1= dl1abc \nMOpe9=dl9abc\nMOpe8=dl8abc", " | OPERATOR=DL1ABC,DL2ABC,DL8ABC"},
        {"[Remarks]\nPCall=DL1ABC", " | STATION_CALLSIGN=DL1ABC"},
        {"TName=a;b;;", " | CONTEST_ID=a;b;;"}};
    for (const auto& [header, common] : cases) {
        const std::vector<Pairs> expected = {fields("CALL=X | MODE=SSB" + common)};
        // Wherever the header stands.
        EXPECT_EQ(recordsOf(header + "\n[QSORecords;1]\n;;X;1\n"), expected) << header;
        EXPECT_EQ(recordsOf("[QSORecords;1]\n;;X;1\n[END]\n" + header), expected) << header;
    }
}

TEST(EDIDates, TakeTheCenturyOfTheFirstDay) {
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"TDate=20240302;20240303", "240302", "20240302"},
        {"TDate=19991231;20000101", "991231", "19991231"},
        {"TDate=19991231;20000101", "000101", "19000101"},
        {"TDate=2116-05-07", "160507", "21160507"},
        {"TDate= 1899", "990102", "18990102"},
        {"TDate=199;19990101", "990102", "20990102"},
        {"", "990102", "20990102"},
        {"TDate=19991231", "9912311", "9912311"}};
    for (const auto& [tDate, column, date] : cases) {
        EXPECT_EQ(recordsOf(tDate + "\n[QSORecords;1]\n" + column + ";;;1"),
                  (std::vector<Pairs>{{{"QSO_DATE", date}, {"MODE", "SSB"}}}))
            << tDate << ' ' << column;
    }
}

TEST(EDISections, DecideWhatIsData) {
    const std::pair<std::string, std::string> cases[] = {
        {";;A;1\n;;B;1", ""},
        {"[QSORecords;2]\n;;A;1\n;;B;1", "A B"},
        {"[qsorecords\n;;A;1", "A"},
        {"[QSORecord\u017F\n;;A;1", "A"},  // the long s is an S in upper case
        {"[QSO Records]\n;;A;1", ""},
        {"[QSORecords;1]\n;;A;1\n[END;x]\n;;B;1", "A"},
        {"[QSORecords;1]\n;;A;1\n[\n;;B;1\n[QSORecordsX\n;;C;1", "A C"},
        {" [QSORecords;1]\n;;A;1", ""},
        {"x[QSORecords;1]\n;;A;1", ""},
        {"[QSORecords;1]\n;;A;1\n [END]\n;;B;1", "A B"},
        {"[QSORecords;1]\n;;A;1 [END]\n;;B;1", "A B"},
        {"[QSORecords;1]\n;;A=B;1\nPCall=X;;C;1", "A=B C"},
        {"[QSORecords;1]\n\n \t \n;;A;1\n\u00A0\n;;B;1", "A B"},
        {"[QSORecords;1]\n;;A;1\n;;nothing\n;;B;1", "A B"}};
    for (const auto& [text, calls] : cases) {
        std::string found;
        for (const Pairs& record : recordsOf(text)) {
            found += record.front().second + ' ';
        }
        EXPECT_EQ(found, calls.empty() ? "" : calls + ' ') << text;
    }
}

}  // namespace
}  // namespace tallyrig
