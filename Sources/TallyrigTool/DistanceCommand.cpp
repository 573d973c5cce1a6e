// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Geography/Locator.h"
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/Usage.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <memory>
#include <string>

namespace tallyrig::tool {

namespace {

struct Options {
    std::string from;
    std::string to;
    bool asJson = false;
};

void demandLocator(const std::string& text) {
    if (!maidenheadToCoordinate(text)) {
        throw Failure{visible(text) + ": kein Locator"};
    }
}

ExitStatus run(const Options& options, Output& output) {
    demandLocator(options.from);
    demandLocator(options.to);
    const double greatCircle = greatCircleKm(options.from, options.to).value_or(0);
    const auto rounded = distanceKm(options.from, options.to).value_or(0);
    output.write(options.asJson
                     ? fmt::format("{{\"greatCircleKm\": {}, \"distanceKm\": {}}}\n", greatCircle, rounded)
                     : fmt::format("{} km\n", rounded));
    return ExitStatus::good;
}

}  // namespace

Command distanceCommand(CLI::App& program) {
    const auto options = std::make_shared<Options>();
    CLI::App& usage =
        addCommand(program, "distance", "Gibt die Entfernung zweier Locatoren in Kilometern an.",
                   "tallyrig distance JO62QM JN58");
    usage.add_option("FROM", options->from, "Ein Locator, etwa JO62QM")->required();
    usage.add_option("TO", options->to, "Der andere Locator")->required();
    usage.add_flag("--json", options->asJson, "Gibt ein JSON-Dokument aus");
    return {&usage, [options](Output& output) { return run(*options, output); }};
}

}  // namespace tallyrig::tool
