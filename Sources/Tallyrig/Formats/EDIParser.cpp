// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/EDIParser.h"

#include "Tallyrig/Formats/ColumnRecordBuilder.h"
#include "Tallyrig/Formats/EDIBands.h"
#include "Tallyrig/Formats/EDINotes.h"
#include "Tallyrig/Formats/LineReading.h"
#include "Tallyrig/Formats/LogLines.h"
#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Lines.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace tallyrig {

namespace {

/// The header of a file: of its many keys those that end up in a record.
class Header {
  public:
    /// Takes a "key=value" line. A key seen again replaces the value; a line without "=" says nothing.
    /// `notes` may be null.
    void take(std::string_view line, EDINotes* notes) {
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) {
            if (notes != nullptr) {
                notes->tellLine(line, std::nullopt, {});
            }
            return;
        }
        const std::string key = text::upper(text::trimmedOfBlanks(line.substr(0, equals)));
        const std::string_view value = line.substr(equals + 1);
        const auto* const name = std::ranges::find(names, key);
        if (name != names.end()) {
            auto& known = values[static_cast<std::size_t>(name - names.begin())];
            if (notes != nullptr) {
                notes->tellReplaced(line, key, known.value_or(std::string_view()), value);
            }
            known = value;
        } else if (notes != nullptr) {
            notes->tellLine(line, key, value);
        }
    }

    EDIParser::CommonValues commonValues() const {
        std::array<std::string_view, names.size() - firstOperator> calls;
        std::transform(values.begin() + firstOperator, values.end(), calls.begin(),
                       [](const auto& call) { return call.value_or(std::string_view()); });
        return {.century = EDIParser::century(values[tDate]),
                .myCall = text::upper(trimmed(pCall)),
                // A locator that is there and empty still goes before the exchange.
                .myLoc = text::upper(trimmed(values[pWWLo] ? pWWLo : pExch)),
                .contest = std::string(trimmed(tName)),
                .band = EDIParser::adifBand(values[pBand].value_or(std::string_view())),
                .operators = EDIParser::operators(calls)};
    }

  private:
    enum Key : std::size_t { pCall, pWWLo, pExch, tName, pBand, tDate, firstOperator };
    static constexpr std::array<std::string_view, 14> names = {"PCALL", "PWWLO", "PEXCH", "TNAME", "PBAND",
                                                               "TDATE", "MOPE1", "MOPE2", "MOPE3", "MOPE4",
                                                               "MOPE5", "MOPE6", "MOPE7", "MOPE8"};

    std::string_view trimmed(Key key) const {
        return text::trimmedOfBlanks(values[key].value_or(std::string_view()));
    }

    std::array<std::optional<std::string_view>, names.size()> values;
};

/// Makes the records of one file. The lines given to it outlive it.
class QSOReading {
  public:
    explicit QSOReading(const EDIParser::CommonValues& common) : century(common.century) {
        builder.addColumn(builder.tag("BAND"), common.band);
        builder.addColumn(builder.tag("STATION_CALLSIGN"), common.myCall);
        builder.addColumn(builder.tag("MY_GRIDSQUARE"), common.myLoc);
        builder.addColumn(builder.tag("CONTEST_ID"), common.contest);
        builder.addColumn(builder.tag("OPERATOR"), common.operators);
        builder.copyFields(0, commonFields);
        builder.dropFields();
    }

    std::optional<ADIFRecord> record(std::string_view line) {
        if (!split(line)) {
            return std::nullopt;
        }
        addDate(columns[0]);
        builder.addTime(timeOn, columns[1]);
        builder.addUpper(call, columns[2]);
        builder.addColumn(mode, EDIParser::adifMode(columns[3]));
        builder.addColumn(rstSent, columns[4]);
        builder.addSerial(stx, columns[5]);
        builder.addColumn(rstRcvd, columns[6]);
        builder.addSerial(srx, columns[7]);
        builder.addUpper(gridsquare, columns[9]);
        builder.addRun(commonFields);
        // Never without fields: a mode is always there.
        return builder.takeRecord();
    }

    /// Of the latest line: its columns, as many as are read, its call, and what stands behind those columns.
    std::size_t columnCount() const { return found; }
    std::string_view callColumn() const { return columns[2]; }
    std::string_view rest() const { return behindColumns; }

  private:
    /// Date, time, call, mode, report and number sent, report, number and exchange received, locator. What
    /// follows, points and flags, is for the evaluator to find anew.
    using Columns = std::array<std::string_view, 10>;

    /// Finds the columns of `line`, trimmed; those behind its end are empty. False if there are too few.
    bool split(std::string_view line) {
        constexpr std::size_t fewest = 4;
        std::size_t count = 0;
        for (bool isLast = false; !isLast && count < columns.size();) {
            const std::size_t end = std::min(line.find(';'), line.size());
            columns[count++] = text::trimmedOfBlanks(line.substr(0, end));
            isLast = end == line.size();
            line.remove_prefix(isLast ? end : end + 1);
        }
        std::fill(columns.begin() + static_cast<std::ptrdiff_t>(count), columns.end(), std::string_view());
        found = count;
        behindColumns = line;
        return count >= fewest;
    }

