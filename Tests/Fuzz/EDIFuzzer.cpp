// Reads any bytes as an EDI log. What comes out must be what a plain reading gives, and what the format has
// room for must survive being written and read again. Writes any bytes that make an ADI log as EDI, too.

#include "Fuzz/Require.h"
#include "Tallyrig/Formats/EDIParser.h"
#include "Tallyrig/Formats/EDIWriter.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using namespace tallyrig;

/// The lines between breaks, without empty ones.
std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines(1);
    while (!text.empty()) {
        std::size_t length = 0;
        for (const std::string_view lineBreak : {"\n", "\v", "\f", "\r", "\u0085", "\u2028", "\u2029"}) {
            length = text.starts_with(lineBreak) ? lineBreak.size() : length;
        }
        if (length > 0) {
            lines.emplace_back();
            text.remove_prefix(length);
        } else {
            lines.back() += text.front();
            text.remove_prefix(1);
        }
    }
    std::erase(lines, "");
    return lines;
}

std::string trimmed(std::string_view text) {
    return std::string(text::trimmedOfBlanks(text));
}

std::string numericOf(std::string_view text) {
    std::string result;
    for (const std::string_view character : text::characters(text)) {
        result += text::isNumeric(character) ? character : std::string_view();
    }
    return result;
}

std::string centuryOf(const std::string& tDate) {
    const std::string digits = numericOf(tDate.substr(0, tDate.find(';')));
    const std::vector<std::string_view> characters = text::characters(digits);
    return characters.size() > 3 ? std::string(characters[0]) + std::string(characters[1]) : "20";
}

std::string serialOf(const std::string& number) {
    return number.empty() ? "" : std::to_string(text::integer(number).value_or(0));
}

/// The rules of the reader for one line, one after the other, without any of its short cuts.
ADIFRecord plainRecord(std::vector<std::string> columns, std::map<std::string, std::string> header) {
    columns.resize(10);
    const std::string date = numericOf(columns[0]);
    const std::string time = numericOf(columns[1]);
    std::string operators;
    for (char number = '1'; number <= '8'; ++number) {
        const std::string call = text::upper(trimmed(header[std::string("MOPE") + number]));
        operators += (operators.empty() || call.empty() ? "" : ",") + call;
    }
    const std::string locator = header.contains("PWWLO") ? header["PWWLO"] : header["PEXCH"];
    const std::vector<std::pair<std::string, std::string>> values = {
        {"QSO_DATE", text::characterCount(date) == 6 ? centuryOf(header["TDATE"]) + date : date},
        {"TIME_ON", text::characterCount(time) == 4 ? time + "00" : time},
        {"CALL", text::upper(columns[2])},
        {"MODE", std::string(EDIParser::adifMode(columns[3]))},
        {"RST_SENT", columns[4]},
        {"STX", serialOf(columns[5])},
        {"RST_RCVD", columns[6]},
        {"SRX", serialOf(columns[7])},
        {"GRIDSQUARE", text::upper(columns[9])},
        {"BAND", EDIParser::adifBand(header["PBAND"])},
        {"STATION_CALLSIGN", text::upper(trimmed(header["PCALL"]))},
        {"MY_GRIDSQUARE", text::upper(trimmed(locator))},
        {"CONTEST_ID", trimmed(header["TNAME"])},
        {"OPERATOR", operators}};
    std::vector<ADIFField> fields;
    for (const auto& [name, value] : values) {
        if (!value.empty()) {
            fields.emplace_back(name, value);
        }
    }
    return ADIFRecord(fields);
}

ADIFDocument plainReading(std::string_view data) {
    const std::string decoded = text::decoded(text::withoutByteOrderMark(data));
    std::map<std::string, std::string> header;
    std::vector<std::vector<std::string>> qsos;
    bool isInQSOs = false;
    for (const std::string& line : linesOf(decoded)) {
        const std::size_t equals = line.find('=');
        if (line.starts_with('[')) {
            isInQSOs = text::upper(line).starts_with("[QSORECORDS");
        } else if (isInQSOs && !trimmed(line).empty()) {
            std::vector<std::string> columns;
            for (const std::string_view column : text::split(line, ';')) {
                columns.push_back(trimmed(column));
            }
            qsos.push_back(columns);
        } else if (!isInQSOs && equals != std::string::npos) {
            header[text::upper(trimmed(line.substr(0, equals)))] = line.substr(equals + 1);
        }
    }
    std::vector<ADIFRecord> records;
    for (const std::vector<std::string>& columns : qsos) {
        if (columns.size() >= 4) {
            records.push_back(plainRecord(columns, header));
        }
    }
    return {"", {}, ADIFRecordList(std::move(records))};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view data(reinterpret_cast<const char*>(bytes), size);

    const ADIFDocument document = EDIParser::parse(data);
    require(document == plainReading(data), "the reading is the plain one");

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
