// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/BaseCall.h"
#include "Tallyrig/Geography/DXCCInfo.h"
#include "Tallyrig/Geography/WPXPrefix.h"
#include "Tallyrig/Text/Decoding.h"
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/Usage.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig::tool {

namespace {

struct Options {
    std::vector<std::string> calls;
    bool asJson = false;
};

/// What a call says; empty where it does not.
struct Told {
    std::string call;
    std::string dxccCode;
    std::string continent;
    std::string wpxPrefix;
    std::string baseCall;
};

Told toldBy(const std::string& argument) {
    const std::string call = text::repaired(argument);
    const auto code = DXCCInfo::dxccCode(call);
    const auto continent = code ? DXCCInfo::continentOfEntity(*code) : std::nullopt;
    return {call, std::string(code.value_or("")), std::string(continent.value_or("")),
            WPXPrefix::prefix(call), baseCall(call)};
}

nlohmann::ordered_json jsonOf(const Told& told) {
    const auto member = [](const std::string& text) {
        return text.empty() ? nlohmann::ordered_json() : nlohmann::ordered_json(text);
    };
    return {{"call", told.call},
            {"dxccCode", member(told.dxccCode)},
            {"continent", member(told.continent)},
            {"wpxPrefix", member(told.wpxPrefix)},
            {"baseCall", member(told.baseCall)}};
}

std::string textOf(const Told& told) {
    const auto member = [](const std::string& text) {
        return text.empty() ? std::string("unbekannt") : visible(text);
    };
    return visible(told.call) + ": DXCC " + member(told.dxccCode) + ", Kontinent " + member(told.continent) +
           ", WPX-Präfix " + member(told.wpxPrefix) + ", Grundrufzeichen " + member(told.baseCall) + "\n";
}

ExitStatus run(const Options& options, Output& output) {
    bool isFirst = true;
    for (const std::string& call : options.calls) {
        const Told told = toldBy(call);
        output.write(options.asJson ? (isFirst ? "[" : ",\n") + jsonOf(told).dump() : textOf(told));
        isFirst = false;
    }
    output.write(options.asJson ? "]\n" : "");
    return ExitStatus::good;
}

}  // namespace

Command callCommand(CLI::App& program) {
    CLI::App& usage = addCommand(program, "call", "Sagt, was Rufzeichen über Land und Präfix verraten.",
                                 "tallyrig call EA8/DL1QZA/P");
    const auto options = std::make_shared<Options>();
    usage.add_option("CALL", options->calls, "Die Rufzeichen")->required();
    usage.add_flag("--json", options->asJson, "Gibt ein JSON-Dokument aus");
    return {&usage, [options](Output& output) { return run(*options, output); }};
}

}  // namespace tallyrig::tool
