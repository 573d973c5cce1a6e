// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/DuplicateCriterion.h"
#include "Tallyrig/Validation/ADIFSpec317.h"
#include "Tallyrig/Validation/ADIFValidator.h"
#include "TallyrigTool/CheckedLog.h"
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/FileByFile.h"
#include "TallyrigTool/LogFile.h"
#include "TallyrigTool/Usage.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tallyrig::tool {

namespace {

struct Options {
    std::vector<std::string> files;
    std::string criterion = "call_band_mode";
    bool hasNoRequired = false;
    bool hasNoFormat = false;
    bool hasNoDuplicates = false;
    bool hasNoUnknown = false;
    bool asJson = false;
};

ADIFValidator validatorFor(const Options& options) {
    const auto criterion = quillon::duplicateCriterionOrDefault(options.criterion);
    return {ADIFValidator::usualRequiredFields(),
            quillon::keyFields(criterion),
            !options.hasNoRequired,
            !options.hasNoFormat,
            !options.hasNoDuplicates,
            !options.hasNoUnknown};
}

std::string criterionNames() {
    std::string names;
    for (const quillon::DuplicateCriterion criterion : quillon::duplicateCriteria) {
        names += (names.empty() ? "" : ", ") + std::string(quillon::storedValue(criterion));
    }
    return names;
}

std::string checkedCriterion(const std::string& name) {
    return quillon::duplicateCriterionStoredAs(name) ? "" : name + " ist keines von " + criterionNames();
}

ExitStatus check(const Options& options, Output& output) {
    const ADIFValidator validator = validatorFor(options);
    return forEachFile(options.files, options.asJson, output, [&](const std::string& file) {
        LogFile log = readLogWithReport(file);
        complainOfReading(log);
        std::vector<ValidationIssue> issues = validator.issues(log.document);
        return [checked = CheckedLog(std::move(log), std::move(issues)),
                asJson = options.asJson](Output& target) {
            asJson ? checked.writeJson(target) : checked.writeText(target);
            return checked.status();
        };
    });
}

}  // namespace

Command checkCommand(CLI::App& program) {
    CLI::App& usage = addCommand(
        program, "check", "Prüft Logs gegen ADIF " + std::string(ADIFSpec::version) + " und sucht Dubletten.",
        "tallyrig check --duplicates call_band Examples/befunde.adi\n\n"
        "KRITERIUM ist eines von " +
            criterionNames() + ";\nohne Angabe gilt das erste.");
    const auto options = std::make_shared<Options>();
    usage.add_option("FILE", options->files, "Die Logs; - liest die Standardeingabe")->required();
    usage.add_option("--duplicates", options->criterion, "Worin Dubletten übereinstimmen (siehe unten)")
        ->type_name("KRITERIUM")
        ->check(CLI::Validator(checkedCriterion, ""));
    usage.add_flag("--no-required", options->hasNoRequired, "Sucht keine fehlenden Pflichtfelder");
    usage.add_flag("--no-format", options->hasNoFormat, "Prüft keine Werte und keine Feldnamen");
    usage.add_flag("--no-duplicates", options->hasNoDuplicates, "Sucht keine Dubletten");
    usage.add_flag("--no-unknown", options->hasNoUnknown, "Meldet keine unbekannten Felder");
    usage.add_flag("--json", options->asJson, "Gibt ein JSON-Dokument aus");
    return {&usage, [options](Output& output) { return check(*options, output); }};
}

}  // namespace tallyrig::tool
