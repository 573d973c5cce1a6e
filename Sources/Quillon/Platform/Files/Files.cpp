// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Files/Files.h"

#include "Quillon/Platform/Files/Attributes.h"
#include "Quillon/Platform/Files/Descriptor.h"
#include "Quillon/Platform/Files/SystemError.h"
#include "Quillon/Platform/Files/TemporaryFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace quillon {

namespace {

bool isForbidden(int error) {
    return error == EACCES || error == EPERM;
}

FileError readingError(int error) {
    return {isForbidden(error) ? "Keine Berechtigung, die Datei zu lesen." : systemErrorSentence(error)};
}

FileError writingError(int error) {
    if (error == ENOENT) {
        return {"Der Ordner existiert nicht."};
    }
    return {isForbidden(error) ? "Keine Berechtigung, die Datei zu schreiben." : systemErrorSentence(error)};
}

FileError creatingError(int error, const std::string& folder) {
    return isForbidden(error) ? FileError{"Im Ordner „" + (folder.empty() ? "." : folder) +
                                          "“ darf keine Datei angelegt werden."}
                              : writingError(error);
}

std::variant<std::string, FileError> contentOf(int descriptor, std::size_t expected) {
    ReadBytes read = readAll(descriptor, expected);
    if (read.error != 0) {
        return readingError(read.error);
    }
    return std::move(read.bytes);
}

/// The error number for a file of this kind that is to be read or replaced; 0 for a regular file.
int refusalOf(const struct stat& status) {
    if (S_ISREG(status.st_mode)) {
        return 0;
    }
    return S_ISDIR(status.st_mode) ? EISDIR : ENXIO;
}

/// Everything up to the first file name, with its slash; empty for a bare name.
std::string folderOf(const std::string& path) {
    return path.substr(0, path.rfind('/') + 1);
}

/// Where `path` leads when the symbolic links at its end are followed, whether or not a file is there. Absent
/// if they go in a circle.
std::optional<std::string> linkTarget(std::string path) {
    constexpr int mostLinks = 40;
    for (int links = 0; links <= mostLinks; ++links) {
        std::string target(4096, '\0');
        const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
        if (length < 0) {
            return path;
        }
        target.resize(static_cast<std::size_t>(length));
        path = target.starts_with('/') ? target : folderOf(path) + target;
    }
    return std::nullopt;
}

/// Makes the new name of a file last through a loss of power, where the file system can.
void syncFolder(const std::string& folder) {
    const Descriptor opened(
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.isOpen()) {
        static_cast<void>(::fsync(opened.number()));
    }
}

}  // namespace

std::variant<std::string, FileError> readFile(const std::string& path) {
    struct stat status = {};
    // Looked at before it is opened: whoever waits to write into a pipe would go on, and find nobody reading.
    if (::stat(path.c_str(), &status) != 0) {
        return readingError(errno);
    }
    if (const int refusal = refusalOf(status); refusal != 0) {
        return readingError(refusal);
    }
    // Some files of the kernel are regular and yet never end; this way they say so.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.isOpen()) {
        // Another process, such as a file server, is asked to let go of it.
        return readingError(errno == EAGAIN ? EBUSY : errno);
    }
    if (::fstat(file.number(), &status) != 0) {
        return readingError(errno);
    }
    return contentOf(file.number(), static_cast<std::size_t>(status.st_size));
}

std::variant<std::string, FileError> readStandardInput() {
    return contentOf(STDIN_FILENO, 0);
}

std::optional<FileError> replaceFile(const std::string& path, std::string_view content, Lasting lasting,
                                     const std::function<bool()>& isWanted) {
    struct stat old = {};
    const bool isThere = ::stat(path.c_str(), &old) == 0;
    if (const int refusal = isThere ? refusalOf(old) : 0; refusal != 0) {
        return writingError(refusal);
    }
    // Renaming needs no right to the file itself, but a file protected against writing was meant to stay.
    if (isThere && ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) {
        return writingError(errno);
    }
    const auto target = linkTarget(path);
    if (!target) {
        return writingError(ELOOP);
    }
    const std::string folder = folderOf(*target);
    TemporaryFile file(folder, isThere ? 0600 : 0666);
    if (!file.isOpen()) {
        return creatingError(errno, folder);
    }
    if (const int error = writeAll(file.number(), content); error != 0) {
        return writingError(error);
    }
    if (isThere && !carryOverAttributes(path, old, file.number())) {
        return FileError{
            "Die Datei gehört einem anderen Benutzer und würde ihm durch das Speichern genommen."};
    }
    if (lasting == Lasting::atOnce && ::fsync(file.number()) != 0) {
        return writingError(errno);
    }
    if (isWanted && !isWanted()) {
        return FileError{"Die Datei ist inzwischen eine andere."};
    }
    if (!file.moveTo(*target)) {
        return writingError(errno);
    }
    if (lasting == Lasting::atOnce) {
        syncFolder(folder);
    }
    return std::nullopt;
}

std::optional<FileError> makeLast(const std::string& folder) {
    const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!opened.isOpen() || ::syncfs(opened.number()) != 0) {
        return writingError(errno);
    }
    return std::nullopt;
}

}  // namespace quillon
