#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace quillon {

/// Why the system refused, as one German sentence for a person, such as "Die Datei existiert nicht.".
struct FileError {
    std::string message;
};

/// The whole content of the file at `path` (UTF-8), or why it could not be read. A directory is an error; a
/// file that shrinks while it is read gives what was there.
std::variant<std::string, FileError> readFile(const std::string& path);

/// Makes `content` the whole of the file at `path`: written beside it and then renamed, so that the file is
/// replaced whole or, on failure, not at all and nothing is left behind. Follows a symbolic link to its
/// target, and keeps the permissions of a file that is there. Absent on success.
std::optional<FileError> replaceFile(const std::string& path, std::string_view content);

}  // namespace quillon
