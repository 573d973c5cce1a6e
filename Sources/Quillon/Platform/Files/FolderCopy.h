// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quillon {

/// Copies the folder `from` to `to`, where nothing may be, with the permissions of all files and folders and
/// with its symbolic links as they are; 0 or the error number of the system. What was copied before a failure
/// stays. What is neither file nor folder nor link is an error. Returns when all is on the disk.
int copyFolder(const std::string& from, const std::string& to);

}  // namespace quillon
