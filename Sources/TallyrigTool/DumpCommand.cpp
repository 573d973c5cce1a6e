// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Text/Characters.h"
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/JsonList.h"
#include "TallyrigTool/JsonText.h"
#include "TallyrigTool/LogFile.h"
#include "TallyrigTool/Usage.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig::tool {

namespace {

struct Options {
    std::string file;
    bool asJson = false;
};

/// Appends the JSON list of `fields`, any range of things with a name, a value and an optional type.
template <typename Fields>
void appendJsonList(std::string& json, const Fields& fields) {
    std::string_view separator = "[";
    for (const auto& field : fields) {
        json += separator;
        json += "{\"name\":";
        appendJson(json, field.name);
        json += ",\"value\":";
        appendJson(json, field.value);
        json += ",\"type\":";
        if (field.type) {
            appendJson(json, *field.type);
        } else {
            json += "null";
        }
        json += '}';
        separator = ",";
    }
    json += fields.empty() ? "[]" : "]";
}

void writeJson(Output& output, const LogFile& log) {
    std::string json = "{\"file\":";
    appendJson(json, log.fileName());
    json += ",\"format\":";
    appendJson(json, formatName(log.format));
    json += ",\"headerComment\":";
    appendJson(json, log.document.headerComment());
    json += ",\"headerFields\":";
    appendJsonList(json, log.document.headerFields());
    json += '}';
    JsonList records(output, json, "records");
    for (const ADIFRecord& record : log.document.records()) {
        json = "{\"fields\":";
        appendJsonList(json, record.fields());
        json += '}';
        records.add(json);
    }
    records.finish();
    output.write("\n");
}

/// Appends `value` with its lines one under the other, `indent` blanks in.
void appendLines(std::string& text, std::string_view value, std::size_t indent) {
    std::size_t start = 0;
    while (true) {
        const std::size_t end = value.find_first_of("\r\n", start);
        text += visible(value.substr(start, end - start));
        text += '\n';
        if (end == std::string_view::npos) {
            return;
        }
        start = end + (value.substr(end).starts_with("\r\n") ? 2 : 1);
        text.append(indent, ' ');
    }
}

/// How far the values stand in at most: a name of a megabyte is no reason to move all others.
constexpr std::size_t widestName = 40;

template <typename Fields>
std::string fieldLines(const Fields& fields) {
    std::vector<std::string> labels;
    std::size_t width = 0;
    for (const auto& field : fields) {
        std::string label = field.name.empty() ? "(ohne Namen)" : visible(field.name);
        if (field.type && !field.type->empty()) {
            label += " (" + visible(*field.type) + ")";
        }
        width = std::clamp(text::characterCount(label), width, widestName);
        labels.push_back(std::move(label));
    }
    std::string lines;
    auto label = labels.begin();
    for (const auto& field : fields) {
        lines += "  " + *label;
        if (!field.value.empty()) {
            lines.append(width - std::min(width, text::characterCount(*label)) + 2, ' ');
        }
        appendLines(lines, field.value, width + 4);
        ++label;
    }
    return lines;
}

void writeText(Output& output, const LogFile& log) {
    const ADIFDocument& document = log.document;
    output.write(visible(log.argument) + ": " + std::string(formatTitle(log.format)) + ", " +
                 counted(document.records().size(), "QSO", "QSOs") + "\n");
    if (!document.headerComment().empty()) {
        std::string comment = "\nKommentar\n  ";
        appendLines(comment, document.headerComment(), 2);
        output.write(comment);
    }
    if (!document.headerFields().empty()) {
        output.write("\nKopf\n" + fieldLines(document.headerFields()));
    }
    std::size_t number = 0;
    for (const ADIFRecord& record : document.records()) {
        output.write("\nZeile " + std::to_string(++number) + "\n" + fieldLines(record.fields()));
    }
}

}  // namespace

Command dumpCommand(CLI::App& program) {
    CLI::App& usage =
        addCommand(program, "dump", "Zeigt ein Log, wie es gelesen wird: Kommentar, Kopf und alle QSOs.",
                   "tallyrig dump Examples/vereinsabend.adi");
    const auto options = std::make_shared<Options>();
    usage.add_option("FILE", options->file, "Das Log; - liest die Standardeingabe")->required();
    usage.add_flag("--json", options->asJson, "Gibt ein JSON-Dokument aus");
    return {&usage, [options](Output& output) {
                const LogFile log = readLog(options->file);
                options->asJson ? writeJson(output, log) : writeText(output, log);
                return ExitStatus::good;
            }};
}

}  // namespace tallyrig::tool
