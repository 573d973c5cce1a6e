// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/CabrilloParser.h"
#include "Tallyrig/Log/ReadingSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace tallyrig {
namespace {

/// A QSO line of ten columns with this call.
std::string qso(const std::string& call) {
    return "QSO: 14000 CW 2024-03-02 1405 DL2AB 599 001 " + call + " 599 002\n";
}

/// The calls that are read of a log with these lines in it, and below them the notes, which count lines and
/// bytes from behind the first of the log.
std::string reading(const std::string& lines) {
    const ReadDocument read = CabrilloParser::read(lines);
    std::string text;
    for (const ADIFRecord& record : read.document.records()) {
        text += record.valueOrEmpty("CALL");
        text += " ";
    }
    return text + "\n" + testing::notesIn(read.report);
}

const std::string start = "START-OF-LOG: 3.0\n";  // 18 bytes.

TEST(DamagedCabrillo, IsKeptAndNoted) {
    const std::string good = qso("DL1AB");  // 58 bytes.
    const std::pair<std::string, std::string> cases[] = {
        // QSOs left out.
        {start + good + "QSO:14000 CW 2024-03-02 1405 DL2AB 599 001\n" + good + "qso: \n" + good,
         "DL1AB DL1AB DL1AB \ntooFewColumns at 76 in 3 7/10\ntooFewColumns at 177 in 5 0/10"},
        {start + good + "QSO: 50 PH 2024-03-02 1405 DL2AB JO62 DL1AB JN58\nQSO: 50\n",
         "DL1AB \ncolumnsDoubted at 76 in 3 x 2 2/3"},
        {start + "X-QSO: 14000\n" + good + "x-qso: 7000\n", "DL1AB \nignoredQSO at 18 in 2 x 2"},
        {start + good + "QTC: 14000 PH\n", "DL1AB \nqtcLeftOut at 76 in 3"},
        {start + good + "QSO 14000 CW\n14000 CW 2024-03-02 1405 DL2AB 599 001 DL1AB 599 002\n<b>QSO: 7\n",
         "DL1AB \nlineLeftOut at 76 in 3\nlineLeftOut at 89 in 4\nlineLeftOut at 142 in 5"},
        // Columns of another template.
        {start + good + qso("599") + qso("DL2AB") + good + good,
         "DL1AB 599 DL2AB DL1AB DL1AB \ncallImplausible at 76 in 3 #1 =599\n"
         "callImplausible at 132 in 4 #2 =DL2AB"},
        {start + good + qso("JO62") + qso("JO62QM") + qso("dl2ab"),
         "DL1AB JO62 JO62QM DL2AB \ncallColumnDoubted at 76 in 3 #1 x 3 =JO62 3/4"},
        // Header lines.
        {start + good + "CALLSIGN: dl1ab\nCALLSIGN: DL2AB\nCALLSIGN: dl2ab\nEMAIL: a\nEMAIL: b\n",
         "DL1AB \nheaderTwice at 92 in 4 CALLSIGN =DL1AB"},
        {start + good + "SHOE-SIZE: 43\nX-RAY: y\n# said \xE4\nHAT:\n",
         "DL1AB \nunknownKey at 76 in 3 x 2 SHOE-SIZE\ntextLeftOut at 99 in 5\nlatin1 at 106 in 5"},
        // Around the log.
        {"hello\n" + start + good + "END-OF-LOG:\nby mail\nFrom: me\n", "DL1AB \n"},
    };
    for (const auto& [log, expected] : cases) {
        EXPECT_EQ(reading(log), expected) << log;
    }
}

TEST(DamagedCabrillo, CountsBytesOfTheFileInLatin1) {
    EXPECT_EQ(reading(start + "NAME: J\xF6rg B\xE4r\n" + qso("599") + qso("DL1AB")),
              "599 DL1AB \nlatin1 at 25 in 2 x 2\ncallImplausible at 33 in 3 #0 =599");
}

TEST(SoundCabrillo, GivesNoNotes) {
    EXPECT_EQ(reading("start-of-log: 3.0\r\nCATEGORY-TIME: x\r\nADDRESS: J\u00F6rg\r\n\r\nSoapbox: a: b\r\n"
                      "CLAIMED-SCORE:\r\nX-NOTE: 1\r\n" +
                      qso("dl1ab/p") + qso("VP8/LZ30AB") + qso("LZ30AB") + "END-OF-LOG:\r\n"),
              "DL1AB/P VP8/LZ30AB LZ30AB \n");
}

}  // namespace
}  // namespace tallyrig
