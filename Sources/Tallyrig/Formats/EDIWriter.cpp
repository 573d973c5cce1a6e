// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/EDIWriter.h"

#include "Tallyrig/Formats/EDIBands.h"
#include "Tallyrig/Formats/EDIQSO.h"
#include "Tallyrig/Formats/LogLines.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>
#include <limits>
#include <unordered_set>

namespace tallyrig {

namespace {

std::int64_t cappedSum(std::int64_t left, std::int64_t right) {
    using Limits = std::numeric_limits<std::int64_t>;
    if (right > 0) {
        return left > Limits::max() - right ? Limits::max() : left + right;
    }
    return left < Limits::min() - right ? Limits::min() : left + right;
}

/// The distinct texts among those given that are not empty.
class DistinctTexts {
  public:
    void add(std::string_view text) {
        if (text.empty() || texts.contains(text)) {
            return;
        }
        texts.insert(text::canonicalKey(text));
    }
    std::size_t size() const { return texts.size(); }

  private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
    };

    std::unordered_set<std::string, Hash, std::equal_to<>> texts;
};

/// Remembers the QSOs by call and band.
class SeenQSOs {
  public:
    /// Whether the like of `qso` was added before.
    bool add(const EDIQSO& qso) {
        std::string key = text::upper(qso.call());
        key += '|';
        key += qso.band();
        return !keys.insert(text::canonicalKey(key)).second;
    }

  private:
    std::unordered_set<std::string> keys;
};

/// The QSO lines of a file and what they add up to.
class Claim {
  public:
    explicit Claim(const EDIHeader& fileHeader)
        : header(fileHeader), myPlace(maidenheadToCoordinate(fileHeader.locator)) {}

    void add(const ADIFRecord& record) {
        qso.read(record);
        const bool isDuplicate = seen.add(qso);
        const std::string rcvdWWL = text::upper(qso.gridsquare());
        squares.add(text::firstCharacters(rcvdWWL, 4));
        countries.add(text::upper(qso.country()));
        bands.add(text::upper(qso.band()));
        const std::int64_t km = qso.km(myPlace);
        if (best ? km > best->km : km >= 0) {
            best = {text::upper(qso.call()), rcvdWWL, km};
        }
        const auto points = pointsOf(record, km, isDuplicate);
        if (points) {
            total = cappedSum(total.value_or(0), *points);
        }
        qso.appendLine(qsoLines, rcvdWWL, points ? std::to_string(*points) : "", isDuplicate ? "D" : "");
        qsoLines += "\r\n";
        ++count;
    }

    std::size_t qsoCount() const { return count; }
    std::size_t squareCount() const { return squares.size(); }
    std::size_t countryCount() const { return countries.size(); }
    std::size_t bandMultiplier() const { return std::max<std::size_t>(bands.size(), 1); }
    /// Empty if no points were counted.
    std::string totalPoints() const { return total ? std::to_string(*total) : ""; }
    /// Call, locator and kilometres of the farthest station.
    std::string bestDistance() const {
        if (header.pointsMode != EDIPointsMode::distance) {
            return "";
        }
        return best && best->km >= 1 ? fmt::format("{};{};{}", best->call, best->locator, best->km) : ";;0";
    }
    const std::string& lines() const { return qsoLines; }

  private:
    struct Best {
        std::string call;
        std::string locator;
        std::int64_t km = 0;
    };

    std::optional<std::int64_t> pointsOf(const ADIFRecord& record, std::int64_t km, bool isDuplicate) const {
        switch (header.pointsMode) {
            case EDIPointsMode::distance:
                return isDuplicate ? 0 : km;
            case EDIPointsMode::blank:
                return std::nullopt;
            case EDIPointsMode::adifField:
                break;
        }
        const auto value = text::number(record.valueOrEmpty(header.pointsField));
        return value ? std::optional(text::wholeNumber(std::round(*value)).value_or(0)) : std::nullopt;
    }

