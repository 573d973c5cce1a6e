// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/LogReader.h"

#include "Tallyrig/Formats/ADXParser.h"
#include "Tallyrig/Formats/CabrilloParser.h"
#include "Tallyrig/Formats/EDIParser.h"
#include "Tallyrig/Formats/FileLooks.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Log/ADIRepair.h"
#include "Tallyrig/Log/ADITags.h"
#include "Tallyrig/Log/ReadDocument.h"
#include "Tallyrig/Log/ReadingNotes.h"
#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace tallyrig {

namespace {

/// How a file is read.
struct Wish {
    bool hasReport = true;
    std::optional<ReadingRepair> repair = {};
};

ReadDocument readADIF(std::string_view data, std::optional<ReadingRepair> repair) {
    if (!repair) {
        return ADIFParser::read(data);
    }
    const RepairedADI repaired(data, *repair);
    ReadDocument read = ADIFParser::read(repaired.text());
    read.report = repaired.withOffsetsOfFile(read.report);
    return read;
}

template <typename Parser>
ReadDocument readBy(std::string_view data, const Wish& wish) {
    return wish.hasReport ? Parser::read(data) : ReadDocument{Parser::parse(data), {}};
}

ReadDocument readAs(LogFormat format, std::string_view data, const Wish& wish) {
    switch (format) {
        case LogFormat::adx:
            return readBy<ADXParser>(data, wish);
        case LogFormat::cabrillo:
            return readBy<CabrilloParser>(data, wish);
        case LogFormat::edi:
            return readBy<EDIParser>(data, wish);
        case LogFormat::adif:
            break;
    }
    return wish.hasReport ? readADIF(data, wish.repair) : ReadDocument{ADIFParser::parse(data), {}};
}

/// `text` without an XML declaration at its head, whose encoding was that of the bytes before they became
/// this text.
std::string_view withoutXMLDeclaration(std::string_view text) {
    const std::size_t end = text.starts_with("<?xml") ? text.find("?>") : std::string_view::npos;
    return end == std::string_view::npos ? text : text.substr(end + 2);
}

/// Where `text` has the first line of a Cabrillo log, in either case.
std::optional<std::size_t> startOfLog(std::string_view text) {
    constexpr std::string_view marker = "START-OF-LOG";
    const auto isSame = [](char c, char m) { return text::upperASCII(c) == m; };
    const auto* const found = std::search(text.begin(), text.end(), marker.begin(), marker.end(), isSame);
    return found == text.end() ? std::nullopt : std::optional<std::size_t>(found - text.begin());
}

bool hasCalls(const ADIFDocument& document) {
    return std::ranges::any_of(document.records(),
                               [](const ADIFRecord& record) { return !record.valueOrEmpty("CALL").empty(); });
}

/// The report with one note more, about a place in `data`.
ReadingReport withNote(const ReadingReport& report, std::string_view data, ReadingKind kind,
                       std::size_t offset, FileLook look = FileLook::unknown) {
    ReadingNotes notes(data);
    notes.add(kind, offset)->look = look;
    const ReadingReport one = std::move(notes).report();
    std::vector<ReadingNote> all(report.notes().begin(), report.notes().end());
    const auto place = std::ranges::upper_bound(all, offset, {}, &ReadingNote::offset);
    all.insert(place, one.notes().begin(), one.notes().end());
    return ReadingReport(std::move(all), report.repair());
}

/// Whether nothing in `data`, read as `log`, is part of a log.
bool isNoLog(const LogReader::Log& log, std::string_view data) {
    switch (log.format) {
        case LogFormat::adif:
            return !hasCalls(log.document) && !likelyADITag(data, 0, data.size());
        case LogFormat::adx:
            return log.document == ADIFDocument() &&
                   !text::contains(text::upper(text::repaired(data.substr(0, 2048))), "<ADX");
        case LogFormat::cabrillo:
        case LogFormat::edi:
            return false;
    }
    return false;
}

/// The report of a log without QSOs.
ReadingReport reportWithoutQSOs(const LogReader::Log& log, std::string_view data) {
    if (text::trimmed(data).empty()) {
        return withNote({}, data, ReadingKind::emptyFile, 0);
    }
    if (isNoLog(log, data)) {
        return withNote({}, data, ReadingKind::noLog, 0, lookOf(data));
    }
    const bool isExplained = log.report.placeCount(ReadingSeverity::error) > 0;
    return log.document.records().empty() && !isExplained ? withNote(log.report, data, ReadingKind::noQSOs, 0)
                                                          : log.report;
}

LogReader::Log logIn(std::string_view data, std::string_view dataForXML, const Wish& wish) {
    const LogFormat format = LogFormatDetector::detect(data);
    const bool isXML = format == LogFormat::adx;
    ReadDocument read = readAs(format, isXML ? dataForXML : data, wish);
    LogReader::Log log{format, std::move(read.document), std::move(read.report)};
    if (wish.hasReport && isXML) {
        log.report = withOffsetsBehind(std::move(log.report), data.size() - dataForXML.size());
    }
    if (hasCalls(log.document)) {
        return log;
    }
    const auto start = format == LogFormat::adif ? startOfLog(data) : std::nullopt;
    if (start) {
        // A log saved from a web page, whose tags make a record of their own, or with notes in front of it.
        ReadDocument wrapped = readAs(LogFormat::cabrillo, data, wish);
        if (!wrapped.document.records().empty()) {
            return {LogFormat::cabrillo, std::move(wrapped.document),
                    wish.hasReport ? withNote(wrapped.report, data, ReadingKind::cabrilloInside, *start)
                                   : ReadingReport()};
        }
    }
    if (wish.hasReport) {
        log.report = reportWithoutQSOs(log, data);
    }
    return log;
}

LogReader::Log logOf(std::string_view bytes, const Wish& wish) {
    if (const auto converted = text::fromUTF16(bytes)) {
        LogReader::Log log = logIn(*converted, withoutXMLDeclaration(*converted), wish);
        log.report = withOffsetsOfUTF16(std::move(log.report), *converted);
        return log;
    }
    const std::string_view text = text::withoutByteOrderMark(bytes);
    LogReader::Log log = logIn(text, text, wish);
    log.report = withOffsetsBehind(std::move(log.report), bytes.size() - text.size());
    return log;
}

}  // namespace

LogReader::Log LogReader::read(std::string_view bytes) {
    return logOf(bytes, {});
}

LogReader::Log LogReader::read(std::string_view bytes, ReadingRepair repair) {
    return logOf(bytes, {true, repair});
}

LogReader::Log LogReader::readWithoutReport(std::string_view bytes) {
    return logOf(bytes, {false, {}});
}

}  // namespace tallyrig
