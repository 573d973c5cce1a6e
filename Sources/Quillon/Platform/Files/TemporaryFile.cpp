// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Files/TemporaryFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace quillon {

namespace {

enum class Abandoned { removed, inUse, absent };

/// Removes the file of this name if the process that made it has died.
Abandoned removeAbandoned(const std::string& name) {
    const Descriptor left(::open(name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!left.isOpen()) {
        return errno == ENOENT ? Abandoned::absent : Abandoned::inUse;
    }
    struct stat locked = {};
    struct stat named = {};
    if (::flock(left.number(), LOCK_EX | LOCK_NB) != 0 || ::fstat(left.number(), &locked) != 0 ||
        !S_ISREG(locked.st_mode)) {
        return Abandoned::inUse;
    }
    // Another process may have removed it before it was locked here, and the name may be that of a new one.
    const bool isSame =
        ::lstat(name.c_str(), &named) == 0 && named.st_dev == locked.st_dev && named.st_ino == locked.st_ino;
    return isSame && ::unlink(name.c_str()) == 0 ? Abandoned::removed : Abandoned::inUse;
}

std::string temporaryName(const std::string& folder, int number) {
    return folder + ".quillon-" + std::to_string(number) + ".tmp";
}

/// The first name in `folder` under which `create` can make a file; empty, with `errno` set, if that fails
/// for another reason than that the name is taken.
template <typename Create>
std::string takeName(const std::string& folder, const Create& create) {
    constexpr int mostNames = 1000;
    for (int number = 0; number < mostNames; ++number) {
        const std::string name = temporaryName(folder, number);
        bool isMade = create(name);
        if (!isMade && errno != EEXIST) {
            return {};
        }
        if (!isMade && removeAbandoned(name) != Abandoned::inUse) {
            isMade = create(name);
        }
        if (isMade) {
            for (int next = number + 1; removeAbandoned(temporaryName(folder, next)) == Abandoned::removed;) {
                ++next;
            }
            return name;
        }
    }
    errno = EEXIST;
    return {};
}

/// A file without a name; not open where the file system knows none, or a name could not be given later.
Descriptor openNameless(const std::string& folder, mode_t mode) {
    if (::access("/proc/self/fd", X_OK) != 0) {
        errno = EOPNOTSUPP;
        return {};
    }
    return Descriptor(::open(folder.empty() ? "." : folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, mode));
}

bool isUnknownToFileSystem(int error) {
    return error == EOPNOTSUPP || error == EISDIR;
}

}  // namespace

TemporaryFile::TemporaryFile(const std::string& folderPath, mode_t mode)
    : folder(folderPath), file(openNameless(folderPath, mode)) {
    if (file.isOpen()) {
        ::flock(file.number(), LOCK_EX | LOCK_NB);
    } else if (isUnknownToFileSystem(errno)) {
        name = takeName(folder, [&](const std::string& path) {
            file = Descriptor(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
            if (!file.isOpen()) {
                return false;
            }
            // Until it is locked it looks abandoned.
            struct stat made = {};
            if ((::flock(file.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) ||
                ::fstat(file.number(), &made) != 0 || made.st_nlink == 0) {
                file.close();
                errno = EEXIST;
                return false;
            }
            return true;
        });
    }
}

TemporaryFile::~TemporaryFile() {
    if (!name.empty()) {
        ::unlink(name.c_str());
    }
}

bool TemporaryFile::moveTo(const std::string& target) {
    if (name.empty()) {
        const std::string nameless = "/proc/self/fd/" + std::to_string(file.number());
        name = takeName(folder, [&](const std::string& path) {
            return ::linkat(AT_FDCWD, nameless.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0;
        });
    }
    if (name.empty() || std::rename(name.c_str(), target.c_str()) != 0) {
        return false;
    }
    name.clear();
    return true;
}

}  // namespace quillon
