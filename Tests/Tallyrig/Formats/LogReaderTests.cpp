// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/LogReader.h"

#include "Tallyrig/Log/ReadingSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallyrig {
namespace {

/// ASCII text in UTF-16 with a byte order mark.
std::string inUTF16(const std::string& text, bool isLittleEndian) {
    std::string bytes = isLittleEndian ? "\xFF\xFE" : "\xFE\xFF";
    for (const char c : text) {
        bytes += isLittleEndian ? std::string{c, '\0'} : std::string{'\0', c};
    }
    return bytes;
}

TEST(LogReader, ReadsEachFormatInEachEncoding) {
    const std::pair<LogFormat, std::string> cases[] = {
        {LogFormat::adif, "A log\n<EOH><CALL:5>DL1AB<EOR>"},
        {LogFormat::adx, "<ADX><RECORDS><RECORD><CALL>DL1AB</CALL></RECORD></RECORDS></ADX>"},
        {LogFormat::cabrillo,
         "START-OF-LOG: 3.0\nQSO: 14000 CW 2024-03-02 1405 DL2AB 599 001 DL1AB 599 002\nEND-OF-LOG:\n"},
        {LogFormat::edi, "[REG1TEST;1]\r\n[QSORecords;1]\r\n240302;1405;DL1AB;1\r\n[END]\r\n"}};
    for (const auto& [format, text] : cases) {
        for (const std::string& bytes :
             {text, "\xEF\xBB\xBF" + text, inUTF16(text, true), inUTF16(text, false)}) {
            const LogReader::Log log = LogReader::read(bytes);
            EXPECT_EQ(log.format, format) << text;
            EXPECT_EQ(log.document.headerComment(), format == LogFormat::adif ? "A log" : "") << text;
            ASSERT_EQ(log.document.records().size(), 1U) << text;
            EXPECT_EQ(log.document.records()[0]["CALL"], "DL1AB") << text;
        }
    }
}

TEST(LogReader, BelievesTheByteOrderMarkRatherThanTheXMLDeclaration) {
    for (const char* encoding : {"UTF-16", "UTF-8", "ISO-8859-1"}) {
        const std::string text = "<?xml version=\"1.0\" encoding=\"" + std::string(encoding) +
                                 "\"?><ADX><RECORDS><RECORD><CALL>DL1AB</CALL></RECORD></RECORDS></ADX>";
        EXPECT_EQ(LogReader::read(inUTF16(text, true)).document.records().size(), 1U) << encoding;
    }
}

TEST(LogReader, FindsACabrilloLogFurtherDown) {
    const std::string log =
        "Start-of-Log: 3.0\nCALLSIGN: DL2AB\n"
        "QSO: 14000 CW 2024-03-02 1405 DL2AB 599 001 DL1AB 599 002\nEND-OF-LOG:\n";
    const std::string page =
        "<!DOCTYPE html>\n<title>Log: DL2AB</title><body style=\"color:5\"><pre>" + log + "</pre></html>\n";
    for (const std::string& text : {"# sent by mail\n" + log, page, std::string(3000, '\n') + log}) {
        const LogReader::Log found = LogReader::read(text);
        EXPECT_EQ(found.format, LogFormat::cabrillo) << text;
        ASSERT_EQ(found.document.records().size(), 1U) << text;
        EXPECT_EQ(found.document.records()[0]["STATION_CALLSIGN"], "DL2AB") << text;
    }
    // A log that is read as it is keeps its format.
    EXPECT_EQ(LogReader::read("<CALL:5>DL1AB<COMMENT:12>START-OF-LOG<EOR>\n" + log).format, LogFormat::adif);
    EXPECT_EQ(LogReader::read("[REG1TEST;1]\n" + log).format, LogFormat::edi);
    EXPECT_EQ(LogReader::read("# START-OF-LOG: has no QSOs").format, LogFormat::adif);
}

TEST(LogReader, TakesWhatIsNoLogForAnEmptyOne) {
    for (const char* bytes : {"", "\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF<", "no log"}) {
        EXPECT_EQ(LogReader::read(bytes).format, LogFormat::adif);
        EXPECT_EQ(LogReader::read(bytes).document, ADIFDocument());
    }
}

std::string notesOf(const std::string& bytes) {
    return testing::notesIn(LogReader::read(bytes).report);
}

TEST(LogReader, CountsBytesOfTheFileInEachEncoding) {
    const std::string text = "c<EOH>\n<CALL:5>DL1AB<NAME:3>Emma<EOR>";
    EXPECT_EQ(notesOf("\xEF\xBB\xBF" + text), "lengthTooShort at 23 in 2 #0 NAME =Emma +");
    EXPECT_EQ(notesOf(inUTF16(text, true)), "lengthTooShort at 42 in 2 #0 NAME =Emma +");
    // A letter beyond the first 65,536 takes four bytes, half of one two.
    const std::string escaped = inUTF16("<CALL:5>DL1AB<NAME:", true) +
                                std::string("4\0>\0\x3D\xD8\x00\xDEY\0<\0E\0O\0R\0>\0\xD8", 21);
    EXPECT_EQ(notesOf(escaped),
              "lengthTooShort at 28 in 1 #0 NAME =\U0001F600Y +\n"
              "lostCharacters at 60 in 1\ntextBehindLastRecord at 60 in 1");
    const std::string declared = "<?xml version=\"1.0\"?>\n<ADX><RECORDS>&";
    EXPECT_EQ(notesOf(declared), "xmlEnded at 36 in 2");
    EXPECT_EQ(notesOf(inUTF16(declared, false)), "xmlEnded at 74 in 2");
}

TEST(LogReader, SaysWhatAFileIsThatIsNoLog) {
    using namespace std::string_literals;
    const std::pair<std::string, FileLook> cases[] = {
        {"PK\3\4\0\0<A>\0"s, FileLook::zip},
        {"%PDF-1.4\n<</Type/Page>>\n<abc> tj"s, FileLook::pdf},
        {"\x89PNG\r\n\x1A\n\0<\xFF>"s, FileLook::picture},
        {"<!doctype HTML><html><p>no log</p></html>", FileLook::webPage},
        {"<?xml version=\"1.0\"?><kml><Point>1,2</Point></kml>", FileLook::xml},
        {"Date,Time,Call\n1.1.,12:00,DL1AB\n", FileLook::table},
        {"{\"call\": \"DL1AB\"}", FileLook::json},
        {"CALLSIGN: DL2AB\nQSO: 14000 CW 2024-03-02 1405 DL2AB 599 1 DL1AB 599 2\n",
         FileLook::cabrilloWithoutStart},
        {"<\0C\0A\0L\0L\0:\0001\0>\0X\0"s, FileLook::utf16WithoutMark},
        {"Dear Jane,\nmy log is lost < sorry >\n", FileLook::text},
        {"\x01\x02\x03<\x04>"s, FileLook::unknown}};
    for (const auto& [bytes, look] : cases) {
        const LogReader::Log log = LogReader::read(bytes);
        ASSERT_EQ(testing::notesIn(log.report), "noLog at 0 in 1") << bytes;
        EXPECT_EQ(log.report.notes()[0].look, look) << bytes;
    }
    EXPECT_EQ(notesOf(" \r\n"), "emptyFile at 0 in 1");
    EXPECT_EQ(notesOf("A log\n<EOH>\n"), "noQSOs at 0 in 1");
    EXPECT_EQ(notesOf("START-OF-LOG: 3.0\nEND-OF-LOG:\n"), "noQSOs at 0 in 1");
    EXPECT_EQ(notesOf("<ADX><RECORDS></RECORDS></ADX>"), "noQSOs at 0 in 1");
    EXPECT_EQ(notesOf("START-OF-LOG: 3.0\nQSO: 7000\n"), "columnsDoubted at 18 in 2 1/1");
    EXPECT_EQ(notesOf("<BAND:3>20m<EOR>"), "") << "a log without calls is one";
}

TEST(LogReader, SaysThatALogWasTakenOutOfOtherText) {
    EXPECT_EQ(notesOf("<html><pre>\nStart-of-Log: 3.0\n"
                      "QSO: 14000 CW 2024-03-02 1405 DL2AB 599 001 DL1AB 599 002\nEND-OF-LOG:\n</pre>"),
              "cabrilloInside at 12 in 2");
}

/// The values of the first record as it is read with the repair that the report offers.
std::string repairedValues(const std::string& bytes) {
    const auto repair = LogReader::read(bytes).report.repair();
    if (!repair) {
        return "no repair";
    }
    const LogReader::Log log = LogReader::read(bytes, *repair);
    std::string values = testing::notesIn(log.report);
    for (const ADIFRecord& record : log.document.records()) {
        for (const ADIFFieldView field : record.fields()) {
            values += "|" + std::string(field.value);
        }
    }
    return values;
}

TEST(Repair, GivesWhatTheWriterMeant) {
    const std::pair<const char*, const char*> cases[] = {
        // Lengths in characters, as code points and where blanks belong to the value.
        {"<NAME:6>M\u00FCller<QTH:5>K\u00F6ln <A:1>1<EOR>", "|M\u00FCller|K\u00F6ln |1"},
        {"<NAME:8>\u00C4\u00D6\u00DC \U0001F600 \u00DF.\n<A:10>1234567890\n<EOR>",
         "|\u00C4\u00D6\u00DC \U0001F600 \u00DF.|1234567890"},
        // A value in such a file whose length counts bytes all the same.
        {"<NAME:6>M\u00FCller<QTH:5>K\u00F6ln<EOR>", "|M\u00FCller|K\u00F6ln"},
        // One too short, one too long, at a field, a mark and the end of the file.
        {"<NAME:3>Emma<QTH:3>Ulm\n<EOR>", "|Emma|Ulm"},
        {"<NAME:5>Emma<QTH:4>Ulm<EOR>", "|Emma|Ulm"},
        {"<NAME:9>Emma Ilse<QTH:2>Ulm", "fieldsBehindLastQSO at 0 in 1 #0|Emma Ilse|Ulm"},
        {"<NAME:9>123456789\u00E9<EOR>", "|123456789\u00E9"},
        {"<NAME:10:S>123456789<A:1>1<EOR><NAME:4>Emmas\n<EOR>", "|123456789|1|Emmas"},
        // What is right stays, even where something looks odd; what is not certain stays too.
        {"<NAME:3>Emma<NOTES:3>a b // text<A:1><<EOR>", "textBetweenFields at 25 in 1 #0|Emma|a b|<"},
        {"<NAME:3>Emma<QTH:1>Ulm<EOR>", "lengthTooShort at 12 in 1 #0 QTH =Ulm|Emma|U"},
        {"<QTH:1>Ulm<EOR>", "no repair"},
        {"<NAME:4>Emma // text<EOR>", "no repair"},
    };
    for (const auto& [bytes, expected] : cases) {
        EXPECT_EQ(repairedValues(bytes), expected) << bytes;
    }
    // Places are those of the file, although a length has one digit more.
    EXPECT_EQ(repairedValues("<NAME:9>1234567890<EOR>\n<QTH:1>Ulm<EOR>"),
              "lengthTooShort at 24 in 2 #1 QTH =Ulm|1234567890|U");
    EXPECT_EQ(repairedValues(inUTF16("<NAME:9>1234567890<EOR>\n<QTH:1>Ulm<EOR>", true)),
              "lengthTooShort at 50 in 2 #1 QTH =Ulm|1234567890|U");
}

}  // namespace
}  // namespace tallyrig
