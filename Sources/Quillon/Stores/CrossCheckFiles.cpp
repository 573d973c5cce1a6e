// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/CrossCheckFiles.h"

#include "Quillon/Platform/Files/LogFiles.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <utility>

namespace quillon {

namespace {

/// The logs that are meant, in their order. Folders that cannot be listed are named in `skipped`.
std::vector<std::string> logPaths(const std::vector<std::string>& paths, std::vector<std::string>& skipped) {
    std::vector<std::string> result;
    for (const std::string& path : paths) {
        if (!isFolder(path)) {
            result.push_back(path);
            continue;
        }
        auto listed = logFilesIn(path);
        if (auto* const logs = std::get_if<std::vector<std::string>>(&listed)) {
            std::ranges::move(*logs, std::back_inserter(result));
        } else {
            skipped.push_back(fileName(path));
        }
    }
    return result;
}

}  // namespace

std::string CrossCheckFile::name() const {
    return fileName(path);
}

std::string CrossCheckFile::effectiveOwner() const {
    return ownerOverride.empty() ? detectedOwner : tallyrig::text::upper(ownerOverride);
}

std::string locationKey(const std::string& path) {
    std::error_code error;
    return std::filesystem::absolute(path, error).lexically_normal().string();
}

std::unordered_set<std::string> locationKeys(const CrossCheckFiles& files) {
    std::unordered_set<std::string> keys;
    for (const CrossCheckFile& file : files) {
        keys.insert(locationKey(file.path));
    }
    return keys;
}

std::optional<AddedLogs> readLogs(const LogsToAdd& wanted, tallyrig::LogWork& work) {
    AddedLogs added;
    const auto present = locationKeys(*wanted.present);
    const std::string current = wanted.currentPath ? locationKey(*wanted.currentPath) : std::string();
    std::vector<std::string> paths;
    for (std::string& path : logPaths(wanted.paths, added.skipped)) {
        const std::string key = locationKey(path);
        if (present.contains(key)) {
            continue;
        }
        if (wanted.currentPath && key == current) {
            added.currentName = fileName(path);
        } else {
            paths.push_back(std::move(path));
        }
    }
    auto logs = readLogs(paths, work);
    if (!logs) {
        return std::nullopt;
    }
    for (std::size_t index = 0; index < paths.size(); ++index) {
        LoadedLog& log = (*logs)[index];
        if (log.document.records().empty()) {
            added.skipped.push_back(fileName(paths[index]));
        } else {
            added.files.push_back({tallyrig::UUID::fresh(),
                                   std::move(paths[index]),
                                   std::move(log.document),
                                   std::move(log.owner),
                                   {}});
        }
    }
    return added;
}

std::optional<WrittenReports> writeReports(const ReportsToWrite& wanted, tallyrig::LogWork& work) {
    const CrossCheckEvaluation& evaluation = *wanted.evaluation;
    const tallyrig::CrossCheckReportWriter writer(evaluation.report, evaluation.input.logs, evaluation.scores,
                                                  wanted.info);
    return writeReports(writer, wanted.parent, reportFolderName(evaluation.contestName, wanted.info.date),
                        work);
}

}  // namespace quillon
