// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Outdoor/OutdoorExportFile.h"
#include "Tallyrig/Outdoor/SOTARole.h"

namespace tallyrig {

/// Writes the file that the database of SOTA takes: lines of columns between commas, version V2.
struct SOTACSVExporter {
    SOTARole role;

    /// At most one file, and none where no QSO names a summit of the role. Of an activator's it holds one
    /// summit after the other in order of first appearance, and a QSO from two summits twice; a chaser's QSOs
    /// without a summit are left out. The QSOs of a summit, or all of a chaser, stand in order of time.
    OutdoorExportFiles files(const ADIFDocument& document) const;
};

}  // namespace tallyrig
