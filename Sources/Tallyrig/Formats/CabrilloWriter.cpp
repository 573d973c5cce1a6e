// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/CabrilloWriter.h"

#include "Tallyrig/Formats/LogLines.h"
#include "Tallyrig/Log/BandNames.h"
#include "Tallyrig/Log/RecordValues.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Lines.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

namespace tallyrig {

namespace {

/// What stands for a band where a QSO has no frequency, in kHz.
constexpr std::array<std::pair<std::string_view, std::string_view>, 14> bandFrequencies = {
    {{band::m160, "1800"},
     {band::m80, "3500"},
     {band::m60, "5351"},
     {band::m40, "7000"},
     {band::m30, "10100"},
     {band::m20, "14000"},
     {band::m17, "18068"},
     {band::m15, "21000"},
     {band::m12, "24890"},
     {band::m10, "28000"},
     {band::m6, "50000"},
     {band::m2, "144000"},
     {band::m1And25, "222000"},
     {band::cm70, "432000"}}};

constexpr std::string_view missingExchange = "—";
constexpr std::size_t callWidth = 13;
constexpr std::size_t reportWidth = 3;
constexpr std::size_t exchangeWidth = 6;

std::string column(std::string_view text, std::size_t width) {
    std::string result;
    text::appendColumn(result, text, width);
    return result;
}

/// A QSO line is made of columns; those that are the same in every line of a file are laid out once.
class QSOLines {
  public:
    QSOLines(const CabrilloHeader& header, std::string_view myCall)
        : sentCall(column(myCall, callWidth)),
          sentExchange(
              column(header.sentExchange.empty() ? missingExchange : header.sentExchange, exchangeWidth)),
          noExchange(column(missingExchange, exchangeWidth)) {}

    void append(std::string& text, const ADIFRecord& record) {
        values.read(record);
        const std::string kHz = CabrilloWriter::cabrilloFrequency(values[freq], values[band]);
        text += "QSO: ";
        text.append(5 - std::min<std::size_t>(5, kHz.size()), ' ');
        text += kHz;
        text += ' ';
        text += CabrilloWriter::cabrilloMode(values[mode]);
        text += ' ';
        text += CabrilloWriter::cabrilloDate(values[qsoDate]);
        text += ' ';
        text += text::firstCharacters(values.valueOrEmpty(timeOn), 4);
        text += ' ';
        text += sentCall;
        text += ' ';
        text::appendColumn(text, values.valueOrEmpty(rstSent), reportWidth);
        text += ' ';
        appendExchange(text, values.valueOrEmpty(stxString), sentExchange);
        text += ' ';
        text::appendColumn(text, text::upper(values.valueOrEmpty(call)), callWidth);
        text += ' ';
        text::appendColumn(text, values.valueOrEmpty(rstRcvd), reportWidth);
        text += ' ';
        appendExchange(text, receivedExchange(), noExchange);
        text += " 0";
    }

  private:
    enum Field : std::size_t {
        freq,
        band,
        mode,
        qsoDate,
        timeOn,
        rstSent,
        stxString,
        call,
        rstRcvd,
        srxString,
        srx,
        cqZone
    };

    static void appendExchange(std::string& text, std::string_view exchange, std::string_view otherColumn) {
        if (exchange.empty()) {
            text += otherColumn;
        } else {
            text::appendColumn(text, exchange, exchangeWidth);
        }
    }

    /// Where nothing was noted, the zone stands for it, as in the contests that exchange zones.
    std::string receivedExchange() const {
        for (const Field field : {srxString, srx}) {
            if (!values.valueOrEmpty(field).empty()) {
                return std::string(values.valueOrEmpty(field));
            }
        }
        const std::optional<std::int64_t> zone = text::integer(values.valueOrEmpty(cqZone));
        return zone ? fmt::format("{:02}", *zone) : std::string();
    }

