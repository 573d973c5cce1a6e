#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Catalogue/DuplicateCriterion.h"
#include "Tallyrig/Validation/ADIFSpec317.h"
#include "Tallyrig/Validation/ADIFValidator.h"
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/FileByFile.h"
#include "TallyrigTool/JsonList.h"
#include "TallyrigTool/LogFile.h"
#include "TallyrigTool/Usage.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
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

/// The findings in one log.
struct Checked {
    LogFile log;
    std::vector<ValidationIssue> issues;
    std::size_t errors = 0;

    std::size_t warnings() const { return issues.size() - errors; }
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

Checked checked(const std::string& file, const ADIFValidator& validator) {
    LogFile log = readLogWithReport(file);
    complainOfReading(log);
    std::vector<ValidationIssue> issues = validator.issues(log.document);
    const auto errors = std::ranges::count(issues, ValidationSeverity::error, &ValidationIssue::severity);
    return {std::move(log), std::move(issues), static_cast<std::size_t>(errors)};
}

/// Puts the members of a finding's payload behind the rest, those that its kind has.
void addPayload(nlohmann::ordered_json& json, const ValidationKind& kind) {
    const auto add = [&json](const auto& payload) {
        if constexpr (requires { payload.field; }) {
            json["field"] = payload.field;
        }
        if constexpr (requires { payload.value; }) {
            json["value"] = payload.value;
        }
        if constexpr (requires { payload.dataType; }) {
            json["dataType"] = payload.dataType;
        }
        if constexpr (requires { payload.keyFields; }) {
            json["keyFields"] = static_cast<const std::vector<std::string>&>(payload.keyFields);
        }
        if constexpr (requires { payload.otherRecordNumbers; }) {
            json["otherRecordNumbers"] = std::vector<std::size_t>(payload.otherRecordNumbers.begin(),
                                                                  payload.otherRecordNumbers.end());
        }
        if constexpr (requires { payload.freq; }) {
            json["freq"] = payload.freq;
        }
        if constexpr (requires { payload.band; }) {
            json["band"] = payload.band;
        }
        if constexpr (requires { payload.program; }) {
            json["program"] = payload.program;
        }
        if constexpr (requires { payload.values; }) {
            json["values"] = payload.values;
        }
    };
    std::visit(add, kind);
}

nlohmann::ordered_json jsonOf(const ValidationIssue& issue) {
    nlohmann::ordered_json json;
    json["recordIndex"] = issue.recordIndex;
    json["severity"] = issue.severity() == ValidationSeverity::error ? "error" : "warning";
    json["kind"] = nameOf(issue.kind());
    json["message"] = quillon::ADIFFieldCatalog::germanMessage(issue);
    addPayload(json, issue.kind());
    return json;
}

void writeJson(Output& output, const Checked& result) {
    const nlohmann::ordered_json head = {{"file", result.log.fileName()},
                                         {"records", result.log.document.records().size()},
                                         {"errors", result.errors},
                                         {"warnings", result.warnings()}};
    JsonList issues(output, head.dump(), "issues");
    for (const ValidationIssue& issue : result.issues) {
        issues.add(jsonOf(issue).dump());
    }
    issues.finish();
}

/// The message for a person: of a large group of duplicates it names a few, for each of them would name all
/// others.
std::string shortMessage(const ValidationIssue& issue) {
    constexpr std::size_t mostNumbers = 10;
    const auto* const duplicate = std::get_if<finding::Duplicate>(&issue.kind());
    if (duplicate == nullptr || duplicate->otherRecordNumbers.size() <= mostNumbers) {
        return quillon::ADIFFieldCatalog::germanMessage(issue);
    }
    std::vector<std::size_t> first;
    for (std::size_t index = 0; index < mostNumbers; ++index) {
        first.push_back(duplicate->otherRecordNumbers[index]);
    }
    const auto group = std::make_shared<const std::vector<std::size_t>>(std::move(first));
    const finding::Duplicate shortened = {duplicate->keyFields, OtherRecordNumbers(group, group->size())};
    const std::size_t others = duplicate->otherRecordNumbers.size() - mostNumbers;
    return quillon::ADIFFieldCatalog::germanMessage({issue.recordIndex, shortened}) + " und " +
           counted(others, "weiteren", "weiteren");
}

void writeText(Output& output, const Checked& result) {
    output.write(visible(result.log.argument) + ": " +
                 counted(result.log.document.records().size(), "QSO", "QSOs") + ", ");
    if (result.issues.empty()) {
        output.write("keine Befunde\n");
        return;
    }
    output.write(counted(result.errors, "Fehler", "Fehler") + ", " +
                 counted(result.warnings(), "Warnung", "Warnungen") + "\n");
    // Findings ascend by record, so the last number is the widest.
    const std::size_t width = std::to_string(result.issues.back().recordIndex + 1).size();
    for (const ValidationIssue& issue : result.issues) {
        const std::string number = std::to_string(issue.recordIndex + 1);
        output.write("  Zeile " + std::string(width - number.size(), ' ') + number +
                     (issue.severity() == ValidationSeverity::error ? "  Fehler   " : "  Warnung  ") +
                     visible(shortMessage(issue)) + "\n");
    }
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
        return [result = checked(file, validator), asJson = options.asJson](Output& target) {
            asJson ? writeJson(target, result) : writeText(target, result);
            return result.issues.empty() ? ExitStatus::good : ExitStatus::findings;
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
