// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"

#include <cstddef>
#include <functional>
#include <string>
#include <utility>

namespace tallyrig {

/// One file for a program.
struct OutdoorExportFile {
    std::string reference;  ///< What it is for, such as a park; "chaser" where it is for no place.
    std::string filename;   ///< As proposed: made of what stands in the log, fit for a file system or not.
    std::string content;    ///< The whole file.
    std::size_t qsoCount = 0;
    ADIFDocument log = {};  ///< What was written, where the file is an ADIF log; else empty.
};

/// The files of one export in their order, each made anew when it is asked for: a log may give as many as it
/// has QSOs, and nobody needs all of them at once.
class OutdoorExportFiles {
  public:
    using Make = std::function<OutdoorExportFile(std::size_t index)>;

    OutdoorExportFiles() = default;
    OutdoorExportFiles(std::size_t fileCount, Make makeFile) : count(fileCount), make(std::move(makeFile)) {}

    std::size_t size() const { return count; }
    bool empty() const { return count == 0; }
    /// `index` is below `size()`.
    OutdoorExportFile operator[](std::size_t index) const { return make(index); }

  private:
    std::size_t count = 0;
    Make make;
};

}  // namespace tallyrig
