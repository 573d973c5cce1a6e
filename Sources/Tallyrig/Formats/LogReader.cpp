#include "Tallyrig/Formats/LogReader.h"

#include "Tallyrig/Formats/ADXParser.h"
#include "Tallyrig/Formats/CabrilloParser.h"
#include "Tallyrig/Formats/EDIParser.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Text/Decoding.h"

namespace tallyrig {

namespace {

ADIFDocument parsed(std::string_view data, LogFormat format) {
    switch (format) {
        case LogFormat::adx:
            return ADXParser::parse(data);
        case LogFormat::cabrillo:
            return CabrilloParser::parse(data);
        case LogFormat::edi:
            return EDIParser::parse(data);
        case LogFormat::adif:
            break;
    }
    return ADIFParser::parse(data);
}

/// `text` without an XML declaration at its head, whose encoding was that of the bytes before they became
/// this text.
std::string_view withoutXMLDeclaration(std::string_view text) {
    const std::size_t end = text.starts_with("<?xml") ? text.find("?>") : std::string_view::npos;
    return end == std::string_view::npos ? text : text.substr(end + 2);
}

}  // namespace

LogReader::Log LogReader::read(std::string_view bytes) {
    if (const auto converted = text::fromUTF16(bytes)) {
        const LogFormat format = LogFormatDetector::detect(*converted);
        return {format, parsed(withoutXMLDeclaration(*converted), format)};
    }
    const LogFormat format = LogFormatDetector::detect(bytes);
    return {format, parsed(bytes, format)};
}

}  // namespace tallyrig
