// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/CheckedLog.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "TallyrigTool/JsonList.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <variant>

namespace tallyrig::tool {

namespace {

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

}  // namespace

CheckedLog::CheckedLog(LogFile checkedLog, std::vector<ValidationIssue> found)
    : log(std::move(checkedLog)),
      issues(std::move(found)),
      errors(static_cast<std::size_t>(
          std::ranges::count(issues, ValidationSeverity::error, &ValidationIssue::severity))) {}

void CheckedLog::writeJson(Output& output) const {
    const nlohmann::ordered_json head = {{"file", log.fileName()},
                                         {"records", log.document.records().size()},
                                         {"errors", errors},
                                         {"warnings", warnings()}};
    JsonList list(output, head.dump(), "issues");
    for (const ValidationIssue& issue : issues) {
        list.add(jsonOf(issue).dump());
    }
    list.finish();
}

void CheckedLog::writeText(Output& output) const {
    output.write(visible(log.argument) + ": " + counted(log.document.records().size(), "QSO", "QSOs") + ", ");
    if (issues.empty()) {
        output.write("keine Befunde\n");
        return;
    }
    output.write(counted(errors, "Fehler", "Fehler") + ", " + counted(warnings(), "Warnung", "Warnungen") +
                 "\n");
    // Findings ascend by record, so the last number is the widest.
    const std::size_t width = std::to_string(issues.back().recordIndex + 1).size();
    for (const ValidationIssue& issue : issues) {
        const std::string number = std::to_string(issue.recordIndex + 1);
        output.write("  Zeile " + std::string(width - number.size(), ' ') + number +
                     (issue.severity() == ValidationSeverity::error ? "  Fehler   " : "  Warnung  ") +
                     visible(shortMessage(issue)) + "\n");
    }
}

}  // namespace tallyrig::tool
