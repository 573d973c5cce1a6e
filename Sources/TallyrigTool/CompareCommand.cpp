// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Catalogue/ComparisonKey.h"
#include "Quillon/Catalogue/ScoreWords.h"
#include "Tallyrig/Analysis/ADIFComparator.h"
#include "Tallyrig/Text/Text.h"
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/JsonList.h"
#include "TallyrigTool/JsonText.h"
#include "TallyrigTool/LogFile.h"
#include "TallyrigTool/TextTable.h"
#include "TallyrigTool/Usage.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyrig::tool {

namespace {

using Status = ADIFComparison::Status;

struct Options {
    std::string left;
    std::string right;
    std::optional<std::string> key;
    bool asJson = false;
};

/// "A,B" as names; empty ones are none.
std::vector<std::string> keyFields(const Options& options) {
    if (!options.key) {
        return quillon::usualComparisonKey();
    }
    std::vector<std::string> fields;
    for (const std::string_view piece : text::split(*options.key, ',')) {
        if (const std::string_view field = text::trimmed(piece); !field.empty()) {
            fields.push_back(text::upper(field));
        }
    }
    return fields;
}

template <typename Value>
nlohmann::ordered_json orNull(const std::optional<Value>& value) {
    return value ? nlohmann::ordered_json(*value) : nlohmann::ordered_json();
}

/// There may be millions.
void appendRow(std::string& json, const ADIFComparison::Row& row) {
    const auto appendPosition = [&](std::optional<std::size_t> position) {
        json += position ? std::to_string(*position) : "null";
    };
    json += "{\"left\":";
    appendPosition(row.left());
    json += ",\"right\":";
    appendPosition(row.right());
    json.append(",\"status\":\"").append(nameOf(row.status())).append("\",\"differingFields\":[");
    for (const std::string_view field : row.differingFields()) {
        json += json.back() == '[' ? "" : ",";
        appendJson(json, field);
    }
    json += "]}";
}

void writeJson(Output& output, const ADIFComparison& comparison) {
    using Json = nlohmann::ordered_json;
    JsonList rows(output, Json({{"columns", comparison.columns()}}).dump(), "rows");
    std::string json;
    for (std::size_t index = 0; index < comparison.rowCount(); ++index) {
        json.clear();
        appendRow(json, comparison.row(index));
        rows.add(json);
    }
    Json rest = {{"headerDiffs", Json::array()}};
    for (const ADIFComparison::HeaderDiff& diff : comparison.headerDiffs()) {
        rest["headerDiffs"].push_back(
            {{"field", diff.field}, {"left", orNull(diff.left)}, {"right", orNull(diff.right)}});
    }
    const ADIFComparison::Counts& counts = comparison.counts();
    rest["counts"] = {{"equal", counts.equal},
                      {"differs", counts.differs},
                      {"onlyLeft", counts.onlyLeft},
                      {"onlyRight", counts.onlyRight}};
    rows.finish(rest.dump());
    output.write("\n");
}

/// The differences for a person: one line for each QSO, under it the values that differ, side by side.
class DifferenceList {
  public:
    DifferenceList(const ADIFComparison& result, const LogFile& leftLog, const LogFile& rightLog,
                   const std::vector<std::string>& keyFields)
        : comparison(result), left(leftLog), right(rightLog), namedFields(quillon::usualComparisonKey()) {
        for (const std::string& field : keyFields) {
            if (std::ranges::find(namedFields, field) == namedFields.end()) {
                namedFields.push_back(field);
            }
        }
        const std::size_t largest = std::max(left.document.records().size(), right.document.records().size());
        numberWidth = std::to_string(largest).size();
    }

    void write(Output& output) const {
        output.write(visible(left.argument) + " │ " + visible(right.argument) + "\n" + counts() + "\n" +
                     header());
        if (!comparison.differences().empty()) {
            output.write("\n");
        }
        for (const std::size_t row : comparison.differences()) {
            output.write(lines(comparison.row(row)));
        }
    }

  private:
    std::string counts() const {
        const ADIFComparison::Counts& counts = comparison.counts();
        const auto number = [](std::size_t count) {
            return quillon::ScoreWords::number(static_cast<std::int64_t>(count));
        };
        return number(counts.equal) + " gleich, " + number(counts.differs) + " abweichend, " +
               number(counts.onlyLeft) + " nur links, " + number(counts.onlyRight) + " nur rechts";
    }

