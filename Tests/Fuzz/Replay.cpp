// SPDX-License-Identifier: GPL-3.0-or-later
// Gives files to a fuzz target, one after the other, where the compiler has no fuzzer of its own: the logs
// below the folders that are its arguments and the one that QUILLON_SAMPLES names. Each also goes in cut off,
// so that something is left open.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

int main(int count, char** arguments) {
    namespace fs = std::filesystem;
    std::vector<fs::path> folders(arguments + 1, arguments + count);
    if (const char* samples = std::getenv("QUILLON_SAMPLES"); samples != nullptr && *samples != '\0') {
        folders.emplace_back(samples);
    }
    std::size_t files = 0;
    for (const fs::path& folder : folders) {
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            if (!entry.is_regular_file()) {
                continue;
            }
            // Stands last where a claim does not hold.
            std::printf("%s\n", entry.path().c_str());
            std::fflush(stdout);
            std::ifstream file(entry.path(), std::ios::binary);
            const std::vector<char> content(std::istreambuf_iterator<char>(file), {});
            const auto* bytes = reinterpret_cast<const std::uint8_t*>(content.data());
            LLVMFuzzerTestOneInput(bytes, content.size());
            LLVMFuzzerTestOneInput(bytes, content.size() * 2 / 3);
            ++files;
        }
    }
    return files > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
