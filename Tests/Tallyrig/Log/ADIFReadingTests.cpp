// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Log/LogSupport.h"
#include "Tallyrig/Log/ReadingSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallyrig {
namespace {

using namespace std::string_literals;
using testing::notesIn;
using testing::pairs;

/// What is read of a file: its records as "NAME=value NAME=value", one in a line, and below them the notes.
std::string reading(const std::string& file) {
    const ReadDocument read = ADIFParser::read(file);
    std::string text;
    for (const testing::Pairs& record : pairs(read.document)) {
        for (const auto& [name, value] : record) {
            text += name + "=" + value + " ";
        }
        text += "\n";
    }
    return text + notesIn(read.report);
}

TEST(DamagedADI, IsKeptAndNoted) {
    const std::pair<std::string, std::string> cases[] = {
        // Lengths.
        {"<NAME:4>Frieda<EOR>", "NAME=Frie \nlengthTooShort at 0 in 1 #0 NAME =Frieda"},
        {"<NAME:5> Frieda\n<X:0><EOR>", "NAME= Frie X= \nlengthTooShort at 0 in 1 #0 NAME =Frieda"},
        {"<NAME:3>Emma<EOR>", "NAME=Emm \nlengthTooShort at 0 in 1 #0 NAME =Emma +"},
        {"\n\r\n<NAME:6>J\xC3\xB6rg B\xC3\xA4r<EOR>",
         "NAME=J\u00F6rg  \nlengthTooShort at 3 in 3 #0 NAME =J\u00F6rg B\u00E4r"},
        {"<NAME:5>Emma<A:1>1<B:1>2<EOR>", "NAME=Emma< B=2 \nlengthTooLong at 0 in 1 #0 NAME =Emma +"},
        {"<NAME:8>Emma<A:1>1<EOR>", "NAME=Emma<A:1 \nlengthTooLong at 0 in 1 #0 NAME =Emma"},
        {"<NAME:13>Emma<EOR><A:1>1<EOR>", "NAME=Emma<EOR><A:1 \nlengthTooLong at 0 in 1 #0 NAME =Emma"},
        {"<NOTES:9>Say <A:1> <EOR>", "NOTES=Say <A:1> \ntagInValue at 0 in 1 #0 NOTES =Say"},
        {"<NAME>Emma<EOR>", "NAME= \nlengthMissing at 0 in 1 #0 NAME =Emma"},
        {"<NAME: >Emma<EOR>", "NAME= \nlengthMissing at 0 in 1 #0 NAME =Emma"},
        {"<NAME:4x>Emma<A:-1> <EOR>",
         "NAME= A= \nlengthNoNumber at 0 in 1 #0 NAME =Emma\nlengthNoNumber at 13 in 1 #0 A"},
        {"<A:1>1<EOR>\r<NAME:99>Emma\r<EOR>",
         "A=1 \nNAME=Emma\r<EOR> \nlengthPastEnd at 12 in 2 #1 NAME =Emma\n"
         "fieldsBehindLastQSO at 12 in 2 #1"},
        // Tags.
        {"<A:1>1<EOR>\n<CALL:5", "A=1 \ntagWithoutEnd at 12 in 2"},
        {"<A:5DL1AB <B:1>2<C:1>3<EOR>", "A= C=3 \ntagInTag at 0 in 1 #0 A"},
        {"<A:1>1\nname:4>Emma\n<EOR>", "A=1 \ntagWithoutBegin at 7 in 2 #0 NAME"},
        // Records.
        {"<CALL:1>A<CALL:1>B<EOR><CALL:1>C",
         "CALL=A CALL=B \nCALL=C \ncallTwice at 9 in 1 #0\nrecordWithoutEnd at 23 in 1 #1"},
        {"<A:1>1<EOR><EOR>\n<EOR><LAST>",
         "A=1 \n\n\nLAST= \nemptyRecord at 11 in 1 #1 x 2\n"
         "fieldsBehindLastQSO at 22 in 2 #3"},
        {"A log <B:1>2<EOH><A:1>1<EOR>\n<CALL:1>X<EOH>",
         "A=1 \nheaderAgain at 29 in 2\ncallInHeader at 29 in 2"},
        // Text without a place.
        {" A log\n<A:1>1 // one<B:1>2\n<EOR> two <C:1>3<EOR>\nthe end\n",
         "A=1 B=2 \nC=3 \ntextInFront at 1 in 1\ntextBetweenFields at 14 in 2 #0 x 2\n"
         "textBehindLastRecord at 49 in 4"},
        {"no log", "textInFront at 0 in 1"},
        {"By <me@home>, 2024\n<EOH><A:1>1<EOR>", "A=1 \ntextBetweenFields at 3 in 1"},
        // Bytes.
        {"<A:1>\xC4<EOR><A:2>\xFC\x80<EOR>",
         "A=\u00C4 \nA=\u00FC\u0080 \nlatin1 at 5 in 1 x 2\nwindowsCharacters at 17 in 1"},
        {"<A:3>1\0\0<EOR><A:3>\uFFFD<EOR>"s,
         "A=1\0\0 \nA=\uFFFD \nnulBytes at 6 in 1 x 2\nlostCharacters at 18 in 1"s}};
    for (const auto& [file, expected] : cases) {
        EXPECT_EQ(reading(file), expected) << file;
        // The same where the reader has learned from a record before it what to expect.
        const ReadDocument read = ADIFParser::read("c<EOH><NAME:2>Al<EOR>" + file);
        EXPECT_EQ(read.document, ADIFParser::parse("c<EOH><NAME:2>Al<EOR>" + file)) << file;
    }
}

TEST(LengthsInCharacters, AreToldOnceForTheFile) {
    const std::string file =
        "<NAME:6>M\u00FCller<QTH:4>K\u00F6ln \n<EOR><NAME:2>\u00D6BC<EOR><NAME:3>\u00C4 "
        "B\n<X:1>\U0001F600<EOR>"
        "<NAME:3>J\u00F6<EOR>";
    EXPECT_EQ(notesIn(ADIFParser::read(file).report),
              "lengthsInCharacters at 0 in 1 #0 x 4 NAME =M\u00FCller +\nlengthTooShort at 34 in 2 #1 NAME "
              "=\u00D6BC");
    EXPECT_EQ(ADIFParser::read(file).report.repair(), ReadingRepair::lengthsInCharacters);
}

TEST(SoundADI, GivesNoNotes) {
    for (const std::string file :
         {"", " \n", "Log, 1 > 0\n<ADIF_VER:5>3.1.7<EOH>\n<NAME:6>J\u00F6rg \n<X:0:S> \t<Y:>\u00A0<eor>\n",
          "<NOTES:18>1 < 2, <b>bold</b><EOR> <APP_X-Y.Z:3:S>a>b<EOR>\n\x0B\f",
          "<CALL:1>A<CALL_X:1>B< eor >"}) {
        EXPECT_EQ(notesIn(ADIFParser::read(file).report), "") << file;
    }
}

TEST(ReadingReport, StaysSmallWhateverTheFile) {
    std::string file;
    for (int line = 0; line < 2000; ++line) {
        file += "<" + std::string(500, 'N') + ":1>" + std::string(500, '\x1B') + "\n<EOR>\n";
    }
    const ReadingReport report = ADIFParser::read(file).report;
    ASSERT_EQ(report.notes().size(), ReadingReport::mostNotes(ReadingKind::lengthTooShort));
    EXPECT_EQ(report.placeCount(ReadingSeverity::error), 2000U);
    EXPECT_EQ(report.notes().back().count, 2001 - report.notes().size());
    std::string escapes;
    for (std::size_t sign = 0; sign < ReadingReport::mostCharacters; ++sign) {
        escapes += "\u241B";
    }
    EXPECT_EQ(report.notes()[0].value, escapes + "\u2026");
    EXPECT_EQ(report.notes()[0].field, std::string(ReadingReport::mostCharacters, 'N') + "\u2026");
    EXPECT_EQ(report.notes()[1].line, 3U);
}

}  // namespace
}  // namespace tallyrig
