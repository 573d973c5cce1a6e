#include "Quillon/Platform/Files/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

namespace quillon {

namespace {

enum class Access { reading, writing };

/// The cause that `errno` names, as a sentence for a person.
FileError errorFrom(int cause, Access access) {
    const bool isReading = access == Access::reading;
    switch (cause) {
        case ENOENT:
            return {isReading ? "Die Datei existiert nicht." : "Der Ordner existiert nicht."};
        case ENOTDIR:
            return {"Ein Teil des Pfads ist kein Ordner."};
        case EACCES:
        case EPERM:
            return {isReading ? "Keine Berechtigung, die Datei zu lesen."
                              : "Keine Berechtigung, die Datei zu schreiben."};
        case EISDIR:
            return {"Das ist ein Ordner und keine Datei."};
        case ENOSPC:
        case EDQUOT:
            return {"Auf dem Datenträger ist kein Platz mehr."};
        case EROFS:
            return {"Der Datenträger ist schreibgeschützt."};
        case ELOOP:
            return {"Der Pfad führt über zu viele symbolische Verknüpfungen."};
        case ENAMETOOLONG:
            return {"Der Dateiname ist zu lang."};
        case EFBIG:
        case EOVERFLOW:
        case ENOMEM:
            return {"Die Datei ist zu groß."};
        case EIO:
            return {"Der Datenträger meldet einen Ein-/Ausgabefehler."};
        case EBUSY:
        case ETXTBSY:
            return {"Die Datei wird gerade benutzt."};
        case EMFILE:
        case ENFILE:
            return {"Es sind zu viele Dateien geöffnet."};
        default:
            return {"Das System meldet den Fehler " + std::to_string(cause) + "."};
    }
}

/// A file descriptor, closed at the end.
class Descriptor {
  public:
    explicit Descriptor(int opened) : descriptor(opened) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (isOpen()) {
            ::close(descriptor);
        }
    }
    bool isOpen() const { return descriptor >= 0; }
    int number() const { return descriptor; }
    /// Some file systems tell only here that what was written found no room.
    bool close() { return ::close(std::exchange(descriptor, -1)) == 0; }

  private:
    int descriptor;
};

/// The file that takes the place of another, removed unless it was moved there.
class TemporaryFile {
  public:
    explicit TemporaryFile(std::string filePath) : path(std::move(filePath)) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!path.empty()) {
            ::unlink(path.c_str());
        }
    }
    bool moveTo(const std::string& target) {
        if (std::rename(path.c_str(), target.c_str()) != 0) {
            return false;
        }
        path.clear();
        return true;
    }

  private:
    std::string path;
};

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

bool writeAll(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno != EINTR) {
            return false;
        }
        content.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
    }
    return true;
}

/// Makes the new name of a file last through a loss of power, where the file system can.
void syncFolder(const std::string& folder) {
    const Descriptor opened(
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.isOpen()) {
        static_cast<void>(::fsync(opened.number()));
    }
}

/// Devices and pipes are written to: they cannot be replaced.
std::optional<FileError> writeInPlace(const std::string& path, std::string_view content) {
    Descriptor file(::open(path.c_str(), O_WRONLY | O_CLOEXEC));
    if (!file.isOpen() || !writeAll(file.number(), content) || !file.close()) {
        return errorFrom(errno, Access::writing);
    }
    return std::nullopt;
}

/// Creates a file that was not there in `folder` and puts its path into `path`.
int createBeside(const std::string& folder, mode_t mode, std::string& path) {
    for (int attempt = 0;; ++attempt) {
        path = folder + ".quillon-" + std::to_string(::getpid()) + "-" + std::to_string(attempt) + ".tmp";
        const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (descriptor >= 0 || errno != EEXIST) {
            return descriptor;
        }
    }
}

/// Makes the new file as accessible as the one it replaces, as far as the system allows it: not every one may
/// give a file away, and not every file system knows owners and permissions. That is no reason not to save.
bool takeOver(int descriptor, const struct stat& old) {
    struct stat created = {};
    if (::fstat(descriptor, &created) != 0) {
        return false;
    }
    mode_t mode = old.st_mode & 07777U;
    if (created.st_uid != old.st_uid && ::fchown(descriptor, old.st_uid, old.st_gid) == 0) {
        created.st_gid = old.st_gid;
    }
    if (created.st_gid != old.st_gid && ::fchown(descriptor, static_cast<uid_t>(-1), old.st_gid) != 0) {
        // Another group must not get the rights of the old one.
        mode &= ~static_cast<mode_t>(S_IRWXG);
    }
    if ((created.st_mode & 07777U) != mode) {
        static_cast<void>(::fchmod(descriptor, mode));
    }
    return true;
}

/// All bytes up to the end. `expected` is their number as far as it is known: files of the kernel say 0, and
/// others may grow or shrink while they are read.
std::variant<std::string, FileError> readAll(int descriptor, std::size_t expected) {
    // One byte more than expected lets the last read see the end without growing.
    std::string content(std::max<std::size_t>(expected + 1, 4096), '\0');
    std::size_t length = 0;
    while (true) {
        const ssize_t count = ::read(descriptor, content.data() + length, content.size() - length);
        if (count < 0 && errno != EINTR) {
            return errorFrom(errno, Access::reading);
        }
        if (count == 0) {
            content.resize(length);
            return content;
        }
        length += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
        if (length == content.size()) {
            content.resize(content.size() * 2);
        }
    }
}

}  // namespace

std::variant<std::string, FileError> readFile(const std::string& path) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat status = {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0) {
        return errorFrom(errno, Access::reading);
    }
    if (S_ISDIR(status.st_mode)) {
        return errorFrom(EISDIR, Access::reading);
    }
    try {
        return readAll(file.number(), static_cast<std::size_t>(status.st_size));
    } catch (const std::bad_alloc&) {
        return errorFrom(ENOMEM, Access::reading);
    } catch (const std::length_error&) {
        return errorFrom(EFBIG, Access::reading);
    }
}

std::optional<FileError> replaceFile(const std::string& path, std::string_view content) {
    struct stat old = {};
    const bool isThere = ::stat(path.c_str(), &old) == 0;
    if (isThere && S_ISDIR(old.st_mode)) {
        return errorFrom(EISDIR, Access::writing);
    }
    if (isThere && !S_ISREG(old.st_mode)) {
        return writeInPlace(path, content);
    }
    // Renaming needs no right to the file itself, but a file protected against writing was meant to stay.
    if (isThere && ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) {
        return errorFrom(errno, Access::writing);
    }
    const auto target = linkTarget(path);
    if (!target) {
        return errorFrom(ELOOP, Access::writing);
    }
    std::string temporaryPath;
    Descriptor file(createBeside(folderOf(*target), isThere ? 0600 : 0666, temporaryPath));
    if (!file.isOpen()) {
        return errorFrom(errno, Access::writing);
    }
    TemporaryFile temporary(std::move(temporaryPath));
    if (!writeAll(file.number(), content) || (isThere && !takeOver(file.number(), old)) ||
        ::fsync(file.number()) != 0 || !file.close() || !temporary.moveTo(*target)) {
        return errorFrom(errno, Access::writing);
    }
    syncFolder(folderOf(*target));
    return std::nullopt;
}

}  // namespace quillon
