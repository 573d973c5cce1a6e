// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TallyrigTool/Console.h"

#include <functional>
#include <vector>

namespace CLI {
class App;
}

namespace tallyrig::tool {

/// One command of the tool: how it is called and what it does.
struct Command {
    const CLI::App* usage = nullptr;  ///< Has been parsed, when `run` is called, with this command chosen.
    std::function<ExitStatus(Output&)> run;  ///< May throw a `Failure`.
};

/// Each adds its command to `program`, which must outlive it. One source file per command.
Command dumpCommand(CLI::App& program);
Command readCommand(CLI::App& program);
Command checkCommand(CLI::App& program);
Command convertCommand(CLI::App& program);
Command compareCommand(CLI::App& program);
Command statsCommand(CLI::App& program);
Command distanceCommand(CLI::App& program);
Command callCommand(CLI::App& program);
Command contestsCommand(CLI::App& program);
Command rulesCommand(CLI::App& program);
Command scoreCommand(CLI::App& program);
Command crossCheckCommand(CLI::App& program);
/// Several under one word.
std::vector<Command> outdoorCommands(CLI::App& program);

}  // namespace tallyrig::tool
