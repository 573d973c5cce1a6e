// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

/// What the tests of the tool have in common.
namespace tallyrig::tool::testing {

namespace fs = std::filesystem;

/// What a run of the tool left behind.
struct Ran {
    int status = -1;
    std::string output;
    std::string complaint;
};

/// Runs the built tool in a folder of its own, in which the project's `Examples` are found.
class Tool : public ::testing::Test {
  protected:
    Tool() {
        std::string pattern = fs::temp_directory_path() / "tallyrig-XXXXXX";
        folder = ::mkdtemp(pattern.data());
        fs::create_directory_symlink(EXAMPLES_FOLDER, folder / "Examples");
    }
    ~Tool() override { fs::remove_all(folder); }

    /// The command line as a shell reads it, so that it may redirect the streams.
    Ran run(const std::string& commandLine, std::string_view input = "") const {
        write(".in", input);
        const std::string script = "cd '" + folder.string() + "' && PATH='" TOOL_FOLDER ":'$PATH && { " +
                                   commandLine + "\n} <.in >.out 2>.err";
        const int result = std::system(script.c_str());
        return {WIFEXITED(result) ? WEXITSTATUS(result) : -1, read(".out"), read(".err")};
    }
    void write(const std::string& name, std::string_view content) const {
        std::ofstream(folder / name, std::ios::binary) << content;
    }
    std::string read(const std::string& name) const {
        std::ifstream file(folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// The names in the folder that a test or the tool put there.
    std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder)) {
            const std::string name = entry.path().filename();
            if (name != "Examples" && name != ".in" && name != ".out" && name != ".err") {
                names.push_back(name);
            }
        }
        return names;
    }

    fs::path folder;
};

inline std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

}  // namespace tallyrig::tool::testing
