// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/ADXParser.h"
#include "Tallyrig/Log/ReadingSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace tallyrig {
namespace {

const std::string start = "<ADX><RECORDS>\n";                      // 15 bytes.
const std::string good = "<RECORD><CALL>DL1AB</CALL></RECORD>\n";  // 36 bytes.
const std::string end = "</RECORDS></ADX>\n";

/// What is read of a file: its records as "NAME=value NAME=value", one in a line, and below them the notes.
std::string reading(const std::string& file) {
    const ReadDocument read = ADXParser::read(file);
    std::string text;
    for (const ADIFRecord& record : read.document.records()) {
        for (const ADIFFieldView field : record.fields()) {
            text += std::string(field.name) + "=" + std::string(field.value) + " ";
        }
        text += "\n";
    }
    return text + testing::notesIn(read.report);
}

TEST(DamagedADX, SaysWhereAndWhyTheXMLEnds) {
    const std::pair<std::string, XMLFault> cases[] = {
        {"<RECORD><NAME>A & B</NAME></RECORD>", XMLFault::ampersand},
        {"<RECORD><NAME>A\x1B</NAME></RECORD>", XMLFault::invalidCharacter},
        {"<RECORD><NAME>A\xE4"
         "B</NAME></RECORD>",
         XMLFault::invalidCharacter},
        {"<RECORD><NAME>A</CALL></RECORD>", XMLFault::wrongClosingTag},
        {"<RECORD><NAME>&uuml;</NAME></RECORD>", XMLFault::unknownEntity},
        {"<RECORD><NAME A='1' A='2'></NAME></RECORD>", XMLFault::attributeTwice}};
    for (const auto& [damaged, fault] : cases) {
        const std::string file = start + good + damaged + "\n" + good + good + end;
        const ReadDocument read = ADXParser::read(file);
        EXPECT_EQ(read.document.records().size(), 1U) << file;
        ASSERT_EQ(read.report.notes().size(), 1U) << file;
        const ReadingNote& note = read.report.notes()[0];
        EXPECT_EQ(note.kind, ReadingKind::xmlEnded) << file;
        EXPECT_EQ(note.fault, fault) << file;
        EXPECT_EQ(note.line, 3U) << file;
        EXPECT_EQ(note.number, 3U) << "the record at hand and those behind it: " << file;
    }
    EXPECT_EQ(reading(start + good + "<RECORD><NAME>A & B"), "CALL=DL1AB \nxmlEnded at 67 in 3 1/0");
    const auto faultOf = [](const std::string& file) {
        const ReadDocument read = ADXParser::read(file);
        return read.report.notes().empty() ? XMLFault::other : read.report.notes()[0].fault;
    };
    EXPECT_EQ(faultOf(start + good), XMLFault::fileEnds);
    EXPECT_EQ(faultOf(start + good + "<REC"), XMLFault::fileEnds);
    EXPECT_EQ(faultOf(start + good + end + start), XMLFault::textBehindRoot);
    EXPECT_EQ(faultOf("<?xml version='1.0' encoding='EBCDIC-9'?>" + start), XMLFault::unknownEncoding);
}

TEST(DamagedADX, NamesWhatHasNoPlace) {
    const std::pair<std::string, std::string> cases[] = {
        {start + "<RECORD><CALL>A</CALL><Shoe>43</Shoe></RECORD><RECORD><Shoe/></RECORD>" + end,
         "CALL=A SHOE=43 \nSHOE= \nunknownElement at 37 in 2 #0 x 2 Shoe"},
        {start + "<QTH>Ulm</QTH>" + good + "<X> </X>" + end, "CALL=DL1AB \nelementOutside at 15 in 2 QTH"},
        {start + "<RECORD><NOTES>a <b>c</b> d</NOTES></RECORD>" + end,
         "B=c NOTES=c d \nunknownElement at 32 in 2 #0 b\nelementInside at 32 in 2 #0 NOTES"},
        {start + "<RECORD><CALL>A</CALL><RECORD><CALL>B</CALL></RECORD></RECORD>" + end,
         "CALL=B \n\nrecordInRecord at 37 in 2 #0"},
    };
    for (const auto& [file, expected] : cases) {
        EXPECT_EQ(reading(file), expected) << file;
    }
}

TEST(SoundADX, GivesNoNotes) {
    const std::string file =
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\r\n<adx><header><ADIF_VER>3.1.7</ADIF_VER>"
        "<USERDEF FIELDID=\"1\">EPC</USERDEF></header><records><record><name>J\xF6rg</name>"
        "<APP PROGRAMID=\"X\" FIELDNAME=\"Y\">1</APP><USERDEF FIELDNAME=\"EPC\">2</USERDEF>"
        "<APP_X_Z>3</APP_X_Z></record></records></adx>\n";
    EXPECT_EQ(reading(file), "NAME=J\u00F6rg APP_X_Y=1 EPC=2 APP_X_Z=3 \n");
}

}  // namespace
}  // namespace tallyrig
