// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/CabrilloParser.h"

#include "Tallyrig/Formats/CabrilloNotes.h"
#include "Tallyrig/Formats/ColumnRecordBuilder.h"
#include "Tallyrig/Formats/LineReading.h"
#include "Tallyrig/Formats/LogLines.h"
#include "Tallyrig/Log/BandNames.h"
#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Lines.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace tallyrig {

namespace {

struct BandRange {
    std::int64_t lowKHz;
    std::int64_t highKHz;
    std::string_view band;
};

/// The bands as contest logs use them; those of ADIF reach further in some places.
constexpr std::array<BandRange, 17> bandRanges = {{{1800, 2000, band::m160},
                                                   {3500, 4000, band::m80},
                                                   {5250, 5450, band::m60},
                                                   {7000, 7300, band::m40},
                                                   {10100, 10150, band::m30},
                                                   {14000, 14350, band::m20},
                                                   {18068, 18168, band::m17},
                                                   {21000, 21450, band::m15},
                                                   {24890, 24990, band::m12},
                                                   {28000, 29700, band::m10},
                                                   {50000, 54000, band::m6},
                                                   {70000, 71000, band::m4},
                                                   {144000, 148000, band::m2},
                                                   {222000, 225000, band::m1And25},
                                                   {420000, 450000, band::cm70},
                                                   {902000, 928000, band::cm33},
                                                   {1240000, 1300000, band::cm23}}};

constexpr std::array<std::pair<std::int64_t, std::string_view>, 6> mhzDesignators = {{{50, band::m6},
                                                                                      {70, band::m4},
                                                                                      {144, band::m2},
                                                                                      {222, band::m1And25},
                                                                                      {432, band::cm70},
                                                                                      {902, band::cm33}}};

constexpr std::array<std::pair<std::string_view, std::string_view>, 8> ghzDesignators = {
    {{"1.2G", band::cm23},
     {"2.3G", band::cm13},
     {"3.4G", band::cm9},
     {"5.7G", band::cm6},
     {"10G", band::cm3},
     {"24G", band::cm1And25},
     {"47G", band::mm6},
     {"76G", band::mm4}}};

/// "DG" and "FM" alike are taken for FT8.
constexpr std::array<std::pair<std::string_view, std::string_view>, 5> adifModes = {
    {{"CW", "CW"}, {"PH", "SSB"}, {"RY", "RTTY"}, {"DG", "FT8"}, {"FM", "FT8"}}};

/// The value of the pair with this key, empty if there is none.
template <typename Pairs, typename Key>
std::string_view valueFor(const Pairs& pairs, const Key& key) {
    const auto* const found = std::ranges::find(pairs, key, &Pairs::value_type::first);
    return found == pairs.end() ? std::string_view() : found->second;
}

void dropTrailingZeros(std::string& decimals) {
    decimals.resize(decimals.find_last_not_of('0') + 1);
    if (decimals.ends_with('.')) {
        decimals.pop_back();
    }
}

/// `kHz`, at least 1000, in MHz.
std::string megahertz(std::int64_t kHz) {
    constexpr std::int64_t highestExact = 1'000'000'000;
    if (kHz > highestExact) {
        // Floating point rounds such a number in a way of its own.
        return CabrilloParser::trimFreq(static_cast<double>(kHz) / 1000);
    }
    std::string text = std::to_string(kHz);
    text.insert(text.size() - 3, 1, '.');
    dropTrailingZeros(text);
    return text;
}

/// Whether the upper-cased line begins with `tag`.
bool beginsWith(std::string_view line, std::string_view tag) {
    for (std::size_t at = 0; at < tag.size() && at < line.size(); ++at) {
        const char c = line[at];
        if (static_cast<unsigned char>(c) >= 0x80) {
            return text::upper(line).starts_with(tag);
        }
        if (text::upperASCII(c) != tag[at]) {
            return false;
        }
    }
    return line.size() >= tag.size();
}

/// What the header says of all QSOs.
struct Station {
    std::string callsign;
    std::string contest;
    std::string operators;
    std::string gridLocator;
};

/// Makes the records of one log. The lines given to it outlive it.
class RecordMaker {
  public:
    explicit RecordMaker(const Station& station) {
        builder.addColumn(builder.tag("STATION_CALLSIGN"), station.callsign);
        builder.addColumn(builder.tag("CONTEST_ID"), station.contest);
        builder.addColumn(builder.tag("OPERATOR"), station.operators);
        builder.addColumn(builder.tag("MY_GRIDSQUARE"), station.gridLocator);
        builder.copyFields(0, stationFields);
        builder.dropFields();
    }

