// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/OutdoorFiles.h"
#include "Quillon/Platform/Files/OutdoorExport.h"
#include "Tallyrig/Outdoor/OutdoorCheck.h"
#include "Tallyrig/Outdoor/OutdoorProgram.h"
#include "Tallyrig/Outdoor/SOTARole.h"
#include "Tallyrig/Text/Text.h"
#include "TallyrigTool/CheckedLog.h"
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/LogFile.h"
#include "TallyrigTool/Usage.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tallyrig::tool {

namespace {

struct Options {
    std::string file;
    std::string program;
    std::string role;
    std::string folder;
    bool asJson = false;
};

/// The one of `cases` that is so called, in any case of letters.
template <typename Cases>
auto named(const std::string& name, const Cases& cases) {
    const auto found = std::ranges::find_if(
        cases, [&](auto each) { return text::upper(rawValue(each)) == text::upper(name); });
    return found == cases.end() ? std::nullopt : std::optional(*found);
}

template <typename Cases>
std::string namesOf(const Cases& cases) {
    std::string names;
    for (const auto each : cases) {
        names += (names.empty() ? "" : ", ") + std::string(rawValue(each));
    }
    return names;
}

template <typename Cases>
CLI::Validator oneOf(const Cases& cases) {
    return {[&cases](const std::string& name) {
                return named(name, cases) ? "" : name + " ist keines von " + namesOf(cases);
            },
            ""};
}

OutdoorProgram programOf(const Options& options) {
    return named(options.program, outdoorPrograms).value();
}

SOTARole roleOf(const Options& options) {
    return named(options.role, sotaRoles).value_or(SOTARole::activator);
}

ExitStatus check(const Options& options, Output& output) {
    LogFile log = readLogWithReport(options.file);
    complainOfReading(log);
    std::vector<ValidationIssue> issues = outdoorIssues(log.document, programOf(options), roleOf(options));
    const CheckedLog checked(std::move(log), std::move(issues));
    if (options.asJson) {
        output.write("[");
        checked.writeJson(output);
        output.write("]\n");
    } else {
        checked.writeText(output);
    }
    return checked.status();
}

quillon::OutdoorLosses writeFiles(const Options& options, const OutdoorExportFiles& files, Output& output) {
    quillon::OutdoorLosses losses;
    bool isFirst = true;
    const auto write = [&](const OutdoorExportFile& file) {
        if (options.asJson) {
            const nlohmann::ordered_json json = {{"reference", file.reference},
                                                 {"filename", file.filename},
                                                 {"content", file.content},
                                                 {"qsoCount", file.qsoCount}};
            output.write((isFirst ? "" : ",\n") + json.dump());
        } else {
            output.write("  " + visible(file.filename) + ": " + counted(file.qsoCount, "QSO", "QSOs") + "\n");
        }
        isFirst = false;
        losses.add(file);
    };
    const auto folder = options.folder.empty() ? std::nullopt : std::optional(options.folder);
    if (const auto error = quillon::exportOutdoorFiles(files, folder, write)) {
        throw Failure{(folder ? *folder : options.file) + ": " + error->message};
    }
    return losses;
}

ExitStatus exportFiles(const Options& options, Output& output) {
    const LogFile log = readLog(options.file);
    const OutdoorExportFiles files = quillon::outdoorFiles(log.document, programOf(options), roleOf(options));
    if (!options.asJson && !files.empty()) {
        output.write(visible(options.file) + ": " + counted(files.size(), "Datei", "Dateien") + " für " +
                     std::string(rawValue(programOf(options))) + "\n");
    }
    output.write(options.asJson ? "[" : "");
    const quillon::OutdoorLosses losses = writeFiles(options, files, output);
    output.write(options.asJson ? "]\n" : "");
    if (files.empty()) {
        complain(quillon::noOutdoorFilesMessage(programOf(options), roleOf(options)));
        return ExitStatus::findings;
    }
    if (!options.folder.empty()) {
        complain(counted(files.size(), "Datei", "Dateien") + " in «" + options.folder + "» geschrieben.");
    }
    for (const std::string& line : losses.lines()) {
        complain(line);
    }
    return losses.empty() ? ExitStatus::good : ExitStatus::findings;
}

/// What both commands are told: the log, the program and the role.
std::shared_ptr<Options> addOptions(CLI::App& usage) {
    auto options = std::make_shared<Options>();
    usage.add_option("FILE", options->file, "Das Log; - liest die Standardeingabe")->required();
    usage.add_option("--program", options->program, "Das Programm (nötig): " + namesOf(outdoorPrograms))
        ->required()
        ->type_name("PROGRAMM")
        ->check(oneOf(outdoorPrograms));
    usage.add_option("--role", options->role, "Die Rolle bei SOTA: Chaser oder, ohne Angabe, Activator")
        ->type_name("ROLLE")
        ->check(oneOf(sotaRoles));
    usage.add_flag("--json", options->asJson, "Gibt ein JSON-Dokument aus");
    return options;
}

}  // namespace

std::vector<Command> outdoorCommands(CLI::App& program) {
    CLI::App& both =
        addCommandGroup(program, "outdoor", "Prüft Logs für Outdoor-Programme und schreibt deren Dateien.",
                        "tallyrig outdoor check --program POTA Examples/unterwegs.adi");
    CLI::App& checkUsage =
        addCommand(both, "check", "Prüft, ob ein Log sich bei einem Outdoor-Programm einreichen lässt.",
                   "tallyrig outdoor check --program POTA Examples/unterwegs.adi");
    const auto checkOptions = addOptions(checkUsage);
    CLI::App& exportUsage = addCommand(
        both, "export", "Schreibt die Dateien eines Logs für ein Outdoor-Programm.",
        "tallyrig outdoor export --program SOTA --role Chaser -o . Examples/unterwegs.adi\n\n"
        "Ohne -o werden die Dateien nur aufgezählt. Sind es keine, ist der Rückgabewert 1.\n"
        "Was eine ADIF-Datei von ihren QSOs nicht tragen kann, wird auf der Fehlerausgabe genannt;\n"
        "geschrieben wird trotzdem, und der Rückgabewert ist 1.");
    const auto exportOptions = addOptions(exportUsage);
    exportUsage
        .add_option("-o", exportOptions->folder,
                    "Der Ordner, in den die Dateien geschrieben werden; gleichnamige ersetzt das")
        ->type_name("DIR");
    return {{&checkUsage, [checkOptions](Output& output) { return check(*checkOptions, output); }},
            {&exportUsage, [exportOptions](Output& output) { return exportFiles(*exportOptions, output); }}};
}

}  // namespace tallyrig::tool
