// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/ReadingWords.h"
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/FileByFile.h"
#include "TallyrigTool/JsonList.h"
#include "TallyrigTool/LogFile.h"
#include "TallyrigTool/Usage.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace tallyrig::tool {

namespace {

struct Options {
    std::vector<std::string> files;
    bool asJson = false;
};

nlohmann::ordered_json jsonOf(const ReadingNote& note) {
    nlohmann::ordered_json json;
    json["kind"] = nameOf(note.kind);
    json["severity"] = nameOf(note.severity());
    json["offset"] = note.offset;
    json["line"] = note.line;
    json["recordIndex"] = note.recordIndex ? nlohmann::ordered_json(*note.recordIndex) : nullptr;
    json["excerpt"] = note.excerpt;
    json["message"] = quillon::ReadingWords::message(note);
    return json;
}

void writeJson(Output& output, const LogFile& log) {
    const nlohmann::ordered_json head = {{"file", log.fileName()},
                                         {"format", formatName(log.format)},
                                         {"records", log.document.records().size()}};
    JsonList notes(output, head.dump(), "notes");
    for (const ReadingNote& note : log.report.notes()) {
        notes.add(jsonOf(note).dump());
    }
    notes.finish();
}

void writeText(Output& output, const LogFile& log) {
    const std::string counts = quillon::ReadingWords::counts(log.report);
    output.write(visible(log.argument) + ": " + std::string(formatTitle(log.format)) + ", " +
                 counted(log.document.records().size(), "QSO", "QSOs") + ", " +
                 (counts.empty() ? "vollständig gelesen" : counts) + "\n");
    if (log.report.isEmpty()) {
        return;
    }
    // Notes ascend, so the last number is the widest.
    const std::size_t width = std::to_string(log.report.notes().back().line).size();
    for (const ReadingNote& note : log.report.notes()) {
        const std::string line = std::to_string(note.line);
        std::string label(quillon::ReadingWords::label(note.severity()));
        label.resize(std::string("Warnung").size(), ' ');
        output.write("  Zeile " + std::string(width - line.size(), ' ') + line + "  " + label + "  " +
                     (note.recordIndex ? "QSO " + std::to_string(*note.recordIndex + 1) + ": " : "") +
                     quillon::ReadingWords::message(note) + "\n");
        if (!note.excerpt.empty()) {
            output.write(std::string(width + 10, ' ') + note.excerpt + "\n");
        }
    }
}

bool hasDamage(const ReadingReport& report) {
    return report.noteCount(ReadingSeverity::error) + report.noteCount(ReadingSeverity::warning) > 0;
}

}  // namespace

Command readCommand(CLI::App& program) {
    CLI::App& usage = addCommand(
        program, "read", "Sagt, was von einer Datei nicht oder nur zum Teil gelesen wurde, und wo es steht.",
        "tallyrig read Examples/schaden.adi\n\n"
        "Zeile ist die Zeile der Datei. Bei Fehlern fehlt etwas im Log, bei Warnungen ist es vermutlich "
        "nicht\n"
        "so gemeint, wie es gelesen wurde; nur sie ändern den Rückgabewert. Hinweise betreffen kein QSO.");
    const auto options = std::make_shared<Options>();
    usage.add_option("FILE", options->files, "Die Dateien; - liest die Standardeingabe")->required();
    usage.add_flag("--json", options->asJson, "Gibt ein JSON-Dokument aus");
    return {&usage, [options](Output& output) {
                const bool asJson = options->asJson;
                return forEachFile(options->files, asJson, output, [asJson](const std::string& file) {
                    return [log = readLogWithReport(file), asJson](Output& target) {
                        asJson ? writeJson(target, log) : writeText(target, log);
                        return hasDamage(log.report) ? ExitStatus::findings : ExitStatus::good;
                    };
                });
            }};
}

}  // namespace tallyrig::tool