    /// The record of the line, absent if it has too few columns.
    std::optional<ADIFRecord> record(std::string_view line) {
        line.remove_prefix(text::firstCharacters(line, 4).size());
        if (!text::splitAtBlanks(line, columns)) {
            return std::nullopt;
        }
        places.addTo(builder, columns[0], [this](std::string_view column) {
            const CabrilloParser::FrequencyAndBand place = CabrilloParser::frequencyAndBand(column);
            builder.addColumn(freq, place.freq);
            builder.addColumn(band, place.band);
        });
        modes.addTo(builder, columns[1], [this](std::string_view column) {
            builder.addColumn(mode, CabrilloParser::adifMode(column));
        });
        dates.addTo(builder, columns[2], [this](std::string_view column) {
            builder.addColumn(qsoDate, CabrilloParser::adifDate(column));
        });
        builder.addTime(timeOn, columns[3]);
        builder.addColumn(rstSent, columns[5]);
        builder.addColumn(stxString, columns[6]);
        builder.addUpper(call, columns[7]);
        builder.addColumn(rstRcvd, columns[8]);
        builder.addColumn(srxString, columns[9]);
        if (text::isAllNumeric(columns[9])) {
            builder.addSerial(srx, columns[9]);
        }
        builder.addRun(stationFields);
        return builder.takeRecord();
    }

    /// Columns of the line that made the latest record.
    std::string_view callColumn() const { return columns[7]; }
    std::string_view ownCallColumn() const { return columns[4]; }

  private:
    std::array<std::string_view, 10> columns;  ///< Of the line at hand.
    RepeatedColumn places;
    RepeatedColumn modes;
    RepeatedColumn dates;
    ADIFRecordBuilder::Run stationFields;  ///< At the end of every record.
    ColumnRecordBuilder builder;
    FieldTags::Number freq = builder.tag("FREQ");
    FieldTags::Number band = builder.tag("BAND");
    FieldTags::Number mode = builder.tag("MODE");
    FieldTags::Number qsoDate = builder.tag("QSO_DATE");
    FieldTags::Number timeOn = builder.tag("TIME_ON");
    FieldTags::Number rstSent = builder.tag("RST_SENT");
    FieldTags::Number stxString = builder.tag("STX_STRING");
    FieldTags::Number call = builder.tag("CALL");
    FieldTags::Number rstRcvd = builder.tag("RST_RCVD");
    FieldTags::Number srxString = builder.tag("SRX_STRING");
    FieldTags::Number srx = builder.tag("SRX");
};

/// Takes a header line; of a tag seen twice the later value holds. `notes` may be null.
void readHeaderLine(std::string_view line, Station& station, CabrilloNotes* notes) {
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos) {
        if (notes != nullptr) {
            notes->tellLine(line, std::nullopt);
        }
        return;
    }
    const std::string key = text::upper(text::trimmedOfBlanks(line.substr(0, colon)));
    const std::string_view value = text::trimmedOfBlanks(line.substr(colon + 1));
    const auto replace = [&](std::string& member, std::string text) {
        if (notes != nullptr) {
            notes->tellReplaced(line, key, member, text);
        }
        member = std::move(text);
    };
    if (key == "CALLSIGN") {
        replace(station.callsign, text::upper(value));
    } else if (key == "CONTEST") {
        replace(station.contest, std::string(value));
    } else if (key == "OPERATORS") {
        replace(station.operators, text::upper(value));
    } else if (key == "GRID-LOCATOR") {
        replace(station.gridLocator, text::upper(value));
    } else if (notes != nullptr) {
        notes->tellLine(line, key);
    }
}

