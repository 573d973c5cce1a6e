// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Archive/Unpacking.h"

#include "Quillon/Platform/Files/Descriptor.h"
#include "Quillon/Platform/Files/SystemError.h"

#include <archive.h>
#include <archive_entry.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace quillon {

namespace {

using Failure = std::optional<UnpackError>;

/// The names that lead from the folder to something in it; none for the folder itself.
using Names = std::vector<std::string>;

constexpr std::size_t mostNames = 64;
constexpr std::size_t mostBytesOfPath = 4000;

UnpackError damaged() {
    return {UnpackError::Kind::failed, 1, "Das Archiv ist beschädigt."};
}

UnpackError tooLarge() {
    return {UnpackError::Kind::failed, 1, "Das Archiv ist größer, als eine Version sein kann."};
}

UnpackError refused(std::string_view path) {
    return {UnpackError::Kind::failed, 1,
            "Das Archiv enthält einen unzulässigen Eintrag: " + std::string(path.substr(0, 200))};
}

UnpackError systemError() {
    return {UnpackError::Kind::failed, errno, systemErrorSentence(errno)};
}

/// The names in a path, without "."; absent if it is empty, too long or begins at the root.
std::optional<Names> split(std::string_view path) {
    if (path.empty() || path.size() > mostBytesOfPath || path.front() == '/') {
        return std::nullopt;
    }
    Names names;
    while (!path.empty()) {
        const std::string_view name = path.substr(0, path.find('/'));
        path.remove_prefix(std::min(path.size(), name.size() + 1));
        if (!name.empty() && name != ".") {
            names.emplace_back(name);
        }
    }
    return names.size() <= mostNames ? std::optional(std::move(names)) : std::nullopt;
}

/// As `split`, and absent if it leads upwards.
std::optional<Names> splitInside(std::string_view path) {
    auto names = split(path);
    if (names && std::ranges::find(*names, "..") != names->end()) {
        return std::nullopt;
    }
    return names;
}

/// Whether the symbolic link that `link` lead to stays in the first folder of those, all of them real ones.
/// Upwards only in front: behind a name, which may be a link as well, ".." leads elsewhere than the text
/// says.
bool staysInside(std::string_view target, const Names& link) {
    const auto names = split(target);
    if (!names) {
        return false;
    }
    const auto down = std::ranges::find_if(*names, [](const std::string& name) { return name != ".."; });
    const auto steps = static_cast<std::size_t>(down - names->begin());
    return (steps == 0 || steps + 2 <= link.size()) && std::find(down, names->end(), "..") == names->end();
}

/// What the archive says, in UTF-8 where the locale has no word for it; empty if it says nothing.
std::string_view said(const char* inLocale, const char* inUTF8) {
    if (inLocale != nullptr) {
        return inLocale;
    }
    return inUTF8 != nullptr ? std::string_view(inUTF8) : std::string_view();
}

class Unpacking {
  public:
    Unpacking(archive* openedArchive, int folder, const std::function<bool()>& isStillWanted,
              const UnpackLimits& unpackLimits)
        : source(openedArchive), root(folder), isWanted(isStillWanted), limits(unpackLimits) {}

    Failure unpackAll() {
        bool isEmpty = true;
        while (true) {
            archive_entry* entry = nullptr;
            const int status = archive_read_next_header(source, &entry);
            if (status == ARCHIVE_EOF && !isEmpty) {
                return makeLinks();
            }
            if (status != ARCHIVE_OK && status != ARCHIVE_WARN) {
                return isEmpty ? UnpackError{UnpackError::Kind::notAnArchive, 1, damaged().message}
                               : damaged();
            }
            isEmpty = false;
            if (auto failure = unpackOne(entry)) {
                return failure;
            }
        }
    }

