// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/EDIQSO.h"

#include "Tallyrig/Formats/LogLines.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
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
    return text::hasLength(date, 8) ? date.substr(text::firstCharacters(date, 2).size()) : date;
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

std::string_view EDIQSO::modeCode(std::optional<std::string_view> mode) {
    struct Mode {
        std::string_view adif;
        std::string_view code;
    };
    constexpr std::array<Mode, 15> modes = {{{"SSB", "1"},
                                             {"USB", "1"},
                                             {"LSB", "1"},
                                             {"CW", "2"},
                                             {"AM", "5"},
                                             {"FM", "6"},
                                             {"NFM", "6"},
                                             {"FT8", "7"},
                                             {"FT4", "7"},
                                             {"MSK144", "7"},
                                             {"Q65", "7"},
                                             {"JT65", "7"},
                                             {"JT9", "7"},
                                             {"RTTY", "8"},
                                             {"SSTV", "9"}}};
    const std::string name = text::canonicalKey(text::upper(mode.value_or(std::string_view())));
    const auto* const known = std::ranges::find(modes, name, &Mode::adif);
    return known == modes.end() ? "1" : known->code;
}

std::string_view EDIQSO::serialIn(std::optional<std::string_view> exchange) {
    std::string_view rest = text::trimmedOfBlanks(exchange.value_or(std::string_view()));
    while (!rest.empty()) {
        const std::size_t blank = rest.rfind(' ');
        const std::string_view word = blank == std::string_view::npos ? rest : rest.substr(blank + 1);
        if (!word.empty() && text::isAllNumeric(word)) {
            return word;
        }
        rest = rest.substr(0, blank == std::string_view::npos ? 0 : blank);
    }
    return {};
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
    append(text::firstCharacters(values.valueOrEmpty(timeOn), 4));
    append(text::upper(call()));
    append(modeCode(values[mode]));
    append(report(values.valueOrEmpty(rstSent)));
    appendSentNumber(text, values.valueOrEmpty(stx));
    text += ';';
    append(report(values.valueOrEmpty(rstRcvd)));
    append(serialIn(exchange.empty() ? values.valueOrEmpty(srx) : exchange));
    append("");  // the exchange received, which is not kept apart from its number
    append(rcvdWWL);
    append(points);
    // New exchange, new locator, new country: for the evaluator to find.
    text += ";;;";
    text += dupl;
}

}  // namespace tallyrig
