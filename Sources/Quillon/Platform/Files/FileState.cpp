// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Files/FileState.h"

#include <sys/stat.h>

namespace quillon {

FileState FileState::of(const std::string& path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0) {
        return {};
    }
    constexpr std::int64_t secondNs = 1'000'000'000;
    return {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
            status.st_mtim.tv_sec * secondNs + status.st_mtim.tv_nsec};
}

}  // namespace quillon