  private:
    Failure unpackOne(archive_entry* entry) {
        const std::string path(said(archive_entry_pathname(entry), archive_entry_pathname_utf8(entry)));
        const auto names = splitInside(path);
        const bool isLink =
            archive_entry_hardlink(entry) != nullptr || archive_entry_hardlink_utf8(entry) != nullptr;
        const auto type = archive_entry_filetype(entry);
        const mode_t mode = archive_entry_perm(entry);
        const bool isFolder = !isLink && type == AE_IFDIR;
        // The folder itself may be named as a folder, but as nothing else.
        if (!names || (names->empty() && !isFolder) || (mode & (S_ISUID | S_ISGID)) != 0) {
            return refused(path);
        }
        if (auto failure = count()) {
            return failure;
        }
        if (isLink || type != AE_IFREG) {
            if (auto failure = passOver(archive_entry_size(entry))) {
                return failure;
            }
        }
        if (isLink) {
            return linkFile(*names, said(archive_entry_hardlink(entry), archive_entry_hardlink_utf8(entry)));
        }
        switch (type) {
            case AE_IFDIR:
                return makeFolder(*names, mode);
            case AE_IFREG:
                return writeFile(*names, mode, archive_entry_size(entry));
            case AE_IFLNK: {
                const std::string target(
                    said(archive_entry_symlink(entry), archive_entry_symlink_utf8(entry)));
                if (!staysInside(target, *names)) {
                    return refused(path);
                }
                // Made last: until then nothing can be written through one.
                links.emplace_back(*names, target);
                return std::nullopt;
            }
            default:
                return refused(path);
        }
    }

    /// One more entry, or a folder that none names. Each is asked for, those that make nothing new as well:
    /// compressed, very many of them are a small file.
    Failure count() {
        if (++entries > limits.mostEntries) {
            return tooLarge();
        }
        return isWanted() ? std::nullopt : Failure(givenUp());
    }

    bool fits(std::int64_t size) const {
        return size >= 0 && static_cast<std::uint64_t>(size) <= limits.mostBytes - bytes;
    }

    /// The content of what is no file is not written, but reading it takes as long.
    Failure passOver(std::int64_t size) {
        if (!fits(size)) {
            return tooLarge();
        }
        bytes += static_cast<std::uint64_t>(size);
        return std::nullopt;
    }

    static UnpackError givenUp() {
        return {UnpackError::Kind::failed, ECANCELED, "Das Entpacken wurde abgebrochen."};
    }

    static UnpackError failureAt(const Names& names) {
        // Something of this name is there already, or is no folder, or is a link.
        if (errno == EEXIST || errno == ENOTDIR || errno == ELOOP || errno == ENOENT) {
            return refused(names.back());
        }
        return systemError();
    }

