// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
class ParseError;
}  // namespace CLI

namespace tallyrig::tool {

/// Sets up the program itself: its help in German, for the commands added later too, and its version.
void describeProgram(CLI::App& program);

/// Adds a command to the program, or to a group of commands, with its help: what it does, and an example of
/// its use.
CLI::App& addCommand(CLI::App& program, const std::string& name, const std::string& does,
                     const std::string& example);
/// Adds a word to the program that commands stand behind, with its help.
CLI::App& addCommandGroup(CLI::App& program, const std::string& name, const std::string& does,
                          const std::string& example);

/// Parses the program's `arguments`, its name left out. All options are set up before. Throws what the parser
/// throws.
void parse(CLI::App& program, std::vector<std::string> arguments);

/// What is wrong with the call, in German and with a hint to the help.
std::string usageMessage(const CLI::App& program, const CLI::ParseError& error);

/// The same for a call that names no command of ours.
std::string missingCommandMessage(const CLI::App& program);

}  // namespace tallyrig::tool
