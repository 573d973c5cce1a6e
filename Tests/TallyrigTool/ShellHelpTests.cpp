// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/ToolFixture.h"

#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace {

using namespace tallyrig::tool::testing;

using Words = std::set<std::string>;

/// What shells and manual say of the tool, beside what the tool says itself.
class ShellHelp : public Tool {
  protected:
    ShellHelp() { readHelp(""); }

    /// Options of each command, by its words; those of the tool itself under the empty name.
    std::map<std::string, Words> optionsOf;
    /// The commands below a command or, under the empty name, below the tool.
    std::map<std::string, Words> commandsOf;

    /// The long options of all commands, without their dashes.
    Words longOptions() const {
        Words all;
        for (const auto& [command, options] : optionsOf) {
            for (const std::string& option : options) {
                if (option.starts_with("--")) {
                    all.insert(option.substr(2));
                }
            }
        }
        return all;
    }
    Words commandsOfAllLevels() const {
        Words all;
        for (const auto& [command, commands] : commandsOf) {
            all.insert(commands.begin(), commands.end());
        }
        return all;
    }

    /// What the first group of `pattern` is in the file, each time that it occurs there.
    static Words found(const std::string& name, const std::string& pattern) {
        std::ifstream file(RESOURCES_FOLDER "/" + name);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        const std::regex expression(pattern);
        Words words;
        for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match) {
            // A dash that is to be one has a backslash before it in manuals.
            words.insert(std::regex_replace((*match)[1].str(), std::regex(R"(\\)"), ""));
        }
        return words;
    }

  private:
    void readHelp(const std::string& command) {
        std::string section;
        for (const std::string& line : linesOf(run("tallyrig " + command + " --help").output)) {
            if (!line.starts_with("  ")) {
                section = line;
            } else if (line[2] != ' ' && section == "Optionen:") {
                std::istringstream names(line.substr(2, line.find(' ', 2) - 2));
                for (std::string option; std::getline(names, option, ',');) {
                    optionsOf[command].insert(option);
                }
            } else if (line[2] != ' ' && section == "Befehle:") {
                const std::string word = line.substr(2, line.find(' ', 2) - 2);
                commandsOf[command].insert(word);
                readHelp(command.empty() ? word : command + " " + word);
            }
        }
    }
};

TEST_F(ShellHelp, BashOffersWhatEachCommandTakes) {
    ASSERT_GT(commandsOf[""].size(), 10U);
    const auto offered = [&](const std::string& function) {
        std::istringstream output(
            run("bash -c '. " RESOURCES_FOLDER "/Completions/tallyrig.bash; " + function + "'").output);
        return Words(std::istream_iterator<std::string>(output), {});
    };
    for (const auto& [command, options] : optionsOf) {
        EXPECT_EQ(offered("_tallyrig_options \"" + command + "\""), options) << command;
    }
    for (const auto& [command, commands] : commandsOf) {
        EXPECT_EQ(offered("_tallyrig_values \"" + command + "\" \"\""), commands) << command;
    }
}

TEST_F(ShellHelp, BashCompletesCommandsOptionsValuesAndNames) {
    const auto completed = [&](const std::string& words) {
        const std::string output =
            run("bash -c '. " RESOURCES_FOLDER
                "/Completions/tallyrig.bash; COMP_WORDS=(tallyrig \"$@\"); COMP_CWORD=$#; "
                "_tallyrig; echo \"${COMPREPLY[@]}\"' - " +
                words)
                .output;
        return output.substr(0, output.find('\n'));
    };
    EXPECT_EQ(completed("conv"), "convert");
    EXPECT_EQ(completed("compare --k"), "--key");
    EXPECT_EQ(completed("convert --to c"), "cbr");
    EXPECT_EQ(completed("score --contest cqWP"), "cqWPX cqWPXRtty");
    EXPECT_EQ(completed("check --no-format Examples/bef"), "Examples/befunde.adi");
    EXPECT_EQ(completed("call Exa"), "");
}

TEST_F(ShellHelp, ManualAndOtherShellsNameTheSameOptionsAndCommands) {
    EXPECT_EQ(found("Manuals/tallyrig.1", R"(\\-\\-([a-z]+(?:\\-[a-z]+)*))"), longOptions());
    EXPECT_EQ(found("Completions/tallyrig.zsh", R"(--([a-z-]+)[\[}])"), longOptions());
    EXPECT_EQ(found("Completions/tallyrig.fish", R"(complete.* -l ([a-z-]+))"), longOptions());
    EXPECT_EQ(found("Completions/tallyrig.zsh", "'([a-z]+):[A-Z]"), commandsOfAllLevels());
    EXPECT_EQ(found("Completions/tallyrig.fish", "__fish_use_subcommand -a ([a-z]+)"), commandsOf[""]);
    EXPECT_EQ(found("Manuals/tallyrig.1", "\n\\.SS ([a-z]+)"), commandsOf[""]);
}

}  // namespace
