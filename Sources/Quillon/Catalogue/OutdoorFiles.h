// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Outdoor/OutdoorExportFile.h"
#include "Tallyrig/Outdoor/OutdoorProgram.h"
#include "Tallyrig/Outdoor/SOTARole.h"

#include <cstddef>
#include <string>
#include <vector>

namespace quillon {

/// The files of the log for an outdoor program, as this program writes them. `role` counts for SOTA only,
/// here and below.
tallyrig::OutdoorExportFiles outdoorFiles(const tallyrig::ADIFDocument& document,
                                          tallyrig::OutdoorProgram program, tallyrig::SOTARole role);

/// What to tell the user in German where a log gives no file: what its QSOs would need.
std::string noOutdoorFilesMessage(tallyrig::OutdoorProgram program, tallyrig::SOTARole role);

/// Gathers what the files of an export would lose when they are read again, as `LossWords` tells it.
class OutdoorLosses {
  public:
    /// Reads the file back, if it is an ADIF log. Cost: one reading where nothing is lost.
    void add(const tallyrig::OutdoorExportFile& file);

    /// Whether every file holds all of its QSOs.
    bool empty() const { return fileCount == 0; }
    /// A line with the name and the numbers of each file that does not, and below it, set in, what is lost
    /// in it; the first files and losses only, then how many more there are.
    std::vector<std::string> lines() const;

  private:
    std::size_t fileCount = 0;  ///< Of all that lose something.
    std::vector<std::string> told;
};

}  // namespace quillon
