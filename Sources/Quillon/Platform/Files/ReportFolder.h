// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Files/Files.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace tallyrig {
class CrossCheckReportWriter;
class LogWork;
}  // namespace tallyrig

namespace quillon {

/// The reports of a cross-check on disk.
struct ReportFolder {
    std::string path;
    std::size_t files = 0;
};

/// The name of the folder for the reports on a contest: one name, whatever stands in those of contests, and
/// short enough for a file system.
std::string reportFolderName(std::string_view contestName, std::string_view date);

/// Writes the reports to all stations, as text and as Markdown, and the ranking into a new folder in
/// `parent`: that of the name, or with the first free number from 2 on behind it. Each file is there whole or
/// not at all, and two stations whose calls give one file name have their own ones.
///
/// The result is absent if the work was cancelled, and then nothing is left. What was written before a
/// failure stays. A step of the work is a file. Returns when all is safe on the disk.
std::optional<std::variant<ReportFolder, FileError>> writeReports(
    const tallyrig::CrossCheckReportWriter& writer, const std::string& parent, const std::string& name,
    tallyrig::LogWork& work);

}  // namespace quillon
