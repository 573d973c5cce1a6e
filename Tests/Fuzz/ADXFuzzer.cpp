// SPDX-License-Identifier: GPL-3.0-or-later
// Reads any bytes as an ADX file. What comes out is well-formed text, and where XML can carry it, it must
// survive being written and read again.

#include "Fuzz/Require.h"
#include "Fuzz/RequireReport.h"
#include "Tallyrig/Formats/ADXParser.h"
#include "Tallyrig/Formats/ADXWriter.h"
#include "Tallyrig/Text/Decoding.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

using namespace tallyrig;

namespace {

/// Whether the field is written as an element that means the same again: its name is one and has no meaning
/// of its own, and nothing in it is folded by XML.
bool isCarried(const ADIFFieldView& field) {
    constexpr std::string_view meaningful[] = {"ADX", "HEADER", "RECORDS", "RECORD", "APP"};
    return !field.name.empty() && field.name.front() >= 'A' && field.name.front() <= 'Z' &&
           field.name.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ_0123456789") == std::string_view::npos &&
           std::ranges::find(meaningful, field.name) == std::end(meaningful) &&
           !field.name.starts_with("USERDEF") && field.value.find('\r') == std::string_view::npos &&
           (!field.type ||
            (!field.type->empty() && field.type->find_first_of("\t\n\r") == std::string_view::npos));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view data(reinterpret_cast<const char*>(bytes), size);
    constexpr std::string_view moment = "20240229 235959";
    const ADIFDocument document = ADXParser::parse(data);
    const ReadDocument read = ADXParser::read(data);
    require(read.document == document, "the report does not change the log");
    requireSound(read.report, size, document.records().size());

    bool areAllCarried = document.headerFields().empty();
    for (const ADIFRecord& record : document.records()) {
        for (const ADIFFieldView field : record.fields()) {
            require(text::isUTF8(field.name) && text::isUTF8(field.value), "names and values are text");
            areAllCarried = areAllCarried && isCarried(field);
        }
    }
    const ADIFDocument again =
        ADXParser::parse(ADXWriter{"Quillon", "1.0", "3.1.7", false}.write(document, moment));
    const ADIFDocument full =
        ADXParser::parse(ADXWriter{"Quillon", "1.0", "3.1.7", true}.write(document, moment));
    if (areAllCarried) {
        require(again == document, "what was read survives writing");
        require(full.records() == document.records(), "the header does not change the records");
        require(full.headerFields().size() == 4, "the writer's own fields stand in the header");
    }
    return 0;
}
