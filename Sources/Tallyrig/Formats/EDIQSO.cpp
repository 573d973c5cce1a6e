#include "Tallyrig/Formats/EDIQSO.h"

#include "Tallyrig/Formats/EDIWriter.h"
#include "Tallyrig/Formats/LogLines.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"

#include <fmt/format.h>

#include <cmath>
#include <iterator>

namespace tallyrig {

namespace {

/// In the order of the names given to `RecordValues`.
enum Field : std::size_t {
    qsoDate,
    timeOn,
    callField,
    bandField,
    mode,
    rstSent,
    stx,
    rstRcvd,
    srxString,
    srx,
    gridsquareField,
    countryField,
    distance,
};

/// The day without its century.
std::string_view shortDate(std::string_view date) {
    return hasLength(date, 8) ? date.substr(firstCharacters(date, 2).size()) : date;
}

/// The report, in every mode 59 where the log has none.
std::string_view report(std::string_view logged) {
    return logged.empty() ? "59" : logged;
}

/// At least three digits; what is no number as it stands.
void appendSentNumber(std::string& text, std::string_view serial) {
    if (const auto number = text::integer(serial)) {
        fmt::format_to(std::back_inserter(text), "{:03}", *number);
    } else {
        text += serial;
    }
}

}  // namespace

EDIQSO::EDIQSO()
    : values({"QSO_DATE", "TIME_ON", "CALL", "BAND", "MODE", "RST_SENT", "STX", "RST_RCVD", "SRX_STRING",
              "SRX", "GRIDSQUARE", "COUNTRY", "DISTANCE"}) {}

std::string_view EDIQSO::call() const {
    return values.valueOrEmpty(callField);
}

std::string_view EDIQSO::band() const {
    return values.valueOrEmpty(bandField);
}

std::string_view EDIQSO::gridsquare() const {
    return values.valueOrEmpty(gridsquareField);
}

std::string_view EDIQSO::country() const {
    return values.valueOrEmpty(countryField);
}

std::int64_t EDIQSO::km(const std::optional<Coordinate>& myPlace) const {
    if (const auto logged = text::number(values.valueOrEmpty(distance))) {
        const auto whole = text::wholeNumber(std::trunc(*logged));
        return whole ? *whole + 1 : 0;
    }
    const auto place = maidenheadToCoordinate(gridsquare());
    return myPlace && place ? static_cast<std::int64_t>(greatCircleKm(*myPlace, *place)) + 1 : 0;
}

void EDIQSO::appendLine(std::string& text, std::string_view rcvdWWL, std::string_view points,
                        std::string_view dupl) const {
    const auto append = [&text](std::string_view column) {
        text += column;
        text += ';';
    };
    const std::string_view exchange = values.valueOrEmpty(srxString);
    append(shortDate(values.valueOrEmpty(qsoDate)));
    append(firstCharacters(values.valueOrEmpty(timeOn), 4));
    append(text::upper(call()));
    append(EDIWriter::ediMode(values[mode]));
    append(report(values.valueOrEmpty(rstSent)));
    appendSentNumber(text, values.valueOrEmpty(stx));
    text += ';';
    append(report(values.valueOrEmpty(rstRcvd)));
    append(EDIWriter::serialFromExchange(exchange.empty() ? values.valueOrEmpty(srx) : exchange));
    append("");  // the exchange received, which is not kept apart from its number
    append(rcvdWWL);
    append(points);
    // New exchange, new locator, new country: for the evaluator to find.
    text += ";;;";
    text += dupl;
}

}  // namespace tallyrig
