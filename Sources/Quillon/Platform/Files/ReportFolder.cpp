// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Files/ReportFolder.h"

#include "Quillon/Platform/Files/SystemError.h"
#include "Quillon/Platform/Files/UniqueNames.h"
#include "Tallyrig/Adjudication/CrossCheckReportWriter.h"
#include "Tallyrig/CrossCheck/LogWork.h"
#include "Tallyrig/Text/Characters.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <mutex>
#include <system_error>
#include <utility>
#include <vector>

namespace quillon {

namespace {

/// The most bytes of a name before a number and an extension: file systems take 255.
constexpr std::size_t longestName = 230;

FileError creatingError(int error, const std::string& parent) {
    if (error == EACCES || error == EPERM) {
        return {"Im Ordner „" + parent + "“ darf kein Ordner angelegt werden."};
    }
    return {error == ENOENT ? "Der Ordner existiert nicht." : systemErrorSentence(error)};
}

/// Creates the folder under the first free name.
std::variant<std::string, FileError> createFolder(const std::string& parent, const std::string& name) {
    const std::string path = (parent.ends_with('/') ? parent : parent + '/') + name;
    std::string numbered = path;
    for (int number = 2; ::mkdir(numbered.c_str(), 0777) != 0; ++number) {
        if (errno != EEXIST) {
            return creatingError(errno, parent);
        }
        numbered = path + ' ' + std::to_string(number);
    }
    return numbered;
}

/// The names of the reports without extension, each another one.
std::vector<std::string> namesOf(const std::vector<tallyrig::CrossCheckEntry>& ranking) {
    std::vector<std::string> names;
    UniqueNames unique;
    for (const tallyrig::CrossCheckEntry& entry : ranking) {
        const std::string whole = tallyrig::CrossCheckReportWriter::fileName(entry.owner);
        names.push_back(unique.next(tallyrig::text::beginning(whole, longestName)));
    }
    return names;
}

void removeFiles(const std::string& folder, const std::vector<std::string>& files) {
    std::error_code ignored;
    for (const std::string& file : files) {
        std::filesystem::remove(folder + '/' + file, ignored);
    }
    std::filesystem::remove(folder, ignored);
}

}  // namespace

std::string reportFolderName(std::string_view contestName, std::string_view date) {
    const std::string end = ' ' + std::string(date);
    const std::string whole = "Cross-Check " + std::string(contestName);
    std::string name(tallyrig::text::beginning(whole, longestName - std::min(longestName, end.size())));
    name += end;
    const auto isForbidden = [](char c) { return c == '/' || (c >= 0 && c < ' '); };
    std::ranges::replace_if(name, isForbidden, '-');
    return name;
}

std::optional<std::variant<ReportFolder, FileError>> writeReports(
    const tallyrig::CrossCheckReportWriter& writer, const std::string& parent, const std::string& name,
    tallyrig::LogWork& work) {
    const auto created = createFolder(parent, name);
    if (const auto* const error = std::get_if<FileError>(&created)) {
        return *error;
    }
    const auto& folder = std::get<std::string>(created);
    const auto& ranking = writer.ranking();
    std::vector<std::string> files;
    for (const std::string& report : namesOf(ranking)) {
        files.push_back(report + ".txt");
        files.push_back(report + ".md");
    }
    files.push_back("Rangliste.csv");
    const auto textOf = [&](std::size_t file) {
        const std::size_t station = file / 2;
        if (station == ranking.size()) {
            return writer.rankingCSV();
        }
        return file % 2 == 0 ? writer.text(ranking[station].owner) : writer.markdown(ranking[station].owner);
    };

    work.start(files.size());
    std::mutex failing;
    std::optional<FileError> failure;
    work.forEach(files.size(), [&](std::size_t file) {
        {
            const std::lock_guard lock(failing);
            if (failure) {
                return;
            }
        }
        if (auto error = replaceFile(folder + '/' + files[file], textOf(file), Lasting::later)) {
            const std::lock_guard lock(failing);
            failure = std::move(error);
        }
        work.addDone(1);
    });
    if (!failure && !work.isCancelled()) {
        failure = makeLast(folder);
    }
    // To wait for the disk takes a while, in which the user may give up as well.
    if (work.isCancelled()) {
        removeFiles(folder, files);
        return std::nullopt;
    }
    if (failure) {
        return *failure;
    }
    return ReportFolder{folder, files.size()};
}

}  // namespace quillon
