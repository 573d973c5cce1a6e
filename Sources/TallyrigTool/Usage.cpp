// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/Usage.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyrig::tool {

namespace {

constexpr auto explanation =
    "Beispiele:\n"
    "  tallyrig dump --json Examples/vereinsabend.adi\n"
    "  tallyrig read Examples/schaden.adi\n"
    "  tallyrig check --no-duplicates Examples/befunde.adi\n"
    "  tallyrig convert --to adi -o neu.adi Examples/vereinsabend.adi\n"
    "\n"
    "Mehr zu einem Befehl: tallyrig BEFEHL --help\n"
    "\n"
    "Gelesen werden ADIF, ADX, Cabrillo und EDI, erkannt am Inhalt, nicht am Dateinamen.\n"
    "Rückgabewert: 0 nichts zu beanstanden, 1 Befunde, 2 falscher Aufruf, unlesbare Datei\n"
    "oder misslungenes Schreiben.";

/// Lays out the help pages, with the words that stand on each of them in German.
class GermanFormatter : public CLI::Formatter {
  public:
    GermanFormatter() {
        label("Usage", "Aufruf");
        label("OPTIONS", "OPTIONEN");
        label("Positionals", "Angaben");
        label("REQUIRED", "");
        label("TEXT", "");
        label("SUBCOMMAND", "BEFEHL");
        column_width(24);
    }

    std::string make_usage(const CLI::App* app, std::string name) const override {
        // A call without a command is for --help and --version only, which the parser's own line puts first.
        return app->get_parent() == nullptr ? "Aufruf: tallyrig BEFEHL ...\n"
                                            : CLI::Formatter::make_usage(app, std::move(name));
    }
};

/// `text` up to `mark`, whole if that is not in it.
std::string before(std::string_view mark, const std::string& text) {
    return text.substr(0, text.find(mark));
}

/// `text` behind `mark`, whole if that is not in it.
std::string behind(std::string_view mark, const std::string& text) {
    const std::size_t found = text.find(mark);
    return found == std::string::npos ? text : text.substr(found + mark.size());
}

/// What stands in front of an argument in brackets, which the parser would take for a list, and in front of
/// one that begins with this itself.
constexpr char guard = '\1';

std::string withGuard(const std::string& argument) {
    return argument.starts_with('[') || argument.starts_with(guard) ? guard + argument : argument;
}

std::string withoutGuard(const std::string& argument) {
    return argument.substr(argument.starts_with(guard) ? 1 : 0);
}

/// The parser's own sentence is English. Its class says what is wrong and the sentence, of which it makes
/// only a few, with what.
std::string germanMessage(const CLI::ParseError& error) {
    std::string said = error.what();
    if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) {
        return "Es fehlt: " + before(" is required", said);
    }
    if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
        return "Unbekannte Angabe: " + withoutGuard(behind("not expected: ", said));
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
        return "Die Zahl der Werte stimmt nicht: " + before(":", said);
    }
    if (dynamic_cast<const CLI::ConversionError*>(&error) != nullptr) {
        return "Ungültiger Wert: " + said;
    }
    // What remains comes from our own checks of values.
    return said;
}

/// The first argument that is meant as a short option, but is none; empty if there is no such argument.
std::string wordLikeOption(const CLI::App& program) {
    for (const CLI::App* const command : program.get_subcommands()) {
        for (const std::string& word : command->remaining(true)) {
            if (word.size() > 1 && word.starts_with('-') && !word.starts_with("--")) {
                return word;
            }
        }
    }
    return {};
}

std::string withHint(const std::string& message, const CLI::App& program) {
    std::string call = "tallyrig ";
    for (auto chosen = program.get_subcommands(); !chosen.empty();
         chosen = chosen.front()->get_subcommands()) {
        call += chosen.front()->get_name() + " ";
    }
    return message + " (Hilfe: " + call + "--help)";
}

/// Lets the options of all commands give their values without the guard.
void removeGuards(CLI::App& program) {
    for (CLI::App* const command : program.get_subcommands({})) {
        for (CLI::Option* const option : command->get_options()) {
            option->transform(CLI::Validator(
                [](std::string& value) {
                    value = withoutGuard(value);
                    return std::string();
                },
                ""));
        }
        removeGuards(*command);
    }
}

/// At most one command, so that a file may be called as a command is. Words that are none are looked at by
/// `missingCommandMessage`.
void letCommandsFollow(CLI::App& program) {
    program.require_subcommand(0, 1);
    program.allow_extras();
}

}  // namespace

void describeProgram(CLI::App& program) {
    program.name("tallyrig");
    program.description("Liest, prüft und schreibt Logs des Amateurfunks.");
    program.footer(explanation);
    program.option_defaults()->group("Optionen");
    program.set_help_flag("-h,--help", "Zeigt diese Hilfe")->group("Optionen");
    program.set_version_flag("--version", "", "Zeigt die Version")->group("Optionen");
    letCommandsFollow(program);
    program.formatter(std::make_shared<GermanFormatter>());
}

CLI::App& addCommand(CLI::App& program, const std::string& name, const std::string& does,
                     const std::string& example) {
    CLI::App& command = *program.add_subcommand(name, does)->group("Befehle");
    command.get_help_ptr()->group("Optionen");
    command.allow_extras(false);
    command.footer("Beispiel:\n  " + example);
    return command;
}

CLI::App& addCommandGroup(CLI::App& program, const std::string& name, const std::string& does,
                          const std::string& example) {
    CLI::App& group = addCommand(program, name, does, example);
    letCommandsFollow(group);
    return group;
}

void parse(CLI::App& program, std::vector<std::string> arguments) {
    const auto mark = std::ranges::find(arguments, "--");
    std::transform(arguments.begin(), mark, arguments.begin(), withGuard);
    if (mark != arguments.end()) {
        // Only names stand behind it. The parser knows it too, but loses those that stand behind a list.
        std::for_each(arguments.erase(mark), arguments.end(),
                      [](std::string& name) { name.insert(name.begin(), guard); });
    }
    removeGuards(program);
    // The parser takes them from the end.
    std::ranges::reverse(arguments);
    program.parse(std::move(arguments));
}

std::string usageMessage(const CLI::App& program, const CLI::ParseError& error) {
    const std::string word = wordLikeOption(program);
    return withHint(word.empty() ? germanMessage(error)
                                 : "Unbekannte Angabe: " + word + ". Eine Datei dieses Namens heißt hier ./" +
                                       word + " oder steht hinter --",
                    program);
}

std::string missingCommandMessage(const CLI::App& program) {
    const std::vector<std::string> words = program.remaining(true);
    return withHint(
        words.empty() ? "Es fehlt der Befehl" : "Unbekannter Befehl: " + withoutGuard(words.front()),
        program);
}

}  // namespace tallyrig::tool
