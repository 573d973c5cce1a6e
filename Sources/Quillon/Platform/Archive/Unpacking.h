// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <variant>

namespace quillon {

/// Why an archive was not unpacked.
struct UnpackError {
    enum class Kind {
        notAnArchive,  ///< No tar, plain or compressed by xz, with anything in it.
        failed,
    };
    Kind kind = Kind::failed;
    int code = 1;         ///< The error number of the system; 1 where the archive is to blame.
    std::string message;  ///< One German sentence.
};

/// What an archive may make of itself.
struct UnpackLimits {
    /// In all files together, and in what comes with anything else and is passed over.
    std::uint64_t mostBytes = 2'000'000'000;
    /// Files, links and folders, those not named included; one that is named twice counts twice.
    std::size_t mostEntries = 100'000;
};

/// Unpacks the .tar.xz at `archive` (UTF-8, as all paths) into a new folder in `parent` that is open to its
/// owner alone, and gives the path of that. Everything or nothing: after a failure, and when `isWanted` says
/// no, the folder is gone.
///
/// The archive is not trusted. It is refused whole if anything in it is named from the root on or by "..",
/// comes twice and is no folder, is neither file nor folder nor link, is a link that leads through a name
/// and back ("a/..") or out of the folder, be it the one in the archive that the link is in, which may be
/// taken to another place, or would run as somebody else. Nothing is written through a link.
/// Permissions are kept, but nobody but the owner may write, and the owner may always read and enter.
std::variant<std::string, UnpackError> unpack(const std::string& archive, const std::string& parent,
                                              const std::function<bool()>& isWanted,
                                              const UnpackLimits& limits = {});

}  // namespace quillon
