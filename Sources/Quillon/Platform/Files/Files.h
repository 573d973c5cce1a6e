// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace quillon {

/// Why the system refused, as one German sentence for a person, such as "Die Datei existiert nicht.". It
/// leaves the file to the caller to name, but names the folder where that is what stands in the way.
struct FileError {
    std::string message;
};

/// The whole content of the file at `path` (UTF-8), or why it could not be read. Only regular files are read:
/// nothing else is waited for, and nobody at the other end of a pipe notices. A file that grows or shrinks
/// while it is read gives what was there.
std::variant<std::string, FileError> readFile(const std::string& path);

/// Everything up to the end of standard input, whatever that is, or why it could not be read.
std::variant<std::string, FileError> readStandardInput();

/// When what is written is safe from a loss of power. Waiting for the disk takes longer than the rest, and
/// many files can wait together (`makeLast`).
enum class Lasting { atOnce, later };

/// Makes `content` the whole of the file at `path` (UTF-8): it is written beside the file and then renamed,
/// so that the file is replaced whole or, on failure, not at all. Absent on success.
///
/// Follows a symbolic link to its target. Owner, group, permissions, access control list and extended
/// attributes of a file that is there are kept as far as the system lets them; where it does not, nobody may
/// read or write the file who could not before, and a file that would get another owner is not replaced.
/// Anything but a regular file is refused.
///
/// What is written has no name until it is complete, where the file system can do that. A process that dies
/// leaves at most one file ".quillon-N.tmp" behind, which the next to save in that folder removes.
///
/// `isWanted`, if there is one, is asked in the last moment before the file is replaced; where it says no,
/// that is a failure as any other.
std::optional<FileError> replaceFile(const std::string& path, std::string_view content,
                                     Lasting lasting = Lasting::atOnce,
                                     const std::function<bool()>& isWanted = {});
/// Waits until all that was written to the disk of this folder is there. Absent on success.
std::optional<FileError> makeLast(const std::string& folder);

}  // namespace quillon
