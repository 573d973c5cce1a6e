// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Files/FolderCopy.h"

#include "Quillon/Platform/Files/Files.h"

#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace quillon {

namespace {

namespace fs = std::filesystem;

/// The mask of the user must neither take away what the original has nor let others in for a moment.
void makeLike(const fs::path& from, const fs::path& to, std::error_code& error) {
    if (::mkdir(to.c_str(), S_IRWXU) != 0) {
        error = std::error_code(errno, std::generic_category());
    }
    if (!error) {
        // The owner has to get in until all is there.
        fs::permissions(to, fs::status(from, error).permissions() | fs::perms::owner_all, error);
    }
}

void copyOne(const fs::directory_entry& entry, const fs::path& to, std::error_code& error) {
    const fs::file_status status = entry.symlink_status(error);
    if (error) {
        return;
    }
    switch (status.type()) {
        case fs::file_type::directory:
            makeLike(entry.path(), to, error);
            break;
        case fs::file_type::symlink:
            fs::copy_symlink(entry.path(), to, error);
            break;
        case fs::file_type::regular:
            fs::copy_file(entry.path(), to, error);
            break;
        default:
            error = std::make_error_code(std::errc::no_such_device);
    }
}

}  // namespace

int copyFolder(const std::string& from, const std::string& to) {
    std::error_code error;
    makeLike(from, to, error);
    const fs::path target(to);
    fs::recursive_directory_iterator at;
    if (!error) {
        at = fs::recursive_directory_iterator(from, error);
    }
    while (!error && at != fs::recursive_directory_iterator()) {
        copyOne(*at, target / at->path().lexically_relative(from), error);
        if (!error) {
            at.increment(error);
        }
    }
    if (!error && makeLast(to)) {
        return EIO;
    }
    return error.value();
}

}  // namespace quillon
