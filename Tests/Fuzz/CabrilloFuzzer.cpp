// SPDX-License-Identifier: GPL-3.0-or-later
// Reads any bytes as a Cabrillo log. QSOs must survive being written and read again.

#include "Fuzz/Require.h"
#include "Fuzz/RequireReport.h"
#include "Tallyrig/Formats/CabrilloParser.h"
#include "Tallyrig/Formats/CabrilloWriter.h"
#include "Tallyrig/Text/Characters.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

using namespace tallyrig;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view data(reinterpret_cast<const char*>(bytes), size);
    const ADIFDocument document = CabrilloParser::parse(data);
    const ReadDocument read = CabrilloParser::read(data);
    require(read.document == document, "the report does not change the log");
    requireSound(read.report, size, document.records().size());
    for (const ADIFRecord& record : document.records()) {
        require(record["CALL"] && record["MODE"], "a QSO has all its columns");
        for (const ADIFFieldView field : record.fields()) {
            require(!field.value.empty(), "no value is empty");
        }
    }

    CabrilloWriter writer;
    writer.header.callsign = "DL1ABC";
    const ADIFDocument again = CabrilloParser::parse(writer.write(document));
    // Without a time the other columns move up, and the transmitter takes the place of the tenth.
    require(again.records().size() == document.records().size(), "QSOs survive writing");
    for (const ADIFRecord& record : again.records()) {
        require(record["STATION_CALLSIGN"] == "DL1ABC", "the call is that of the header");
        require(text::characterCount(record.valueOrEmpty("CALL")) <= 13, "columns are cut");
    }
    return 0;
}
