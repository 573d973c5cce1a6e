// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/OutdoorFiles.h"

#include "Quillon/Catalogue/LogWriters.h"
#include "Tallyrig/Log/ProgramName.h"
#include "Tallyrig/Outdoor/OutdoorExporter.h"
#include "Tallyrig/Outdoor/SOTACSVExporter.h"
#include "Tallyrig/Validation/ADIFSpec317.h"

#include <fmt/format.h>

namespace quillon {

using tallyrig::OutdoorProgram;

tallyrig::OutdoorExportFiles outdoorFiles(const tallyrig::ADIFDocument& document, OutdoorProgram program,
                                          tallyrig::SOTARole role) {
    if (program == OutdoorProgram::sota) {
        return tallyrig::SOTACSVExporter{role}.files(document);
    }
    // Whatever version the user wants in his own files: this is what the programs are known to take.
    return tallyrig::OutdoorExporter{program, std::string(tallyrig::programName),
                                     std::string(programVersion()), std::string(tallyrig::ADIFSpec::version)}
        .files(document);
}

std::string noOutdoorFilesMessage(OutdoorProgram program, tallyrig::SOTARole role) {
    const std::string_view example = referenceExample(program);
    return program == OutdoorProgram::sota
               ? fmt::format("Keine SOTA-QSOs für {} gefunden. Setze je QSO {} (z. B. {}).", rawValue(role),
                             summitField(role), example)
               : fmt::format(
                     "Keine {}-Referenzen im Log gefunden. Jedes QSO braucht eine gültige Referenz in "
                     "MY_SIG_INFO (z. B. {}).",
                     rawValue(program), example);
}

}  // namespace quillon