    std::string header() const {
        std::vector<TableRow> rows;
        for (const ADIFComparison::HeaderDiff& diff : comparison.headerDiffs()) {
            rows.push_back(sideBySide(diff.field, diff.left, diff.right));
        }
        return rows.empty() ? "" : "\nKopf\n" + textTable(rows, "");
    }

    std::string lines(const ADIFComparison::Row& row) const {
        const auto recordOf = [](const LogFile& log, std::optional<std::size_t> position) {
            return position ? &log.document.records()[*position] : nullptr;
        };
        const ADIFRecord* const leftRecord = recordOf(left, row.left());
        const ADIFRecord* const rightRecord = recordOf(right, row.right());
        std::string text = "Zeile " + number(row.left()) + " │ " + number(row.right()) + "  " +
                           word(row.status()) + qso(leftRecord != nullptr ? *leftRecord : *rightRecord) +
                           "\n";
        std::vector<TableRow> rows;
        for (const std::string_view field : row.differingFields()) {
            rows.push_back(sideBySide(field, (*leftRecord)[field], (*rightRecord)[field]));
        }
        return text + textTable(rows, "");
    }

    /// The number of a line as the table shows it, from one.
    std::string number(std::optional<std::size_t> position) const {
        const std::string text = position ? std::to_string(*position + 1) : "–";
        const std::size_t length = position ? text.size() : 1;
        return std::string(numberWidth - length, ' ') + text;
    }

    static std::string word(Status status) {
        return status == Status::differs    ? "abweichend"
               : status == Status::onlyLeft ? "nur links "
                                            : "nur rechts";
    }

    /// What tells the QSO from others, as far as it has that.
    std::string qso(const ADIFRecord& record) const {
        std::string text;
        for (const std::string& field : namedFields) {
            const std::string_view value = text::trimmed(record.valueOrEmpty(field));
            if (!value.empty()) {
                text += "  " + visible(quillon::ADIFFieldCatalog::displayValue(value, field));
            }
        }
        return text;
    }

    template <typename Text>
    static TableRow sideBySide(std::string_view field, const std::optional<Text>& left,
                               const std::optional<Text>& right) {
        const auto shown = [](const std::optional<Text>& value) {
            return !value || value->empty() ? std::string("—") : visible(*value);
        };
        return {"  " + visible(field), shown(left), "│ " + shown(right)};
    }

    const ADIFComparison& comparison;
    const LogFile& left;
    const LogFile& right;
    std::vector<std::string> namedFields;
    std::size_t numberWidth = 0;
};

ExitStatus compare(const Options& options, Output& output) {
    const LogFile left = readLog(options.left);
    const LogFile right = readLog(options.right);
    const std::vector<std::string> key = keyFields(options);
    const ADIFComparison comparison = ADIFComparator(key).compare(left.document, right.document);
    if (options.asJson) {
        writeJson(output, comparison);
    } else {
        DifferenceList(comparison, left, right, key).write(output);
    }
    return comparison.differences().empty() && comparison.headerDiffs().empty() ? ExitStatus::good
                                                                                : ExitStatus::findings;
}

}  // namespace

Command compareCommand(CLI::App& program) {
    CLI::App& usage =
        addCommand(program, "compare", "Vergleicht zwei Logs: Welche QSOs fehlen, welche Felder weichen ab?",
                   "tallyrig compare Examples/vereinsabend.adi Examples/vereinsabend-abschrift.adi\n\n"
                   "Zwei QSOs gehören zusammen, wenn sie in allen FELDERn übereinstimmen, Groß- und\n"
                   "Kleinschreibung und Leerzeichen am Rand nicht gerechnet; ohne Angabe sind das CALL,\n"
                   "QSO_DATE, TIME_ON, BAND und MODE. Mit --key '' wird Zeile für Zeile verglichen.\n"
                   "Rückgabewert: 1, wenn QSOs oder Felder des Kopfs abweichen oder fehlen.");
    const auto options = std::make_shared<Options>();
    usage.add_option("LEFT", options->left, "Das linke Log; - liest die Standardeingabe")->required();
    usage.add_option("RIGHT", options->right, "Das rechte Log")->required();
    usage.add_option("--key", options->key, "Felder, durch Kommas getrennt (siehe unten)")
        ->type_name("FELDER");
    usage.add_flag("--json", options->asJson, "Gibt ein JSON-Dokument aus");
    return {&usage, [options](Output& output) { return compare(*options, output); }};
}

}  // namespace tallyrig::tool
