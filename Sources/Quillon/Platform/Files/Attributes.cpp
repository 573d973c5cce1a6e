// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Files/Attributes.h"

#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string_view>

namespace quillon {

namespace {

constexpr auto accessList = "system.posix_acl_access";

/// These speak of the content, which is another now, or have a turn of their own.
constexpr std::array<std::string_view, 4> notCarriedOver = {accessList, "security.capability", "security.ima",
                                                            "security.evm"};

/// What `read(buffer, size)` gives, a call of the system that tells the size if it is given none; absent,
/// with `errno` set, if it fails.
template <typename Read>
std::optional<std::string> valueFrom(const Read& read) {
    while (true) {
        const ssize_t size = read(nullptr, 0);
        if (size < 0) {
            return std::nullopt;
        }
        std::string value(static_cast<std::size_t>(size), '\0');
        const ssize_t length = size == 0 ? 0 : read(value.data(), value.size());
        if (length >= 0) {
            value.resize(static_cast<std::size_t>(length));
            return value;
        }
        if (errno != ERANGE) {  // It has grown in between.
            return std::nullopt;
        }
    }
}

std::optional<std::string> attribute(const std::string& path, const char* name) {
    return valueFrom(
        [&](char* buffer, std::size_t size) { return ::getxattr(path.c_str(), name, buffer, size); });
}

bool setAttribute(int descriptor, const char* name, const std::string& value) {
    return ::fsetxattr(descriptor, name, value.data(), value.size(), 0) == 0;
}

/// Carries over all but the access control list. False if one of them was left out by which the system may
/// know who has what rights.
bool carryOverExtendedAttributes(const std::string& path, int descriptor) {
    const auto names =
        valueFrom([&](char* buffer, std::size_t size) { return ::listxattr(path.c_str(), buffer, size); });
    bool hasAllRights = true;
    // Each name ends in a zero byte.
    for (std::size_t start = 0; names && start < names->size();) {
        const std::string name = names->c_str() + start;
        start += name.size() + 1;
        if (std::ranges::find(notCarriedOver, name) == notCarriedOver.end()) {
            const auto value = attribute(path, name.c_str());
            const bool isThere = value && setAttribute(descriptor, name.c_str(), *value);
            hasAllRights &= isThere || !name.starts_with("system.");
        }
    }
    return hasAllRights;
}

/// Whether the new file has the list of the old one or, where that has none, lost the one that its folder
/// gave it. The list speaks of the file's group, so that it is not for a file of another.
bool carryOverAccessList(const std::string& path, int descriptor, bool hasOtherGroup) {
    if (const auto list = attribute(path, accessList)) {
        return !hasOtherGroup && setAttribute(descriptor, accessList, *list);
    }
    if (errno == EOPNOTSUPP) {
        return true;
    }
    return errno == ENODATA && (::fremovexattr(descriptor, accessList) == 0 || errno == ENODATA);
}

/// The rights that group and others have both: whoever was one may have become the other.
mode_t withRightsOfAll(mode_t mode) {
    const mode_t common = (mode >> 3U) & mode & S_IRWXO;
    return (mode & ~static_cast<mode_t>(S_IRWXG | S_IRWXO)) | (common << 3U) | common;
}

}  // namespace

bool carryOverAttributes(const std::string& path, const struct stat& old, int descriptor) {
    struct stat created = {};
    if (::fstat(descriptor, &created) != 0) {
        return false;
    }
    const auto sameUser = static_cast<uid_t>(-1);
    const auto sameGroup = static_cast<gid_t>(-1);
    const bool hasOtherGroup =
        created.st_gid != old.st_gid && ::fchown(descriptor, sameUser, old.st_gid) != 0;
    if (created.st_uid != old.st_uid && ::fchown(descriptor, old.st_uid, sameGroup) != 0) {
        return false;
    }
    mode_t mode = old.st_mode & 07777U;
    if (hasOtherGroup) {
        mode = withRightsOfAll(mode);
    }
    if (!carryOverExtendedAttributes(path, descriptor) ||
        !carryOverAccessList(path, descriptor, hasOtherGroup)) {
        mode &= ~static_cast<mode_t>(S_IRWXG | S_IRWXO);
    }
    // Not every file system knows permissions.
    static_cast<void>(::fchmod(descriptor, mode));
    return true;
}

}  // namespace quillon
