// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Outdoor/OutdoorExportFile.h"
#include "Tallyrig/Outdoor/OutdoorProgram.h"
#include "Tallyrig/Outdoor/SOTARole.h"

#include <string>

namespace quillon {

/// The files of the log for an outdoor program, as this program writes them. `role` counts for SOTA only,
/// here and below.
tallyrig::OutdoorExportFiles outdoorFiles(const tallyrig::ADIFDocument& document,
                                          tallyrig::OutdoorProgram program, tallyrig::SOTARole role);

/// What to tell the user in German where a log gives no file: what its QSOs would need.
std::string noOutdoorFilesMessage(tallyrig::OutdoorProgram program, tallyrig::SOTARole role);

}  // namespace quillon
