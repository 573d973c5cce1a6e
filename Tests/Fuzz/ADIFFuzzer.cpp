// SPDX-License-Identifier: GPL-3.0-or-later
// Reads any bytes as an ADI file. What comes out must survive being written and read again, and a report on
// the file changes nothing about that.

#include "Fuzz/Require.h"
#include "Fuzz/RequireReport.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Log/ADIFWriter.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

using namespace tallyrig;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view data(reinterpret_cast<const char*>(bytes), size);
    constexpr std::string_view moment = "20240229 235959";
    const ADIFDocument document = ADIFParser::parse(data);
    const ReadDocument read = ADIFParser::read(data);
    require(read.document == document, "the report does not change the log");
    requireSound(read.report, size, document.records().size());

    const ADIFWriter bare{"Quillon", "1.0", "3.1.7", false};
    const std::string text = bare.write(document, moment);
    const ADIFDocument again = ADIFParser::parse(text);
    // A type indicator that is empty comes back as none, so that the records need not be equal at once.
    require(std::ranges::equal(again.records(), document.records(),
                               [](const ADIFRecord& left, const ADIFRecord& right) {
                                   return std::ranges::equal(left.fields(), right.fields(), {},
                                                             &ADIFFieldView::name, &ADIFFieldView::name) &&
                                          std::ranges::equal(left.fields(), right.fields(), {},
                                                             &ADIFFieldView::value, &ADIFFieldView::value);
                               }),
            "names and values survive writing");
    require(bare.write(again, moment) == text, "what was written once is written the same again");

    const ADIFWriter whole{"Quillon", "1.0", "3.1.7", true};
    const ADIFDocument withHeader = ADIFParser::parse(whole.write(document, moment));
    require(withHeader.records() == again.records(), "the header does not change the records");
    require(withHeader.headerFields().size() == whole.headerFields(document, moment).size(),
            "header fields survive writing, the writer's own put in");
    require(withHeader.headerComment() == whole.headerComment(document),
            "the comment survives writing, the default one put in");
    return 0;
}