    RecordValues values{{"FREQ", "BAND", "MODE", "QSO_DATE", "TIME_ON", "RST_SENT", "STX_STRING", "CALL",
                         "RST_RCVD", "SRX_STRING", "SRX", "CQZ"}};
    std::string sentCall;
    std::string sentExchange;
    std::string noExchange;
};

/// Whether a line of the header is left out where its value is empty.
enum class HeaderLine { always, ifNotEmpty };

struct HeaderTag {
    std::string_view tag;
    std::string CabrilloHeader::*value;
    HeaderLine line;
};

constexpr std::array<HeaderTag, 18> headerTags = {
    {{"CONTEST", &CabrilloHeader::contest, HeaderLine::always},
     {"CALLSIGN", &CabrilloHeader::callsign, HeaderLine::always},
     {"OPERATORS", &CabrilloHeader::operators, HeaderLine::always},
     {"NAME", &CabrilloHeader::name, HeaderLine::ifNotEmpty},
     {"EMAIL", &CabrilloHeader::email, HeaderLine::ifNotEmpty},
     {"GRID-LOCATOR", &CabrilloHeader::gridLocator, HeaderLine::ifNotEmpty},
     {"LOCATION", &CabrilloHeader::location, HeaderLine::ifNotEmpty},
     {"CATEGORY-OPERATOR", &CabrilloHeader::categoryOperator, HeaderLine::always},
     {"CATEGORY-ASSISTED", &CabrilloHeader::categoryAssisted, HeaderLine::ifNotEmpty},
     {"CATEGORY-BAND", &CabrilloHeader::categoryBand, HeaderLine::always},
     {"CATEGORY-MODE", &CabrilloHeader::categoryMode, HeaderLine::always},
     {"CATEGORY-POWER", &CabrilloHeader::categoryPower, HeaderLine::always},
     {"CATEGORY-STATION", &CabrilloHeader::categoryStation, HeaderLine::always},
     {"CATEGORY-TRANSMITTER", &CabrilloHeader::categoryTransmitter, HeaderLine::ifNotEmpty},
     {"CATEGORY-TIME", &CabrilloHeader::categoryTime, HeaderLine::ifNotEmpty},
     {"CLAIMED-SCORE", &CabrilloHeader::claimedScore, HeaderLine::ifNotEmpty},
     {"CLUB", &CabrilloHeader::club, HeaderLine::ifNotEmpty},
     {"CREATED-BY", &CabrilloHeader::createdBy, HeaderLine::always}}};

constexpr std::string_view lineEnd = "\r\n";

void appendHeaderLine(std::string& text, std::string_view tag, std::string_view value) {
    text += tag;
    text += ": ";
    text += text::trimmed(value);
    text += lineEnd;
}

void appendHeader(std::string& text, const CabrilloHeader& header) {
    text += "START-OF-LOG: ";
    text += header.version;
    text += lineEnd;
    for (const HeaderTag& entry : headerTags) {
        const std::string& value = header.*entry.value;
        if (entry.line == HeaderLine::always || !value.empty()) {
            appendHeaderLine(text, entry.tag, value);
        }
    }
    for (const std::string_view line : text::split(header.soapbox, '\n')) {
        if (!line.empty()) {
            appendHeaderLine(text, "SOAPBOX", line);
        }
    }
}

}  // namespace

std::string CabrilloWriter::write(const ADIFDocument& document) const {
    CabrilloHeader completed = header;
    if (completed.callsign.empty()) {
        completed.callsign = CabrilloHeader::suggested(document).callsign;
    }
    if (completed.operators.empty()) {
        completed.operators = completed.callsign;
    }
    std::string text;
    constexpr std::size_t usualLineLength = 88;
    text.reserve(1024 + completed.soapbox.size() + document.records().size() * usualLineLength);
    appendHeader(text, completed);
    QSOLines lines(completed, completed.callsign);
    for (const ADIFRecord& record : inTimeOrder(document.records())) {
        lines.append(text, record);
        text += lineEnd;
    }
    text += "END-OF-LOG:";
    text += lineEnd;
    return text;
}

std::string CabrilloWriter::qsoLine(const ADIFRecord& record, std::string_view myCall) const {
    std::string line;
    QSOLines(header, myCall).append(line, record);
    return line;
}

std::string CabrilloWriter::cabrilloFrequency(std::optional<std::string_view> freq,
                                              std::optional<std::string_view> band) {
    const std::optional<double> mhz = freq ? text::number(*freq) : std::nullopt;
    if (mhz) {
        return std::to_string(text::wholeNumber(std::round(*mhz * 1000)).value_or(0));
    }
    const auto* const known =
        std::ranges::find(bandFrequencies, text::upper(band.value_or(std::string_view())),
                          &std::pair<std::string_view, std::string_view>::first);
    return std::string(known == bandFrequencies.end() ? "0" : known->second);
}

std::string CabrilloWriter::cabrilloMode(std::optional<std::string_view> mode) {
    const std::string upper = text::upper(mode.value_or(std::string_view()));
    if (upper == "CW") {
        return "CW";
    }
    if (upper == "SSB" || upper == "USB" || upper == "LSB" || upper == "AM" || upper == "FM") {
        return "PH";
    }
    return upper == "RTTY" ? "RY" : "DG";
}

std::string CabrilloWriter::cabrilloDate(std::optional<std::string_view> date) {
    const std::string_view text = date.value_or(std::string_view());
    if (!text::hasLength(text, 8)) {
        return std::string(text);
    }
    const std::string_view year = text::firstCharacters(text, 4);
    const std::string_view yearAndMonth = text::firstCharacters(text, 6);
    std::string result(year);
    result += '-';
    result += yearAndMonth.substr(year.size());
    result += '-';
    result += text.substr(yearAndMonth.size());
    return result;
}

}  // namespace tallyrig
