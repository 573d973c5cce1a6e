// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/Contests.h"
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/Usage.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <memory>

namespace tallyrig::tool {

namespace {

void writeJson(Output& output) {
    bool isFirst = true;
    for (const quillon::Contest contest : quillon::contests) {
        const nlohmann::ordered_json json = {{"rawValue", quillon::rawValue(contest)},
                                             {"label", quillon::label(contest)},
                                             {"info", quillon::info(contest)}};
        output.write((isFirst ? "[" : ",\n") + json.dump());
        isFirst = false;
    }
    output.write("]\n");
}

void writeText(Output& output) {
    for (const quillon::Contest contest : quillon::contests) {
        output.write(fmt::format("{:<17}{}\n", quillon::rawValue(contest), quillon::label(contest)));
    }
}

}  // namespace

Command contestsCommand(CLI::App& program) {
    CLI::App& usage = addCommand(program, "contests", "Zählt die Contests auf, nach denen gewertet wird.",
                                 "tallyrig contests");
    const auto asJson = std::make_shared<bool>(false);
    usage.add_flag("--json", *asJson, "Gibt ein JSON-Dokument aus, mit einer Anmerkung zu jedem");
    return {&usage, [asJson](Output& output) {
                *asJson ? writeJson(output) : writeText(output);
                return ExitStatus::good;
            }};
}

}  // namespace tallyrig::tool
