// SPDX-License-Identifier: GPL-3.0-or-later
// Reads any bytes as a log of any format. Its head alone decides on the format, and the same text is the same
// log in UTF-16. A report on the file is sound whatever the encoding and the repair, and changes nothing.

#include "Fuzz/Require.h"
#include "Fuzz/RequireReport.h"
#include "Tallyrig/Formats/LogReader.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

using namespace tallyrig;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view data(reinterpret_cast<const char*>(bytes), size);
    const LogReader::Log log = LogReader::read(data);
    const LogReader::Log quiet = LogReader::readWithoutReport(data);
    require(quiet.format == log.format && quiet.document == log.document,
            "the report does not change the log");
    requireSound(log.report, size, log.document.records().size());
    for (const ReadingRepair repair : {ReadingRepair::lengthsInCharacters, ReadingRepair::lengthsThatFit}) {
        const LogReader::Log repaired = LogReader::read(data, repair);
        requireSound(repaired.report, size, repaired.document.records().size());
    }

    const std::string_view unmarked = text::withoutByteOrderMark(data);
    const LogFormat format = LogFormatDetector::detect(unmarked);
    if (!text::fromUTF16(data)) {
        require(
            log.format == format || (log.format == LogFormat::cabrillo && !log.document.records().empty()),
            "the format is the one detected, if it is not a Cabrillo log further down");
    }
    require(LogFormatDetector::detect(unmarked.substr(0, 2048)) == format, "only the head counts");
    if (text::isASCII(data)) {
        require(LogFormatDetector::detect(text::upper(data)) == format, "case does not count");
    }

    // An XML declaration may name another encoding, which is then believed or not.
    if (text::isASCII(data) && !data.starts_with("<?xml")) {
        for (const bool isLittleEndian : {true, false}) {
            std::string converted = isLittleEndian ? "\xFF\xFE" : "\xFE\xFF";
            for (const char letter : data) {
                converted += isLittleEndian ? letter : '\0';
                converted += isLittleEndian ? '\0' : letter;
            }
            const LogReader::Log same = LogReader::read(converted);
            require(same.format == log.format, "the encoding does not decide on the format");
            require(same.document == log.document, "the log is the same in either encoding");
            requireSound(same.report, converted.size(), same.document.records().size());
            require(std::ranges::equal(same.report.notes(), log.report.notes(), {}, &ReadingNote::line,
                                       &ReadingNote::line),
                    "notes stand in the same lines");
        }
    }
    return 0;
}
