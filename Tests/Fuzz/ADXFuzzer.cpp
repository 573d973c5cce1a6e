// Reads any bytes as an ADX file. What comes out is well-formed text, and where XML can carry it, it must
// survive being written and read again.

#include "Fuzz/Require.h"
#include "Tallyrig/Formats/ADXParser.h"
#include "Tallyrig/Formats/ADXWriter.h"
#include "Tallyrig/Text/Decoding.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace tallyrig;

/// Whether the field is written as an element that means the same again: its name is one and has no meaning
/// of its own, and nothing in it is folded by XML.
bool isCarried(const ADIFField& field) {
    const std::string& name = field.name;
    const bool isElementName =
        !name.empty() && (name[0] == '_' || (name[0] >= 'A' && name[0] <= 'Z')) &&
        std::ranges::all_of(name, [](char c) {
            return c == '_' || c == '-' || c == '.' || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        });
    const std::vector<std::string_view> meaningful = {"ADX", "HEADER", "RECORDS", "RECORD", "APP", "USERDEF"};
    return isElementName && std::ranges::find(meaningful, name) == meaningful.end() &&
           field.value.find('\r') == std::string::npos &&
           (!field.type ||
            (!field.type->empty() && field.type->find_first_of("\t\n\r") == std::string::npos));
}

std::vector<ADIFField> fieldsOf(const ADIFRecord& record) {
    std::vector<ADIFField> fields;
    for (const ADIFFieldView field : record.fields()) {
        fields.push_back(field.field());
    }
    return fields;
}

/// All fields, those of the header in front.
std::vector<ADIFField> allFields(const ADIFDocument& document) {
    std::vector<ADIFField> fields = document.headerFields();
    for (const ADIFRecord& record : document.records()) {
        std::ranges::copy(fieldsOf(record), std::back_inserter(fields));
    }
    return fields;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view data(reinterpret_cast<const char*>(bytes), size);
    constexpr std::string_view moment = "20240229 235959";

    const ADIFDocument document = ADXParser::parse(data);
    require(document == ADXParser::parse(data), "the same bytes are the same document");
    require(document.headerComment().empty(), "there is no comment");
    const std::vector<ADIFField> fields = allFields(document);
    for (const ADIFField& field : fields) {
        require(text::isUTF8(field.name) && text::isUTF8(field.value), "names and values are text");
    }

    const ADXWriter bare{"Quillon", "1.0", "3.1.7", false};
    const ADIFDocument again = ADXParser::parse(bare.write(document, moment));
    const ADIFDocument full =
        ADXParser::parse(ADXWriter{"Quillon", "1.0", "3.1.7", true}.write(document, moment));
    if (!std::ranges::all_of(fields, isCarried)) {
        return 0;
    }
    require(again.records().size() == document.records().size(), "records survive writing");
    require(full.records() == again.records(), "the header does not change the records");
    require(full.headerFields().size() >= 4, "the writer's own fields stand in the header");
    const bool hasDefinitions = std::ranges::any_of(
        document.headerFields(), [](const ADIFField& field) { return field.name.starts_with("USERDEF"); });
    if (!hasDefinitions) {
        require(again == document, "what was read is what is written");
    } else {
        // Definitions take their proper form, and the fields that they define lose their types, once.
        require(ADXParser::parse(bare.write(again, moment)) == again, "definitions settle");
    }
    return 0;
}
