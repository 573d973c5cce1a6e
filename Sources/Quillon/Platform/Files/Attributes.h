// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/stat.h>

#include <string>

namespace quillon {

/// Gives the open file `descriptor` the owner, group, extended attributes, access control list and
/// permissions of the file at `path`, of which `old` is the status. What the system does not let a process
/// give is left out, and then the permissions are cut so far that nobody gains any. False if the owner could
/// not be kept.
bool carryOverAttributes(const std::string& path, const struct stat& old, int descriptor);

}  // namespace quillon
