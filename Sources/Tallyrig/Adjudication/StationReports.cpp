// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Adjudication/StationReports.h"

#include "Tallyrig/CrossCheck/BaseCall.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <utility>

namespace tallyrig {

namespace {

std::string joined(const std::vector<std::string>& notes) {
    std::string text;
    for (const std::string& note : notes) {
        text += (text.empty() ? "" : " · ") + note;
    }
    return text;
}

/// YYYYMMDD as YYYY-MM-DD, anything else as it stands.
std::string formatDate(std::string_view date) {
    if (!text::hasLength(date, 8)) {
        return std::string(date);
    }
    const std::vector<std::string_view> characters = text::characters(date);
    std::string formatted;
    for (std::size_t at = 0; at < characters.size(); ++at) {
        formatted.append(at == 4 || at == 6 ? "-" : "").append(characters[at]);
    }
    return formatted;
}

/// HHMM with or without seconds as HH:MM, anything shorter as it stands.
std::string formatTime(std::string_view time) {
    const std::vector<std::string_view> characters = text::characters(time);
    if (characters.size() < 4) {
        return std::string(time);
    }
    return std::string(characters[0]).append(characters[1]) + ":" +
           std::string(characters[2]).append(characters[3]);
}

}  // namespace

StationReports::StationReports(const CrossCheckReport& crossCheckReport, std::span<const CrossCheckLog> logs,
                               const CrossCheckScores& crossCheckScores)
    : report(crossCheckReport),
      scores(crossCheckScores),
      entries(crossCheckRanking(crossCheckReport, logs, crossCheckScores)),
      errorsByEntry(entries.size()) {
    for (const CrossCheckLog& log : logs) {
        logsByID.emplace(log.id, &log);
    }
    for (std::size_t entry = 0; entry < entries.size(); ++entry) {
        entriesByCall.emplace(text::canonicalKey(baseCall(entries[entry].owner)), entry);
        for (const UUID id : entries[entry].logIDs) {
            entriesByLog.emplace(id, entry);
        }
    }
    for (const CrossCheckFinding& finding : report.findings()) {
        if (!finding.counterpartLogID || (finding.status != CrossCheckStatus::bustedCall &&
                                          finding.status != CrossCheckStatus::bustedExchange)) {
            continue;
        }
        const auto entry = entriesByLog.find(*finding.counterpartLogID);
        const auto own = entriesByLog.find(finding.logID);
        if (entry != entriesByLog.end() && (own == entriesByLog.end() || own->second != entry->second)) {
            errorsByEntry[entry->second].push_back(&finding);
        }
    }
}

std::optional<StationReport> StationReports::of(std::string_view owner) const {
    using Status = CrossCheckStatus;
    const auto found = entriesByCall.find(text::canonicalKey(baseCall(owner)));
    if (found == entriesByCall.end()) {
        return std::nullopt;
    }
    const CrossCheckEntry& entry = entries[found->second];
    StationReport station = {entry, {}, {}, {}};
    Findings own;
    for (const UUID id : entry.logIDs) {
        const std::string& name = logOf(id)->name;
        station.logNames.push_back(name);
        if (const auto score = scores.find(id); score != scores.end()) {
            const CrossCheckScore& points = score->second;
            station.points.push_back({name, points.claimed.total, points.checked.total,
                                      points.checked.removedQSOs, points.checked.penaltyPoints});
        }
        for (const CrossCheckFinding& finding : report.findings(id)) {
            own.push_back(&finding);
        }
    }
    station.sections = {
        section("NIL – nicht im Log der Gegenstation", own, {Status::notInLog}, true),
        section("Busted Call – Rufzeichen falsch aufgenommen", own, {Status::bustedCall}, true),
        section("Busted Exchange – Austausch falsch aufgenommen", own, {Status::bustedExchange}, true),
        section("Zeit oder Band/Modus abweichend (nicht gestrichen)", own,
                {Status::timeMismatch, Status::bandModeMismatch}, false),
        section("Unique – Gegenstation in keinem anderen Log (zur Info)", own, {Status::unique}, false),
        errorsOfOthers(found->second)};
    return station;
}

const CrossCheckLog* StationReports::logOf(UUID id) const {
    const auto log = logsByID.find(id);
    return log == logsByID.end() ? nullptr : log->second;
}

StationReport::Section StationReports::section(std::string_view title, const Findings& own,
                                               std::initializer_list<CrossCheckStatus> statuses,
                                               bool showWhenEmpty) const {
    Section section = {title, {}, showWhenEmpty};
    for (const CrossCheckFinding* const finding : own) {
        if (std::ranges::find(statuses, finding->status) != statuses.end()) {
            section.lines.push_back(line(*finding));
        }
    }
    return section;
}

StationReport::Section StationReports::errorsOfOthers(std::size_t entry) const {
    Section section = {"Fehler der Gegenstationen bei deinen QSOs (zur Info)", {}, false};
    for (const CrossCheckFinding* const finding : errorsByEntry[entry]) {
        Line& error = section.lines.emplace_back(line(*finding));
        const CrossCheckLog* const log = logOf(finding->logID);
        error.call = log == nullptr || log->owner.empty() ? "?" : log->owner;
        error.detail = finding->status == CrossCheckStatus::bustedCall
                           ? "loggte dich als " + finding->call
                           : "Austausch falsch aufgenommen (" + joined(finding->notes) + ")";
    }
    return section;
}

StationReport::Line StationReports::line(const CrossCheckFinding& finding) const {
    Line line;
    const CrossCheckLog* const log = logOf(finding.logID);
    if (log != nullptr && finding.index < log->document.records().size()) {
        const ADIFRecord& record = log->document.records()[finding.index];
        line.date = formatDate(record.valueOrEmpty("QSO_DATE"));
        line.time = formatTime(record.valueOrEmpty("TIME_ON"));
        line.band = text::lower(record.valueOrEmpty("BAND"));
        line.mode = text::upper(record.valueOrEmpty("MODE"));
    }
    line.call = finding.call;
    line.detail = joined(finding.notes);
    return line;
}

}  // namespace tallyrig
