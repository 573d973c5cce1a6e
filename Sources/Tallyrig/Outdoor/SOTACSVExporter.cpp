// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Outdoor/SOTACSVExporter.h"

#include "Tallyrig/Log/RecordValues.h"
#include "Tallyrig/Outdoor/EarliestDate.h"
#include "Tallyrig/Outdoor/OutdoorProgram.h"
#include "Tallyrig/Outdoor/ReferenceGroups.h"
#include "Tallyrig/Outdoor/SOTAReference.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Text/TextMap.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyrig {

namespace {

/// What the format has for a band, by its name in lower case.
const TextMap<std::string_view>& bandFrequencies() {
    static const TextMap<std::string_view> table = {
        {"160m", "1.8MHz"}, {"80m", "3.5MHz"}, {"60m", "5MHz"},   {"40m", "7.0MHz"},  {"30m", "10MHz"},
        {"20m", "14MHz"},   {"17m", "18MHz"},  {"15m", "21MHz"},  {"12m", "24MHz"},   {"10m", "28MHz"},
        {"6m", "50MHz"},    {"4m", "70MHz"},   {"2m", "144MHz"},  {"70cm", "432MHz"}, {"23cm", "1.2GHz"},
        {"13cm", "2.3GHz"}, {"9cm", "3.4GHz"}, {"6cm", "5.7GHz"}, {"3cm", "10GHz"}};
    return table;
}

std::string bandColumn(std::string_view storedBand, std::string_view storedFrequency) {
    const std::string_view band = text::trimmedOfBlanks(storedBand);
    if (const std::string_view* const known = bandFrequencies().find(text::lower(band))) {
        return std::string(*known);
    }
    const auto megahertz = text::number(text::trimmedOfBlanks(storedFrequency));
    return megahertz && *megahertz > 0 && std::isfinite(*megahertz) ? fmt::format("{:.4g}MHz", *megahertz)
                                                                    : std::string(band);
}

/// YYYYMMDD as DD/MM/YYYY; anything else as it stands.
std::string dateColumn(std::string_view value) {
    const std::string_view date = text::trimmedOfBlanks(value);
    if (!text::hasLength(date, 8) || !text::isAllNumeric(date)) {
        return std::string(date);
    }
    const std::string_view year = text::firstCharacters(date, 4);
    const std::string_view yearAndMonth = text::firstCharacters(date, 6);
    return fmt::format("{}/{}/{}", date.substr(yearAndMonth.size()), yearAndMonth.substr(year.size()), year);
}

/// The format knows no quotation marks: what would end a column or a line becomes a blank.
std::string cleaned(std::string_view value) {
    std::string text(value);
    std::ranges::replace_if(
        text, [](char c) { return c == ',' || c == '\n' || c == '\r'; }, ' ');
    return std::string(text::trimmedOfBlanks(text));
}

std::string inFileName(std::string_view value) {
    std::string text(value);
    std::ranges::replace(text, '/', '_');
    return text;
}

/// The content of the file in the making. Refers to the document.
class Lines {
  public:
    explicit Lines(const ADIFDocument& document) : records(document.records()) {
        EarliestDate earliest;
        times.reserve(records.size());
        for (const ADIFRecord& record : records) {
            values.read(record);
            if (stationCall.empty()) {
                stationCall = SOTAReference::resolveCall(record);
            }
            earliest.add(values.valueOrEmpty(qsoDate));
            times.push_back(timeOfRecord());
        }
        if (stationCall.empty()) {
            stationCall = "UNKNOWN";
        }
        date = earliest.text();
    }

    const std::string& call() const { return stationCall; }
    const std::string& firstDate() const { return date; }

    /// Appends the lines of these QSOs in order of time; an activator's name the summit.
    void append(std::vector<std::size_t> indices, std::optional<std::string_view> summit) {
        const auto timeOf = [this](std::size_t index) -> const std::string& { return times[index]; };
        if (!std::ranges::is_sorted(indices, {}, timeOf)) {
            std::ranges::stable_sort(indices, {}, timeOf);
        }
        for (const std::size_t index : indices) {
            appendLine(records[index], summit);
        }
    }