    const EDIHeader& header;
    std::optional<Coordinate> myPlace;
    EDIQSO qso;
    SeenQSOs seen;
    DistinctTexts squares;
    DistinctTexts countries;
    DistinctTexts bands;
    std::optional<std::int64_t> total;
    std::optional<Best> best;
    std::string qsoLines;
    std::size_t count = 0;
};

void appendKey(std::string& text, std::string_view key, std::string_view value) {
    fmt::format_to(std::back_inserter(text), "{}={}\r\n", key, value);
}

void appendOperators(std::string& text, std::string_view operators) {
    constexpr std::size_t places = 8;
    std::size_t count = 0;
    for (const std::string_view piece : text::split(operators, ',')) {
        const std::string_view call = text::trimmedOfBlanks(piece);
        if (!call.empty() && count < places) {
            appendKey(text, fmt::format("MOpe{}", ++count), call);
        }
    }
    if (count == 0) {
        appendKey(text, "MOpe1", "");
        appendKey(text, "MOpe2", "");
    }
}

void appendStation(std::string& text, const EDIHeader& header) {
    appendKey(text, "TName", header.contestName);
    appendKey(text, "TDate", header.dateStart + ";" + header.dateEnd);
    appendKey(text, "PCall", header.callsign);
    appendKey(text, "PWWLo", header.locator);
    appendKey(text, "PExch", header.locator);
    appendKey(text, "PAdr1", header.address1);
    appendKey(text, "PAdr2", header.address2);
    appendKey(text, "PSect", header.section);
    appendKey(text, "PBand", header.band);
    appendKey(text, "PClub", header.club);
    appendKey(text, "RName", header.responsibleName);
    appendKey(text, "RCall", header.responsibleCall);
    appendKey(text, "RAdr1", "");
    appendKey(text, "RAdr2", "");
    appendKey(text, "RPoCo", header.postalCode);
    appendKey(text, "RCity", header.city);
    appendKey(text, "RCoun", "");
    appendKey(text, "RPhon", "");
    appendKey(text, "RHBBS", header.responsibleEmail);
    appendOperators(text, header.operators);
    appendKey(text, "STXEq", header.txEquipment);
    appendKey(text, "SPowe", header.power);
    appendKey(text, "SRXEq", header.rxEquipment);
    appendKey(text, "SAnte", header.antenna);
    appendKey(text, "SAntH", header.antennaHeight);
}

void appendClaim(std::string& text, const Claim& claim) {
    const std::size_t multiplier = claim.bandMultiplier();
    appendKey(text, "CQSOs", fmt::format("{};{}", claim.qsoCount(), multiplier));
    appendKey(text, "CQSOP", claim.totalPoints());
    appendKey(text, "CWWLs", fmt::format("{};0;{}", claim.squareCount(), multiplier));
    appendKey(text, "CWWLB", "0");
    appendKey(text, "CExcs", fmt::format("0;0;{}", multiplier));
    appendKey(text, "CExcB", "0");
    appendKey(text, "CDXCs", fmt::format("{};0;{}", claim.countryCount(), multiplier));
    appendKey(text, "CDXCB", "0");
    appendKey(text, "CToSc", claim.totalPoints());
    appendKey(text, "CODXC", claim.bestDistance());
}

}  // namespace

std::string EDIWriter::write(const ADIFDocument& document) const {
    EDIHeader complete = header;
    if (complete.callsign.empty() || complete.locator.empty()) {
        const EDIHeader suggested = EDIHeader::suggested(document);
        complete.callsign = complete.callsign.empty() ? suggested.callsign : complete.callsign;
        complete.locator = complete.locator.empty() ? suggested.locator : complete.locator;
    }
    Claim claim(complete);
    for (const ADIFRecord& record : inTimeOrder(document.records())) {
        claim.add(record);
    }
    std::string text = "[REG1TEST;1]\r\n";
    appendStation(text, complete);
    appendClaim(text, claim);
    text += "[Remarks]\r\n";
    if (!complete.remarks.empty()) {
        text += text::trimmed(complete.remarks);
        text += "\r\n";
    }
    fmt::format_to(std::back_inserter(text), "[QSORecords;{}]\r\n", claim.qsoCount());
    text += claim.lines();
    fmt::format_to(std::back_inserter(text), "[end;{}]\r\n", claim.qsoCount());
    return text;
}

std::string EDIWriter::qsoLine(const ADIFRecord& record, std::string_view rcvdWWL, std::string_view points,
                               std::string_view dupl) {
    EDIQSO qso;
    qso.read(record);
    std::string line;
    qso.appendLine(line, rcvdWWL, points, dupl);
    return line;
}

std::string_view EDIWriter::ediBand(std::string_view adifBand) {
    return ediBandName(adifBand);
}

std::string_view EDIWriter::ediMode(std::optional<std::string_view> mode) {
    return EDIQSO::modeCode(mode);
}

std::vector<bool> EDIWriter::computeDupes(std::span<const ADIFRecord> records) {
    std::vector<bool> dupes;
    dupes.reserve(records.size());
    EDIQSO qso;
    SeenQSOs seen;
    for (const ADIFRecord& record : records) {
        qso.read(record);
        dupes.push_back(seen.add(qso));
    }
    return dupes;
}

std::string_view EDIWriter::serialFromExchange(std::optional<std::string_view> exchange) {
    return EDIQSO::serialIn(exchange);
}

std::int64_t EDIWriter::qrbKm(const ADIFRecord& record, std::string_view myLocator) {
    EDIQSO qso;
    qso.read(record);
    return qso.km(tallyrig::maidenheadToCoordinate(myLocator));
}

}  // namespace tallyrig
