// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Files/LogFiles.h"

#include "Quillon/Platform/Files/SystemError.h"
#include "Quillon/Platform/NaturalOrder.h"
#include "Tallyrig/CrossCheck/CrossCheckLog.h"
#include "Tallyrig/CrossCheck/LogWork.h"
#include "Tallyrig/Formats/LogReader.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <mutex>
#include <new>
#include <string_view>
#include <system_error>
#include <utility>

namespace quillon {

namespace {

constexpr std::array<std::string_view, 8> logExtensions = {"adi",      "adif", "adx", "cbr",
                                                           "cabrillo", "log",  "edi", "txt"};

bool isLogName(std::string_view name) {
    const std::size_t stop = name.rfind('.');
    if (name.starts_with('.') || stop == std::string_view::npos) {
        return false;
    }
    const std::string extension = tallyrig::text::lower(name.substr(stop + 1));
    return std::ranges::find(logExtensions, extension) != logExtensions.end();
}

FileError listingError(int error) {
    if (error == EACCES || error == EPERM) {
        return {"Keine Berechtigung, den Ordner zu lesen."};
    }
    return {error == ENOENT ? "Der Ordner existiert nicht." : systemErrorSentence(error)};
}

LoadedLog readLog(const std::string& path) {
    const auto content = readFile(path);
    if (const auto* const error = std::get_if<FileError>(&content)) {
        return {{}, {}, *error};
    }
    LoadedLog log;
    log.document = tallyrig::LogReader::readWithoutReport(std::get<std::string>(content)).document;
    log.owner = tallyrig::CrossCheckLog::detectOwner(log.document).value_or(std::string());
    return log;
}

/// What is far larger than a log is read alone, so that a folder of films does not fill the memory.
LoadedLog readLogAmongOthers(const std::string& path, std::mutex& largeFile) {
    constexpr std::uintmax_t large = 100'000'000;
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    std::unique_lock lock(largeFile, std::defer_lock);
    if (!error && size > large) {
        lock.lock();
    }
    try {
        return readLog(path);
    } catch (const std::bad_alloc&) {
        return {{}, {}, FileError{systemErrorSentence(ENOMEM)}};
    }
}

}  // namespace

std::string fileName(const std::string& path) {
    const std::string_view whole = std::string_view(path).substr(0, path.find_last_not_of('/') + 1);
    return tallyrig::text::repaired(whole.substr(whole.rfind('/') + 1));
}

bool isFolder(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

std::variant<std::vector<std::string>, FileError> logFilesIn(const std::string& folder) {
    std::error_code error;
    std::vector<std::string> names;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        std::error_code gone;
        if (isLogName(name) && std::filesystem::is_regular_file(entry->symlink_status(gone))) {
            names.push_back(name);
        }
    }
    if (error) {
        return listingError(error.value());
    }
    // Names that differ in case only are level, and the system lists them in no order.
    std::ranges::sort(names, [](const std::string& left, const std::string& right) {
        const int order = NaturalOrder::compare(left, right);
        return order != 0 ? order < 0 : left < right;
    });
    for (std::string& name : names) {
        name.insert(0, folder.ends_with('/') ? folder : folder + '/');
    }
    return names;
}

std::optional<std::vector<LoadedLog>> readLogs(std::span<const std::string> paths, tallyrig::LogWork& work) {
    work.start(paths.size());
    std::vector<LoadedLog> logs(paths.size());
    std::mutex largeFile;
    work.forEach(paths.size(), [&](std::size_t index) {
        logs[index] = readLogAmongOthers(paths[index], largeFile);
        work.addDone(1);
    });
    if (work.isCancelled()) {
        return std::nullopt;
    }
    return logs;
}

}  // namespace quillon
