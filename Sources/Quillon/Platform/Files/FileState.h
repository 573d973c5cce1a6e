// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace quillon {

/// A file as it was at some moment: another one, or one that was written to, differs. All zero where there is
/// none.
struct FileState {
    std::uint64_t device = 0;
    std::uint64_t number = 0;
    std::uint64_t bytes = 0;
    std::int64_t changedNs = 0;

    static FileState of(const std::string& path);
    friend bool operator==(const FileState&, const FileState&) = default;
};

}  // namespace quillon
