// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Files/ReportFolder.h"
#include "Quillon/Stores/CrossCheckEvaluation.h"
#include "Tallyrig/Adjudication/CrossCheckReportWriter.h"
#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/UUID.h"

#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <variant>
#include <vector>

namespace tallyrig {
class LogWork;
}

namespace quillon {

// What a cross-check reads and writes, as values that may be used on any thread. Paths are as the system has
// them, of whatever encoding; other texts are UTF-8.

/// A log that was read to take part in a cross-check.
struct CrossCheckFile {
    tallyrig::UUID id;
    std::string path;
    tallyrig::ADIFDocument document;
    std::string detectedOwner;  ///< Empty if the log names none.
    std::string ownerOverride;  ///< As typed; empty for the detected one.

    /// The last part of the path.
    std::string name() const;
    /// In upper case.
    std::string effectiveOwner() const;
};
using CrossCheckFiles = std::vector<CrossCheckFile>;

/// One text for a location, however the path to it is written. Symbolic links are not resolved.
std::string locationKey(const std::string& path);
/// Those of the files.
std::unordered_set<std::string> locationKeys(const CrossCheckFiles& files);

/// What to read: files, and folders of which the logs are meant that lie in them.
struct LogsToAdd {
    std::vector<std::string> paths;
    std::shared_ptr<const CrossCheckFiles> present;  ///< They are passed over.
    std::optional<std::string> currentPath;          ///< The open log that takes part; it is passed over too.
};

struct AddedLogs {
    CrossCheckFiles files;                   ///< With at least one QSO, in the order of the paths.
    std::vector<std::string> skipped;        ///< The names of the others, and of folders that are closed.
    std::optional<std::string> currentName;  ///< That of the open log if it was among them.
};

/// Reads the logs. Its steps are files, once the folders are listed. Absent if the work was cancelled.
std::optional<AddedLogs> readLogs(const LogsToAdd& wanted, tallyrig::LogWork& work);

/// The reports to be written.
struct ReportsToWrite {
    std::shared_ptr<const CrossCheckEvaluation> evaluation;
    tallyrig::CrossCheckExportInfo info;
    std::string parent;  ///< The folder in which theirs is to lie.
};
using WrittenReports = std::variant<ReportFolder, FileError>;

/// `writeReports` of these.
std::optional<WrittenReports> writeReports(const ReportsToWrite& wanted, tallyrig::LogWork& work);

}  // namespace quillon
