// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Files/Files.h"
#include "Tallyrig/Log/ADIFDocument.h"

#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace tallyrig {
class LogWork;
}

namespace quillon {

// Paths are as the system has them, of whatever encoding.

/// The last part of a path, as well-formed UTF-8. Slashes behind it do not count.
std::string fileName(const std::string& path);

/// Whether a folder is there, or a symbolic link to one.
bool isFolder(const std::string& path);

/// The paths of the logs that lie in `folder` itself, in natural order, or why it could not be listed. A log
/// is a regular file that the extension tells to be one, in any case: what it holds is not looked at. Hidden
/// files and symbolic links are passed over.
std::variant<std::vector<std::string>, FileError> logFilesIn(const std::string& folder);

/// One of many files, as it was read.
struct LoadedLog {
    tallyrig::ADIFDocument document;  ///< Empty also if the file could not be read.
    std::string owner;                ///< `CrossCheckLog::detectOwner`; empty if there is none.
    std::optional<FileError> error;   ///< Why it could not be read.
};

/// Reads these files, each as a log in the format that it shows, on several threads; a step of the work is a
/// file. In the order of `paths`; absent if the work was cancelled.
std::optional<std::vector<LoadedLog>> readLogs(std::span<const std::string> paths, tallyrig::LogWork& work);

}  // namespace quillon