    /// The folder of what `names` lead to, made if it is not there; the first folder's descriptor is `root`.
    std::variant<Descriptor, UnpackError> folderOf(const Names& names, std::size_t depth) {
        Descriptor folder(::fcntl(root, F_DUPFD_CLOEXEC, 0));
        for (std::size_t level = 0; level < depth && folder.isOpen(); ++level) {
            const char* const name = names[level].c_str();
            const bool isMade = ::mkdirat(folder.number(), name, S_IRWXU) == 0;
            if (!isMade && errno != EEXIST) {
                return systemError();
            }
            // The last name is that of the entry, which is counted.
            if (isMade && level + 1 < names.size()) {
                if (auto failure = count()) {
                    return *failure;
                }
            }
            folder =
                Descriptor(::openat(folder.number(), name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        }
        if (!folder.isOpen()) {
            return failureAt(names);
        }
        return folder;
    }

    static mode_t safe(mode_t mode, mode_t atLeast) {
        return (mode & static_cast<mode_t>(S_IRWXU | S_IRWXG | S_IRWXO) &
                ~static_cast<mode_t>(S_IWGRP | S_IWOTH)) |
               atLeast;
    }

    Failure makeFolder(const Names& names, mode_t mode) {
        if (names.empty()) {
            return std::nullopt;
        }
        const auto folder = folderOf(names, names.size());
        if (const auto* const failure = std::get_if<UnpackError>(&folder)) {
            return *failure;
        }
        return ::fchmod(std::get<Descriptor>(folder).number(), safe(mode, S_IRWXU)) == 0
                   ? std::nullopt
                   : Failure(systemError());
    }

    Failure writeFile(const Names& names, mode_t mode, std::int64_t size) {
        // Said to be too large is known before the disk is full.
        if (!fits(size)) {
            return tooLarge();
        }
        const auto folder = folderOf(names, names.size() - 1);
        if (const auto* const failure = std::get_if<UnpackError>(&folder)) {
            return *failure;
        }
        const Descriptor file(::openat(std::get<Descriptor>(folder).number(), names.back().c_str(),
                                       O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                                       S_IRUSR | S_IWUSR));
        if (!file.isOpen()) {
            return failureAt(names);
        }
        Failure failure;
        while (!failure) {
            const la_ssize_t length = archive_read_data(source, buffer.data(), buffer.size());
            if (length <= 0) {
                failure = length < 0 ? Failure(damaged()) : std::nullopt;
                break;
            }
            const std::string_view block(buffer.data(), static_cast<std::size_t>(length));
            bytes += block.size();
            if (bytes > limits.mostBytes) {
                return tooLarge();
            }
            if (const int error = writeAll(file.number(), block); error != 0) {
                return UnpackError{UnpackError::Kind::failed, error, systemErrorSentence(error)};
            }
            failure = isWanted() ? std::nullopt : Failure(givenUp());
        }
        if (!failure && ::fchmod(file.number(), safe(mode, S_IRUSR)) != 0) {
            failure = systemError();
        }
        return failure;
    }

    /// One more name for a file that came before.
    Failure linkFile(const Names& names, std::string_view target) {
        const auto targetNames = splitInside(target);
        if (!targetNames || targetNames->empty()) {
            return refused(target);
        }
        const auto from = folderOf(*targetNames, targetNames->size() - 1);
        const auto to = folderOf(names, names.size() - 1);
        for (const auto* const folder : {&from, &to}) {
            if (const auto* const failure = std::get_if<UnpackError>(folder)) {
                return *failure;
            }
        }
        if (::linkat(std::get<Descriptor>(from).number(), targetNames->back().c_str(),
                     std::get<Descriptor>(to).number(), names.back().c_str(), 0) != 0) {
            return failureAt(names);
        }
        return std::nullopt;
    }

    Failure makeLinks() {
        for (const auto& [names, target] : links) {
            const auto folder = folderOf(names, names.size() - 1);
            if (const auto* const failure = std::get_if<UnpackError>(&folder)) {
                return *failure;
            }
            if (::symlinkat(target.c_str(), std::get<Descriptor>(folder).number(), names.back().c_str()) !=
                0) {
                return failureAt(names);
            }
        }
        return std::nullopt;
    }

    archive* source;
    int root;
    const std::function<bool()>& isWanted;
    const UnpackLimits& limits;
    std::vector<std::pair<Names, std::string>> links;
    std::size_t entries = 0;
    std::uint64_t bytes = 0;
    std::array<char, 65536> buffer = {};
};

}  // namespace

std::variant<std::string, UnpackError> unpack(const std::string& archivePath, const std::string& parent,
                                              const std::function<bool()>& isWanted,
                                              const UnpackLimits& limits) {
    const Descriptor file(::open(archivePath.c_str(), O_RDONLY | O_CLOEXEC));
    std::string folder = parent + "/unpacked-XXXXXX";
    if (!file.isOpen() || ::mkdtemp(folder.data()) == nullptr) {
        return systemError();
    }
    Failure failure;
    const Descriptor root(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    const std::unique_ptr<archive, int (*)(archive*)> source(archive_read_new(), archive_read_free);
    constexpr std::size_t blockBytes = 65536;
    if (!root.isOpen()) {
        failure = systemError();
    } else if (source == nullptr || archive_read_support_filter_xz(source.get()) != ARCHIVE_OK ||
               archive_read_support_format_tar(source.get()) != ARCHIVE_OK) {
        failure = UnpackError{UnpackError::Kind::failed, ENOMEM, systemErrorSentence(ENOMEM)};
    } else if (archive_read_open_fd(source.get(), file.number(), blockBytes) != ARCHIVE_OK) {
        failure = UnpackError{UnpackError::Kind::notAnArchive, 1, damaged().message};
    } else {
        failure = Unpacking(source.get(), root.number(), isWanted, limits).unpackAll();
    }
    if (failure) {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
        return *failure;
    }
    return folder;
}

}  // namespace quillon
