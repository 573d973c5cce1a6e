#include "Tallyrig/Formats/LogReader.h"

#include "Tallyrig/Formats/ADXParser.h"
#include "Tallyrig/Formats/CabrilloParser.h"
#include "Tallyrig/Formats/EDIParser.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Decoding.h"

#include <algorithm>
#include <optional>
#include <utility>

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

/// Whether `text` has the first line of a Cabrillo log anywhere, in either case.
bool hasStartOfLog(std::string_view text) {
    constexpr std::string_view marker = "START-OF-LOG";
    const auto isSame = [](char c, char m) { return text::upperASCII(c) == m; };
    return std::search(text.begin(), text.end(), marker.begin(), marker.end(), isSame) != text.end();
}

bool hasCalls(const ADIFDocument& document) {
    return std::ranges::any_of(document.records(),
                               [](const ADIFRecord& record) { return !record.valueOrEmpty("CALL").empty(); });
}

LogReader::Log logIn(std::string_view data, std::string_view dataForXML) {
    const LogFormat format = LogFormatDetector::detect(data);
    LogReader::Log log{format, parsed(format == LogFormat::adx ? dataForXML : data, format)};
    if (format == LogFormat::adif && !hasCalls(log.document) && hasStartOfLog(data)) {
        // A log saved from a web page, whose tags make a record of their own, or with notes in front of it.
        ADIFDocument wrapped = CabrilloParser::parse(data);
        if (!wrapped.records().empty()) {
            return {LogFormat::cabrillo, std::move(wrapped)};
        }
    }
    return log;
}

}  // namespace

LogReader::Log LogReader::read(std::string_view bytes) {
    if (const auto converted = text::fromUTF16(bytes)) {
        return logIn(*converted, withoutXMLDeclaration(*converted));
    }
    const std::string_view text = text::withoutByteOrderMark(bytes);
    return logIn(text, text);
}

}  // namespace tallyrig
