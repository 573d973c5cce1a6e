// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/ContestOptions.h"
#include "TallyrigTool/RulesJson.h"
#include "TallyrigTool/RulesText.h"
#include "TallyrigTool/Usage.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <memory>
#include <string>

namespace tallyrig::tool {

Command rulesCommand(CLI::App& program) {
    CLI::App& usage = addCommand(program, "rules", "Zeigt, wie ein Contest gewertet wird.",
                                 "tallyrig rules cqWW --dxcc 230");
    struct Options : ContestOptions {
        bool asJson = false;
    };
    const auto options = std::make_shared<Options>();
    options->addTo(usage, "CONTEST");
    usage.add_flag("--json", options->asJson, "Gibt ein JSON-Dokument aus");
    return {&usage, [options](Output& output) {
                const ContestRules rules = options->rules();
                output.write(options->asJson ? jsonOf(rules).dump() + "\n"
                                             : textOf(rules, quillon::info(options->chosen())));
                return ExitStatus::good;
            }};
}

}  // namespace tallyrig::tool
