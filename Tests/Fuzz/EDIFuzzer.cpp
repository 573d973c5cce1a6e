// SPDX-License-Identifier: GPL-3.0-or-later
// Reads any bytes as an EDI log. What the format has room for must survive being written and read again.
// Writes any bytes that make an ADI log as EDI, too.

#include "Fuzz/Require.h"
#include "Fuzz/RequireReport.h"
#include "Tallyrig/Formats/EDIParser.h"
#include "Tallyrig/Formats/EDIWriter.h"
#include "Tallyrig/Log/ADIFParser.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

using namespace tallyrig;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view data(reinterpret_cast<const char*>(bytes), size);
    const ADIFDocument document = EDIParser::parse(data);
    const ReadDocument read = EDIParser::read(data);
    require(read.document == document, "the report does not change the log");
    requireSound(read.report, size, document.records().size());

    EDIWriter writer{EDIHeader::suggested(document)};
    const ADIFDocument again = EDIParser::parse(writer.write(document));
    require(again.records().size() == document.records().size(), "QSOs survive writing");
    // The first writing gives every date the century of the header, by which the second one sorts.
    const ADIFDocument sorted = EDIParser::parse(writer.write(again));
    require(EDIParser::parse(writer.write(sorted)) == sorted, "what was read from EDI survives writing");

    const ADIFDocument log = ADIFParser::parse(data);
    writer.header = EDIHeader::suggested(log);
    for (const char* mode : {"distance", "blank", "adifField"}) {
        require(writer.header.setMember("pointsMode", mode), "there is such a mode");
        const std::string text = writer.write(log);
        require(text.starts_with("[REG1TEST;1]\r\nTName="), "the file begins as EDI does");
        require(text.ends_with("[end;" + std::to_string(log.records().size()) + "]\r\n"),
                "the file ends with the number of QSOs");
    }
    return 0;
}
