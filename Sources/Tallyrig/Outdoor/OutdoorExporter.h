// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/ADIFWriter.h"
#include "Tallyrig/Outdoor/OutdoorExportFile.h"
#include "Tallyrig/Outdoor/OutdoorProgram.h"

#include <chrono>
#include <string>

namespace tallyrig {

/// Writes the files for a program that takes ADIF: one for each reference.
struct OutdoorExporter {
    OutdoorProgram program;
    std::string programID;  ///< For the headers of the files, as what follows.
    std::string programVersion;
    std::string adifVersion;

    /// The files in the order in which the references appear in `MY_SIG_INFO`, compared as they are written;
    /// none for SOTA. A QSO with several references is in the file of each, as if it had this one alone; one
    /// without is in none. The files refer to a copy of the document. Cost: one pass, and for each file that
    /// is asked for its QSOs.
    OutdoorExportFiles files(const ADIFDocument& document, std::string createdTimestamp = timestamp(
                                                               std::chrono::system_clock::now())) const;
};

}  // namespace tallyrig
