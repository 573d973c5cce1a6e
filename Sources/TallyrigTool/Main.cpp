// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/LogWriters.h"
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/Console.h"
#include "TallyrigTool/Usage.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <exception>
#include <iterator>
#include <new>
#include <string>
#include <vector>

namespace tallyrig::tool {

namespace {

void print(const std::string& text) {
    Output output;
    output.write(text);
    output.flush();
}

/// Reads the command line and does what it asks for. Throws a `Failure`.
ExitStatus run(int count, const char* const* arguments) {
    CLI::App program;
    describeProgram(program);
    std::vector<Command> commands = {
        dumpCommand(program),     readCommand(program),    checkCommand(program),
        convertCommand(program),  compareCommand(program), statsCommand(program),
        distanceCommand(program), callCommand(program),    contestsCommand(program),
        rulesCommand(program),    scoreCommand(program),   crossCheckCommand(program)};
    std::ranges::move(outdoorCommands(program), std::back_inserter(commands));
    try {
        parse(program, {arguments + 1, arguments + count});
    } catch (const CLI::CallForHelp&) {
        print(program.help());
        return ExitStatus::good;
    } catch (const CLI::CallForVersion&) {
        print("tallyrig " + std::string(quillon::programVersion()) + "\n");
        return ExitStatus::good;
    } catch (const CLI::ParseError& error) {
        throw Failure{usageMessage(program, error)};
    }
    const auto chosen =
        std::ranges::find_if(commands, [](const Command& command) { return command.usage->parsed(); });
    if (chosen == commands.end() || !program.remaining(true).empty()) {
        throw Failure{missingCommandMessage(program)};
    }
    Output output;
    const ExitStatus status = chosen->run(output);
    output.flush();
    return status;
}

}  // namespace

}  // namespace tallyrig::tool

int main(int count, char** arguments) {
    using namespace tallyrig::tool;
    try {
        prepareStandardStreams();
        return static_cast<int>(run(count, arguments));
    } catch (const Failure& failure) {
        complain(failure.message);
    } catch (const std::bad_alloc&) {
        complain("Der Speicher reicht nicht.");
    } catch (const std::exception& error) {
        complain(error.what());
    }
    return static_cast<int>(ExitStatus::failed);
}