    void addDate(std::string_view date) {
        dates.addTo(builder, date, [this](std::string_view column) {
            builder.addColumn(qsoDate, EDIParser::adifDate(column, century));
        });
    }

    const std::string century;
    Columns columns;  ///< Of the line at hand.
    std::size_t found = 0;
    std::string_view behindColumns;
    RepeatedColumn dates;
    ADIFRecordBuilder::Run commonFields;  ///< At the end of every record.
    ColumnRecordBuilder builder;
    const FieldTags::Number qsoDate = builder.tag("QSO_DATE");
    const FieldTags::Number timeOn = builder.tag("TIME_ON");
    const FieldTags::Number call = builder.tag("CALL");
    const FieldTags::Number mode = builder.tag("MODE");
    const FieldTags::Number rstSent = builder.tag("RST_SENT");
    const FieldTags::Number stx = builder.tag("STX");
    const FieldTags::Number rstRcvd = builder.tag("RST_RCVD");
    const FieldTags::Number srx = builder.tag("SRX");
    const FieldTags::Number gridsquare = builder.tag("GRIDSQUARE");
};

/// The log in `text`; what is met besides goes to `notes`, which may be null.
ADIFDocument documentIn(std::string_view text, EDINotes* notes) {
    Header header;
    std::vector<std::string_view> qsoLines;
    bool isInQSOs = false;
    for (std::string_view line = text::takeLine(text); !line.empty(); line = text::takeLine(text)) {
        if (line.front() == '[') {
            isInQSOs = text::upper(line).starts_with("[QSORECORDS");
            if (notes != nullptr) {
                notes->tellSection(line);
            }
        } else if (!isInQSOs) {
            header.take(line, notes);
        } else if (!text::trimmedOfBlanks(line).empty()) {
            qsoLines.push_back(line);
        }
    }
    // Only now is the header complete: its keys may stand behind the QSOs.
    const EDIParser::CommonValues common = header.commonValues();
    QSOReading reading(common);
    ADIFRecordList records;
    for (const std::string_view line : qsoLines) {
        auto record = reading.record(line);
        if (notes != nullptr && record) {
            notes->tellQSO(line, reading.columnCount(), reading.rest(), reading.callColumn(), records.size());
        } else if (notes != nullptr) {
            notes->tellShort(line, reading.columnCount());
        }
        if (record) {
            records.append(*std::move(record));
        }
    }
    return {"", {}, std::move(records)};
}

}  // namespace

ADIFDocument EDIParser::parse(std::string_view data) {
    std::string buffer;
    return documentIn(text::decoded(data, buffer), nullptr);
}

ReadDocument EDIParser::read(std::string_view data) {
    return readLines(data, documentIn);
}

std::optional<ADIFRecord> EDIParser::record(std::string_view line, const CommonValues& common) {
    return QSOReading(common).record(line);
}

std::string EDIParser::adifBand(std::string_view ediBand) {
    const std::string_view written = text::trimmedOfBlanks(ediBand);
    const std::string name = text::upper(written);
    const auto* const known =
        std::ranges::find_if(ediBands, [&](const EDIBand& band) { return text::upper(band.edi) == name; });
    return std::string(known == ediBands.end() ? written : known->adif);
}

std::string EDIParser::operators(std::span<const std::string_view> calls) {
    std::string list;
    for (const std::string_view call : calls) {
        const std::string_view written = text::trimmedOfBlanks(call);
        if (!written.empty()) {
            list += list.empty() ? "" : ",";
            list += text::upper(written);
        }
    }
    return list;
}

std::string EDIParser::century(std::optional<std::string_view> tDate) {
    const std::string_view dates = text::trimmedOfBlanks(tDate.value_or(std::string_view()));
    const std::string digits = text::numericCharacters(dates.substr(0, dates.find(';')));
    if (text::characterCount(digits) <= 3) {
        return "20";
    }
    // A digit may carry any number of marks, and the century goes into every date.
    constexpr std::size_t longest = 64;
    const std::string_view firstTwo = text::firstCharacters(digits, 2);
    return firstTwo.size() <= longest ? std::string(firstTwo) : "20";
}

std::string EDIParser::adifDate(std::string_view ediDate, std::string_view century) {
    std::string digits = text::numericCharacters(ediDate);
    if (text::hasLength(digits, 6)) {
        digits.insert(0, century);
    }
    return digits;
}

std::string EDIParser::adifTime(std::string_view ediTime) {
    return timeOfColumn(ediTime);
}

std::string_view EDIParser::adifMode(std::string_view code) {
    // 0 is no mode, and 3 and 4 are another one for each direction: all three count as phone.
    constexpr std::array<std::string_view, 10> modes = {"SSB", "SSB", "CW",  "SSB",  "SSB",
                                                        "AM",  "FM",  "FT8", "RTTY", "SSTV"};
    const std::string_view digit = text::trimmedOfBlanks(code);
    return digit.size() == 1 && text::isASCIIDigit(digit.front())
               ? modes[static_cast<std::size_t>(digit.front() - '0')]
               : "SSB";
}

}  // namespace tallyrig
