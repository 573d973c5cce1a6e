// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/OutdoorFiles.h"

#include "Quillon/Catalogue/LogWriters.h"
#include "Quillon/Catalogue/LossWords.h"
#include "Tallyrig/Formats/WritingReport.h"
#include "Tallyrig/Log/ProgramName.h"
#include "Tallyrig/Outdoor/OutdoorExporter.h"
#include "Tallyrig/Outdoor/SOTACSVExporter.h"
#include "Tallyrig/Text/VisibleText.h"
#include "Tallyrig/Validation/ADIFSpec317.h"

#include <fmt/format.h>

namespace quillon {

using tallyrig::OutdoorProgram;

namespace {

constexpr std::size_t mostFiles = 10;

}  // namespace

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

void OutdoorLosses::add(const tallyrig::OutdoorExportFile& file) {
    constexpr std::size_t mostLosses = 5;
    if (file.log.records().empty()) {
        return;
    }
    const tallyrig::WritingReport report =
        readBack(adifWriter(tallyrig::ADIFSpec::version, true), file.log, file.content);
    if (report.isEmpty() || ++fileCount > mostFiles) {
        return;
    }
    told.push_back(tallyrig::text::visibleText(file.filename) + ": " + LossWords::summary(report));
    for (const std::string& line : LossWords::lines(report, file.log, mostLosses)) {
        told.push_back("  " + line);
    }
}

std::vector<std::string> OutdoorLosses::lines() const {
    std::vector<std::string> lines = told;
    if (fileCount > mostFiles) {
        const std::size_t more = fileCount - mostFiles;
        lines.push_back(more == 1 ? "Ebenso in einer weiteren Datei."
                                  : fmt::format("Ebenso in {} weiteren Dateien.", more));
    }
    return lines;
}

}  // namespace quillon
