// Reads any bytes as an ADI file. What comes out must be what a plain reading gives, and must survive being
// written and read again.

#include "Fuzz/Require.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Log/ADIFWriter.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using namespace tallyrig;

/// The rules of the reader one after the other, without any of its short cuts.
ADIFDocument plainReading(std::string_view data) {
    const std::size_t first = data.find('<');
    if (first == std::string_view::npos) {
        return {};
    }
    std::vector<ADIFField> headerFields;
    std::vector<ADIFField> current;
    std::vector<ADIFRecord> records;
    bool sawEndOfHeader = false;
    std::size_t position = first;
    while (true) {
        const std::size_t opening = data.find('<', position);
        const std::size_t closing = data.find('>', std::min(opening, data.size()));
        if (opening == std::string_view::npos || closing == std::string_view::npos) {
            break;
        }
        const std::string tag = text::decoded(data.substr(opening + 1, closing - opening - 1));
        const std::vector<std::string_view> parts = text::split(tag, ':');
        const std::string name = text::upper(text::trimmed(parts[0]));
        position = closing + 1;
        if (name == "EOH") {
            headerFields = std::exchange(current, {});
            sawEndOfHeader = true;
        } else if (name == "EOR") {
            records.emplace_back(std::exchange(current, {}));
        } else {
            const std::int64_t length =
                parts.size() > 1 ? text::integer(text::trimmed(parts[1])).value_or(0) : 0;
            const std::size_t size =
                std::min(static_cast<std::size_t>(std::max<std::int64_t>(length, 0)), data.size() - position);
            std::optional<std::string> type;
            if (parts.size() > 2) {
                type = text::trimmed(parts[2]);
            }
            current.emplace_back(name, text::decoded(data.substr(position, size)), type);
            position += size;
        }
    }
    if (!current.empty()) {
        records.emplace_back(current);
    }
    const std::string preamble = text::decoded(data.substr(0, first));
    return {sawEndOfHeader ? std::string(text::trimmed(preamble)) : "", headerFields,
            ADIFRecordList(std::move(records))};
}

/// The fields as they come back from a file: an empty type indicator is written like none.
std::vector<ADIFField> withoutEmptyTypes(std::vector<ADIFField> fields) {
    for (ADIFField& field : fields) {
        if (field.type && field.type->empty()) {
            field.type.reset();
        }
    }
    return fields;
}

ADIFRecordList withoutEmptyTypes(const ADIFRecordList& records) {
    std::vector<ADIFRecord> result;
    for (const ADIFRecord& record : records) {
        std::vector<ADIFField> fields;
        for (const ADIFFieldView field : record.fields()) {
            fields.push_back(field.field());
        }
        result.emplace_back(withoutEmptyTypes(fields));
    }
    return ADIFRecordList(std::move(result));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view data(reinterpret_cast<const char*>(bytes), size);
    constexpr std::string_view moment = "20240229 235959";

    const ADIFDocument document = ADIFParser::parse(data);
    require(document == plainReading(text::withoutByteOrderMark(data)), "the reading is the plain one");

    const ADIFWriter withHeader{"Quillon", "1.0", "3.1.7", true};
    const std::string written = withHeader.write(document, moment);
    const ADIFDocument again = ADIFParser::parse(written);
    const ADIFRecordList records = withoutEmptyTypes(document.records());
    require(again.records() == records, "records survive writing");
    require(again.headerFields() == withoutEmptyTypes(withHeader.headerFields(document, moment)),
            "header fields survive writing, the writer's own put in");
    // A comment never holds a "<", but a byte order mark may stand at its head, which is no text in a file.
    const std::string comment = withHeader.headerComment(document);
    require(again.headerComment() == text::trimmed(text::withoutByteOrderMark(comment)),
            "the comment survives writing, the default one put in");
    if (text::withoutByteOrderMark(comment) == comment) {
        require(withHeader.write(again, moment) == written,
                "what was written once is written the same again");
    }

    const ADIFDocument bare =
        ADIFParser::parse(ADIFWriter{"Quillon", "1.0", "3.1.7", false}.write(document, moment));
    require(bare == ADIFDocument("", {}, records), "without a header the records survive alone");
    return 0;
}