/// The log in `text`; what is met besides goes to `notes`, which may be null.
ADIFDocument documentIn(std::string_view text, CabrilloNotes* notes) {
    Station station;
    // The header may go on behind the QSOs, so that they wait until all of it is known.
    std::vector<std::string_view> qsoLines;
    for (std::string_view line = text::takeLine(text); !line.empty(); line = text::takeLine(text)) {
        line = text::trimmedOfBlanks(line);
        if (beginsWith(line, "QSO:")) {
            qsoLines.push_back(line);
        } else if (!beginsWith(line, "X-QSO:")) {
            readHeaderLine(line, station, notes);
        } else if (notes != nullptr) {
            notes->tellLine(line, "X-QSO");
        }
    }
    RecordMaker maker(station);
    ADIFRecordList records;
    for (const std::string_view line : qsoLines) {
        if (auto record = maker.record(line)) {
            if (notes != nullptr) {
                notes->tellQSO(line, maker.callColumn(), maker.ownCallColumn(), records.size());
            }
            records.append(*std::move(record));
        } else if (notes != nullptr) {
            notes->tellShort(line);
        }
    }
    return {std::string(), {}, std::move(records)};
}

}  // namespace

ADIFDocument CabrilloParser::parse(std::string_view data) {
    std::string buffer;
    return documentIn(text::decoded(data, buffer), nullptr);
}

ReadDocument CabrilloParser::read(std::string_view data) {
    return readLines(data, documentIn);
}

std::optional<ADIFRecord> CabrilloParser::record(std::string_view line, std::string_view myCall,
                                                 std::string_view contest, std::string_view operators,
                                                 std::string_view grid) {
    const Station station{std::string(myCall), std::string(contest), std::string(operators),
                          std::string(grid)};
    return RecordMaker(station).record(line);
}

std::optional<std::string_view> CabrilloParser::bandForFrequency(std::int64_t kHz) {
    const auto* const range = std::ranges::find_if(bandRanges, [&](const BandRange& candidate) {
        return kHz >= candidate.lowKHz && kHz <= candidate.highKHz;
    });
    return range == bandRanges.end() ? std::nullopt : std::optional(range->band);
}

CabrilloParser::FrequencyAndBand CabrilloParser::frequencyAndBand(std::string_view column) {
    const std::string_view trimmed = text::trimmedOfBlanks(column);
    const std::optional<std::int64_t> number = text::integer(trimmed);
    if (!number) {
        return {std::string(), valueFor(ghzDesignators, text::upper(trimmed))};
    }
    if (*number < 1000) {
        return {std::to_string(*number), valueFor(mhzDesignators, *number)};
    }
    return {megahertz(*number), bandForFrequency(*number).value_or(std::string_view())};
}

std::string CabrilloParser::trimFreq(double mhz) {
    std::string text = fmt::format("{:.6f}", mhz);
    dropTrailingZeros(text);
    return text;
}

std::string CabrilloParser::adifMode(std::string_view column) {
    std::string mode = text::upper(column);
    const std::string_view known = valueFor(adifModes, mode);
    return known.empty() ? mode : std::string(known);
}

std::string CabrilloParser::adifDate(std::string_view column) {
    std::string digits = text::numericCharacters(column);
    return text::hasLength(digits, 8) ? digits : std::string(column);
}

std::string CabrilloParser::adifTime(std::string_view column) {
    return timeOfColumn(column);
}

}  // namespace tallyrig
