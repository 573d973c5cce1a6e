#include "Tallyrig/Formats/LogReader.h"

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

}  // namespace
}  // namespace tallyrig
