// Reads any bytes as a Cabrillo log. What comes out must be what a plain reading gives, and QSOs must survive
// being written and read again.

#include "Fuzz/Require.h"
#include "Tallyrig/Formats/CabrilloParser.h"
#include "Tallyrig/Formats/CabrilloWriter.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace tallyrig;

/// The pieces between any of the separators, without empty ones.
std::vector<std::string> pieces(std::string_view text, const std::vector<std::string_view>& separators) {
    std::vector<std::string> result(1);
    while (!text.empty()) {
        const auto separator = std::ranges::find_if(
            separators, [&](std::string_view candidate) { return text.starts_with(candidate); });
        if (separator != separators.end()) {
            result.emplace_back();
            text.remove_prefix(separator->size());
        } else {
            result.back() += text.front();
            text.remove_prefix(1);
        }
    }
    std::erase(result, "");
    return result;
}

std::string numericOf(const std::string& text) {
    std::string result;
    for (const std::string_view character : text::characters(text)) {
        result += text::isNumeric(character) ? character : std::string_view();
    }
    return result;
}

/// The rules of the reader for one line, one after the other, without any of its short cuts.
ADIFRecord plainRecord(const std::vector<std::string>& columns, std::map<std::string, std::string> header) {
    std::string freq;
    std::string_view band = CabrilloParser::frequencyAndBand(columns[0]).band;
    if (const auto number = text::integer(text::trimmedOfBlanks(columns[0]))) {
        freq = *number < 1000 ? std::to_string(*number)
                              : CabrilloParser::trimFreq(static_cast<double>(*number) / 1000);
    }
    const std::string date = numericOf(columns[2]);
    const std::string time = numericOf(columns[3]);
    std::string serial;
    if (text::isAllNumeric(columns[9])) {
        serial = std::to_string(text::integer(columns[9]).value_or(0));
    }
    const std::vector<std::pair<std::string, std::string>> values = {
        {"FREQ", freq},
        {"BAND", std::string(band)},
        {"MODE", CabrilloParser::adifMode(columns[1])},
        {"QSO_DATE", text::characterCount(date) == 8 ? date : columns[2]},
        {"TIME_ON", text::characterCount(time) == 4 ? time + "00" : time},
        {"RST_SENT", columns[5]},
        {"STX_STRING", columns[6]},
        {"CALL", text::upper(columns[7])},
        {"RST_RCVD", columns[8]},
        {"SRX_STRING", columns[9]},
        {"SRX", serial},
        {"STATION_CALLSIGN", text::upper(header["CALLSIGN"])},
        {"CONTEST_ID", header["CONTEST"]},
        {"OPERATOR", text::upper(header["OPERATORS"])},
        {"MY_GRIDSQUARE", text::upper(header["GRID-LOCATOR"])}};
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
    std::vector<std::string> lines;
    for (const std::string& raw : pieces(decoded, {"\n", "\v", "\f", "\r", "\u0085", "\u2028", "\u2029"})) {
        const std::string line(text::trimmedOfBlanks(raw));
        const std::string upper = text::upper(line);
        const std::size_t colon = line.find(':');
        if (upper.starts_with("QSO:")) {
            lines.push_back(line);
        } else if (!upper.starts_with("X-QSO:") && colon != std::string::npos) {
            header[text::upper(text::trimmedOfBlanks(line.substr(0, colon)))] =
                text::trimmedOfBlanks(std::string_view(line).substr(colon + 1));
        }
    }
    std::vector<ADIFRecord> records;
    for (const std::string& line : lines) {
        std::string rest;
        const std::vector<std::string_view> characters = text::characters(line);
        for (std::size_t index = 4; index < characters.size(); ++index) {
            rest += characters[index];
        }
        const std::vector<std::string> columns = pieces(rest, {" ", "\t"});
        if (columns.size() >= 10) {
            records.push_back(plainRecord(columns, header));
        }
    }
    return {"", {}, ADIFRecordList(std::move(records))};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view data(reinterpret_cast<const char*>(bytes), size);

    const ADIFDocument document = CabrilloParser::parse(data);
    require(document == plainReading(data), "the reading is the plain one");

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
