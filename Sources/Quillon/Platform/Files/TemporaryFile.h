// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Files/Descriptor.h"

#include <sys/types.h>

#include <string>

namespace quillon {

/// A file that is written to take the place of another. It has no name until then, where the file system can
/// do that, so that a process that dies leaves nothing behind.
///
/// For the moment in which it needs a name, and where it cannot do without one, it is called ".quillon-N.tmp"
/// and locked: a file of such a name that nobody has locked was left behind, and its name is taken from it.
class TemporaryFile {
  public:
    /// Creates it in `folder`, which ends in a slash or is empty for the current one, with the rights `mode`
    /// less those that the user's mask or the folder takes away. Not open, with `errno` set, if that fails.
    TemporaryFile(const std::string& folder, mode_t mode);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    /// Removes the file unless it was moved.
    ~TemporaryFile();

    bool isOpen() const { return file.isOpen(); }
    int number() const { return file.number(); }
    /// Makes it the file at `target` in the same folder, in the place of what is there. False with `errno`
    /// set.
    bool moveTo(const std::string& target);

  private:
    std::string folder;
    std::string name;  ///< Its path; empty while it has none.
    Descriptor file;
};

}  // namespace quillon