    OutdoorExportFiles file(std::string_view reference, std::string filename) {
        return {1, [file = OutdoorExportFile{std::string(reference), std::move(filename), std::move(content),
                                             count}](std::size_t) { return file; }};
    }

  private:
    enum Field : std::size_t { qsoDate, timeOn, band, freq, mode, workedCall, sotaRef, comment };

    /// What QSOs are sorted by: the bytes of UTF-8 stand in the order of its code points.
    std::string timeOfRecord() const {
        constexpr std::size_t length = 6;
        std::string text(text::trimmedOfBlanks(values.valueOrEmpty(qsoDate)));
        const std::string_view time =
            text::firstCharacters(text::trimmedOfBlanks(values.valueOrEmpty(timeOn)), length);
        text += time;
        text.append(length - text::characterCount(time), '0');
        return text::isASCII(text) ? text : text::canonicalKey(text);
    }

    void appendLine(const ADIFRecord& record, std::optional<std::string_view> summit) {
        values.read(record);
        content += "V2,";
        content += cleaned(stationCall);
        if (summit) {
            content += ',';
            content += cleaned(*summit);
        }
        for (const std::string& column :
             {dateColumn(values.valueOrEmpty(qsoDate)),
              std::string(text::firstCharacters(text::trimmedOfBlanks(values.valueOrEmpty(timeOn)), 4)),
              bandColumn(values.valueOrEmpty(band), values.valueOrEmpty(freq)),
              cleaned(values.valueOrEmpty(mode)), cleaned(values.valueOrEmpty(workedCall)),
              cleaned(values.valueOrEmpty(sotaRef)), cleaned(values.valueOrEmpty(comment))}) {
            content += ',';
            content += column;
        }
        content += "\r\n";
        ++count;
    }

    const ADIFRecordList& records;
    RecordValues values{{"QSO_DATE", "TIME_ON", "BAND", "FREQ", "MODE", "CALL", "SOTA_REF", "COMMENT"}};
    std::vector<std::string> times;  ///< By record.
    std::string stationCall;
    std::string date;
    std::string content;
    std::size_t count = 0;
};

OutdoorExportFiles activatorFile(const ADIFDocument& document) {
    ReferenceGroups summits;
    RecordValues values({summitField(SOTARole::activator)});
    std::size_t index = 0;
    for (const ADIFRecord& record : document.records()) {
        values.read(record);
        forEachReference(values.valueOrEmpty(0),
                         [&](std::string_view summit) { summits.add(index, summit); });
        ++index;
    }
    summits.finish();
    if (summits.size() == 0) {
        return {};
    }
    Lines lines(document);
    for (std::size_t summit = 0; summit < summits.size(); ++summit) {
        const auto indices = summits.records(summit);
        std::vector<std::size_t> different(indices.begin(), indices.end());
        different.erase(std::ranges::unique(different).begin(), different.end());
        lines.append(std::move(different), summits.reference(summit));
    }
    const std::string_view first = summits.reference(0);
    return lines.file(first,
                      inFileName(lines.call()) + '@' + inFileName(first) + ' ' + lines.firstDate() + ".csv");
}

OutdoorExportFiles chaserFile(const ADIFDocument& document) {
    std::vector<std::size_t> chases;
    RecordValues values({summitField(SOTARole::chaser)});
    std::size_t index = 0;
    for (const ADIFRecord& record : document.records()) {
        values.read(record);
        if (!text::trimmedOfBlanks(values.valueOrEmpty(0)).empty()) {
            chases.push_back(index);
        }
        ++index;
    }
    if (chases.empty()) {
        return {};
    }
    Lines lines(document);
    lines.append(std::move(chases), std::nullopt);
    return lines.file("chaser", inFileName(lines.call()) + " chaser " + lines.firstDate() + ".csv");
}

}  // namespace

OutdoorExportFiles SOTACSVExporter::files(const ADIFDocument& document) const {
    return role == SOTARole::activator ? activatorFile(document) : chaserFile(document);
}

}  // namespace tallyrig
