// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/KnownFile.h"

#include "Quillon/Platform/Files/Files.h"
#include "Tallyrig/Formats/LogReader.h"

#include <variant>

namespace quillon {

bool holdsRecords(const QString& path, const tallyrig::ADIFRecordList& records) {
    constexpr std::uint64_t mostBytes = 20'000'000;
    if (FileState::of(path.toStdString()).bytes > mostBytes) {
        return false;
    }
    const auto content = readFile(path.toStdString());
    const auto* const bytes = std::get_if<std::string>(&content);
    // The header is written anew each time.
    return bytes != nullptr && tallyrig::LogReader::readWithoutReport(*bytes).document.records() == records;
}

KnownFile::KnownFile(const QString& path) : name(path.toStdString()), state(FileState::of(name)) {}

KnownFile KnownFile::asOf(std::int64_t timeMs, const QString& path) {
    constexpr std::int64_t millisecondNs = 1'000'000;
    KnownFile file(path);
    if (file.state.changedNs / millisecondNs > timeMs) {
        file.state = {};
    }
    return file;
}

bool KnownFile::isStill(const QString& path, const tallyrig::ADIFDocument& saved) {
    if (path.toStdString() != name || isUntouched()) {
        return true;
    }
    const FileState now = FileState::of(name);
    if (!holdsRecords(path, saved.records())) {
        return false;
    }
    state = now;
    return true;
}

bool KnownFile::isUntouched() const {
    const FileState now = FileState::of(name);
    return now == state || now == FileState();
}

}  // namespace quillon
