// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Adjudication/CrossCheckReportWriter.h"

#include "Tallyrig/Contest/Saturation.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <fmt/format.h>

#include <initializer_list>
#include <optional>
#include <utility>

namespace tallyrig {

namespace {

constexpr std::string_view homePage = "https://quillon.example";

using Status = CrossCheckStatus;

/// Whatever the locale, with a point.
std::string percentage(double share) {
    return fmt::format("{:.1f}", share * 100);
}

/// The key figures in their order, label and value.
std::vector<std::pair<std::string_view, std::string>> summaryRows(const CrossCheckCounts& counts) {
    const auto number = [&](std::initializer_list<Status> statuses) {
        std::size_t sum = 0;
        for (const Status status : statuses) {
            sum += counts.count(status);
        }
        return std::to_string(sum);
    };
    const std::optional<double> accuracy = counts.accuracy();
    return {{"QSOs im Log", std::to_string(counts.total())},
            {"bestätigt", number({Status::confirmed})},
            {"NIL", number({Status::notInLog})},
            {"Busted Call", number({Status::bustedCall})},
            {"Busted Exchange", number({Status::bustedExchange})},
            {"Zeit/Band abweichend", number({Status::timeMismatch, Status::bandModeMismatch})},
            {"Unique", number({Status::unique})},
            {"Gegenstation ohne Log", number({Status::notCheckable})},
            {"Quote", accuracy ? percentage(*accuracy) + " %" : "–"}};
}

std::string joined(const std::vector<std::string>& parts, std::string_view separator) {
    return fmt::format("{}", fmt::join(parts, separator));
}

/// Filled up with blanks behind, never cut.
std::string padded(std::string_view text, std::size_t width) {
    const std::size_t length = text::characterCount(text);
    return std::string(text).append(length < width ? width - length : 0, ' ');
}

std::string inCell(std::string_view text) {
    std::string cell;
    for (const char c : text) {
        cell.append(c == '|' ? "\\" : "").push_back(c);
    }
    return cell;
}

std::string csvField(std::string_view text) {
    if (text.find_first_of(",\"\n") == std::string_view::npos) {
        return std::string(text);
    }
    std::string field = "\"";
    for (const char c : text) {
        field.append(c == '"' ? "\"" : "").push_back(c);
    }
    return field + '"';
}

std::string csvRow(const std::vector<std::string>& fields) {
    std::string row;
    for (const std::string& field : fields) {
        row.append(row.empty() ? "" : ",").append(csvField(field));
    }
    return row + "\r\n";
}

std::string orEmpty(std::optional<std::int64_t> number) {
    return number ? std::to_string(*number) : std::string();
}

std::string textLine(const StationReport::Line& line) {
    std::string text = fmt::format("  {}  {}  {}  {}  {}", line.date, padded(line.time, 5),
                                   padded(line.band, 5), padded(line.mode, 5), padded(line.call, 11));
    if (!line.detail.empty()) {
        text += "  " + line.detail;
    }
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

std::string markdownLine(const StationReport::Line& line) {
    return fmt::format("| {} | {} | {} | {} | {} | {} |", line.date, line.time, line.band, line.mode,
                       inCell(line.call), inCell(line.detail));
}

/// The lines of a report, each with its line feed.
class Lines {
  public:
    void add(std::string_view line = {}) { text.append(line).push_back('\n'); }
    void add(const std::vector<std::string>& lines) {
        for (const std::string& line : lines) {
            add(line);
        }
    }
    std::string take() { return std::move(text); }

  private:
    std::string text;
};

}  // namespace

CrossCheckReportWriter::CrossCheckReportWriter(const CrossCheckReport& report,
                                               std::span<const CrossCheckLog> logs,
                                               const CrossCheckScores& scores,
                                               CrossCheckExportInfo exportInfo)
    : stations(report, logs, scores),
      info(std::move(exportInfo)),
      logCount(logs.size()),
      hasScores(!scores.empty()) {}

std::string CrossCheckReportWriter::rankingCSV() const {
    std::vector<std::string> header = {"Rang",        "Rufzeichen",      "Logs",
                                       "QSOs",        "bestätigt",       "NIL",
                                       "Busted Call", "Busted Exchange", "Zeit/Band abweichend",
                                       "Unique",      "ohne Log",        "Quote %"};
    if (hasScores) {
        header.insert(header.end(), {"Punkte gemeldet", "Punkte geprüft", "Differenz"});
    }
    std::string csv = csvRow(header);
    for (const Entry& entry : ranking()) {
        std::vector<std::string> row = {std::to_string(entry.rank), entry.owner,
                                        std::to_string(entry.logIDs.size())};
        // All figures but the last, which has a sign for people.
        const auto figures = summaryRows(entry.counts);
        for (std::size_t figure = 0; figure + 1 < figures.size(); ++figure) {
            row.push_back(figures[figure].second);
        }
        const std::optional<double> accuracy = entry.counts.accuracy();
        row.push_back(accuracy ? percentage(*accuracy) : std::string());
        if (hasScores) {
            const auto difference = entry.claimed && entry.checked
                                        ? std::optional(saturatedDifference(*entry.checked, *entry.claimed))
                                        : std::nullopt;
            row.insert(row.end(), {orEmpty(entry.claimed), orEmpty(entry.checked), orEmpty(difference)});
        }
        csv += csvRow(row);
    }
    return csv;
}

std::string CrossCheckReportWriter::text(std::string_view owner) const {
    constexpr std::size_t labelWidth = 13;
    constexpr std::size_t summaryWidth = 24;
    const std::optional<StationReport> station = stations.of(owner);
    if (!station) {
        return {};
    }
    Lines lines;
    const std::string title = "CROSS-CHECK-BERICHT " + station->entry.owner;
    lines.add(title);
    lines.add(std::string(text::characterCount(title), '='));
    lines.add();
    const auto addValue = [&](std::string_view label, std::string_view value) {
        lines.add(fmt::format("{} {}", padded(std::string(label) + ":", labelWidth), value));
    };
    addValue("Contest", info.contestName);
    addValue("Log", joined(station->logNames, ", "));
    addValue("Ausgewertet", headerLine(*station));
    lines.add();
    lines.add("ZUSAMMENFASSUNG");
    for (const auto& [label, value] : summaryRows(station->entry.counts)) {
        lines.add(fmt::format("  {} {}", padded(std::string(label) + ":", summaryWidth), value));
    }
    lines.add();
    if (!station->points.empty()) {
        lines.add("PUNKTE");
        for (const StationReport::PointsRow& row : station->points) {
            lines.add(fmt::format("  {}gemeldet {} → geprüft {} ({})",
                                  station->points.size() > 1 ? row.log + ": " : "", row.claimed, row.checked,
                                  saturatedDifference(row.checked, row.claimed)));
            lines.add(fmt::format("  {} QSO(s) gestrichen, {} Strafpunkte", row.removed, row.penalty));
        }
        lines.add();
    }
    for (const StationReport::Section& section : station->sections) {
        if (!section.isShown()) {
            continue;
        }
        lines.add(text::upper(section.title));
        for (const StationReport::Line& line : section.lines) {
            lines.add(textLine(line));
        }
        if (section.lines.empty()) {
            lines.add("  – keine –");
        }
        lines.add();
    }
    lines.add(footer());
    return lines.take();
}

std::string CrossCheckReportWriter::markdown(std::string_view owner) const {
    const std::optional<StationReport> station = stations.of(owner);
    if (!station) {
        return {};
    }
    Lines lines;
    lines.add("# Cross-Check-Bericht " + station->entry.owner);
    lines.add();
    lines.add("| | |");
    lines.add("|---|---|");
    lines.add(fmt::format("| Contest | {} |", inCell(info.contestName)));
    lines.add(fmt::format("| Log | {} |", inCell(joined(station->logNames, ", "))));
    lines.add(fmt::format("| Ausgewertet | {} |", inCell(headerLine(*station))));
    lines.add();
    lines.add("## Zusammenfassung");
    lines.add();
    lines.add("| Befund | Anzahl |");
    lines.add("|---|---:|");
    for (const auto& [label, value] : summaryRows(station->entry.counts)) {
        lines.add(fmt::format("| {} | {} |", label, value));
    }
    lines.add();
    if (!station->points.empty()) {
        lines.add("## Punkte");
        lines.add();
        lines.add("| Log | gemeldet | geprüft | Differenz | gestrichen | Strafpunkte |");
        lines.add("|---|---:|---:|---:|---:|---:|");
        for (const StationReport::PointsRow& row : station->points) {
            lines.add(fmt::format("| {} | {} | {} | {} | {} | {} |", inCell(row.log), row.claimed,
                                  row.checked, saturatedDifference(row.checked, row.claimed), row.removed,
                                  row.penalty));
        }
        lines.add();
    }
    for (const StationReport::Section& section : station->sections) {
        if (!section.isShown()) {
            continue;
        }
        lines.add(fmt::format("## {}", section.title));
        lines.add();
        if (section.lines.empty()) {
            lines.add("_keine_");
        } else {
            lines.add("| Datum | Zeit | Band | Modus | Rufzeichen | Hinweis |");
            lines.add("|---|---|---|---|---|---|");
            for (const StationReport::Line& line : section.lines) {
                lines.add(markdownLine(line));
            }
        }
        lines.add();
    }
    lines.add("---");
    lines.add();
    lines.add(footer());
    return lines.take();
}

std::string CrossCheckReportWriter::fileName(std::string_view owner) {
    std::string name;
    const std::string upper = text::upper(owner);
    for (const std::string_view character : text::characters(upper)) {
        name += text::isLetter(character) || text::isNumeric(character) ? character : "-";
    }
    return name.empty() ? "UNBEKANNT" : name;
}

std::string CrossCheckReportWriter::headerLine(const StationReport& station) const {
    std::vector<std::string> parts = {info.date};
    if (!info.evaluator.empty()) {
        parts.push_back("von " + info.evaluator);
    }
    parts.push_back(fmt::format("{} Logs, Toleranz ±{} min", logCount, info.toleranceMinutes));
    if (station.entry.checked) {
        parts.push_back(fmt::format("Rang {}", station.entry.rank));
    }
    return joined(parts, " · ");
}

std::vector<std::string> CrossCheckReportWriter::footer() const {
    std::vector<std::string> lines = {fmt::format("Ausgewertet mit {} – {}", info.generator, homePage)};
    if (!info.evaluator.empty()) {
        lines.insert(lines.end(), {"", "73 de " + info.evaluator});
    }
    return lines;
}

}  // namespace tallyrig
