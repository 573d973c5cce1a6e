// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Kept/KeptLogs.h"

#include "Quillon/Platform/Files/SystemError.h"
#include "Quillon/Platform/Kept/ImageBytes.h"
#include "Quillon/Platform/Kept/LogImage.h"
#include "Tallyrig/Formats/LogReader.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <random>
#include <string_view>
#include <system_error>
#include <utility>

namespace quillon {

namespace {

constexpr std::string_view extension = ".kept";

FileError folderError(int error) {
    if (error == ENOENT) {
        return {"Der Ordner für aufgehobene Logbücher kann nicht angelegt werden."};
    }
    const bool isForbidden = error == EACCES || error == EPERM;
    return {isForbidden ? "Im Ordner für aufgehobene Logbücher darf keine Datei angelegt werden."
                        : systemErrorSentence(error)};
}

FileError goneError() {
    return {"Es ist nicht mehr da, oder ein anderes Programm hat es geöffnet."};
}

/// The number in a name such as "12.kept", absent for the names of others.
std::optional<std::uint64_t> numberIn(std::string_view name) {
    std::uint64_t number = 0;
    const char* const end = name.data() + name.size();
    const auto [stop, error] = std::from_chars(name.data(), end, number);
    const bool isOurs = error == std::errc() && std::string_view(stop, end) == extension &&
                        name == std::to_string(number) + std::string(extension);
    return isOurs ? std::optional(number) : std::nullopt;
}

std::vector<std::string> namesIn(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::string name = entry->path().filename().string();
        if (numberIn(name)) {
            names.push_back(std::move(name));
        }
    }
    return names;
}

/// Makes the folder and those above it; the error number, or 0.
int makeFolder(const std::string& folder) {
    std::error_code error;
    for (std::size_t slash = folder.find('/', 1);; slash = folder.find('/', slash + 1)) {
        const std::string part = folder.substr(0, slash);
        if (::mkdir(part.c_str(), 0700) != 0 && errno != EEXIST &&
            !std::filesystem::is_directory(part, error)) {
            return errno;
        }
        if (slash == std::string::npos) {
            return 0;
        }
    }
}

bool isLater(const KeptEntry& left, const KeptEntry& right) {
    return left.note.order != right.note.order ? left.note.order > right.note.order : left.file > right.file;
}

/// A program that died while it wrote a log anew left it in two files, of which the later has all: takes the
/// others out of `newestFirst`, and tells them.
template <typename Tell>
void removeOutdated(std::vector<KeptEntry>& newestFirst, const Tell& tell) {
    std::vector<std::uint64_t> logs;
    std::erase_if(newestFirst, [&](const KeptEntry& entry) {
        const bool isOutdated = entry.note.log != 0 && std::ranges::find(logs, entry.note.log) != logs.end();
        if (isOutdated) {
            tell(entry);
        }
        logs.push_back(entry.note.log);
        return isOutdated;
    });
}

}  // namespace

KeptLogs::KeptLogs(std::string folderPath, Clock clock)
    : folder(std::move(folderPath)), now(std::move(clock)) {}

std::int64_t KeptLogs::systemTimeMs() {
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(sinceEpoch).count();
}

std::vector<KeptEntry> KeptLogs::entries() const {
    std::vector<KeptEntry> found = all();
    removeOutdated(found, [](const KeptEntry&) {});
    std::erase_if(found, [](const KeptEntry& entry) {
        const auto file = KeptFile::open(entry.file, KeptFile::Access::read);
        return !file || file->isInUse();
    });
    return found;
}

std::vector<KeptEntry> KeptLogs::all() const {
    std::vector<KeptEntry> found;
    for (const std::string& name : namesIn(folder)) {
        const std::string path = folder + '/' + name;
        const auto file = KeptFile::open(path, KeptFile::Access::read);
        if (file && file->note()) {
            found.push_back({*file->note(), path, file->size()});
        }
    }
    std::ranges::sort(found, isLater);
    return found;
}

std::variant<tallyrig::ADIFDocument, FileError> KeptLogs::read(const KeptEntry& entry) const {
    const auto file = KeptFile::open(entry.file, KeptFile::Access::read);
    if (!file || !file->note() || file->isInUse()) {
        return goneError();
    }
    if (entry.note.kind == KeptKind::formerFile) {
        if (const auto bytes = file->readBytes()) {
            return tallyrig::LogReader::readWithoutReport(*bytes).document;
        }
    } else if (auto document = file->readLog()) {
        return *std::move(document);
    }
    return FileError{"Die aufgehobene Datei ist beschädigt."};
}

std::optional<KeptLogs::Opened> KeptLogs::openToWrite(const KeptEntry& entry) const {
    auto file = KeptFile::open(entry.file, KeptFile::Access::write);
    if (!file || file->lock() == KeptFile::Lock::inUse) {
        return std::nullopt;
    }
    return Opened{*std::move(file), entry.file};
}

std::optional<FileError> KeptLogs::remove(const KeptEntry& entry) const {
    const auto opened = openToWrite(entry);
    if (opened ? ::unlink(entry.file.c_str()) != 0 && errno != ENOENT
               : ::access(entry.file.c_str(), F_OK) == 0) {
        return FileError{"Es konnte nicht gelöscht werden."};
    }
    return std::nullopt;
}

void KeptLogs::dismiss(const KeptEntry& entry) const {
    if (auto opened = openToWrite(entry); opened && opened->file.note()) {
        KeptNote note = *opened->file.note();
        note.isDismissed = true;
        static_cast<void>(opened->file.append(note, KeptFile::Content::none, {}));
    }
}

std::variant<KeptLogs::Opened, FileError> KeptLogs::create() const {
    if (const int error = makeFolder(folder); error != 0) {
        return folderError(error);
    }
    std::uint64_t number = 0;
    for (const std::string& name : namesIn(folder)) {
        number = std::max(number, *numberIn(name));
    }
    constexpr int mostTries = 1000;
    for (int tries = 0; tries < mostTries; ++tries) {
        const std::string path = folder + '/' + std::to_string(++number) + std::string(extension);
        auto created = KeptFile::create(path);
        if (auto* const file = std::get_if<KeptFile>(&created)) {
            return Opened{std::move(*file), path};
        }
        if (const int error = std::get<int>(created); error != EEXIST) {
            return folderError(error);
        }
    }
    return folderError(EEXIST);
}

void KeptLogs::stamp(KeptNote& note) const {
    note.timeMs = now();
    std::uint64_t latest = note.order;
    for (const KeptEntry& entry : all()) {
        latest = std::max(latest, entry.note.order);
    }
    note.order = std::max(static_cast<std::uint64_t>(std::max<std::int64_t>(note.timeMs, 0)), latest + 1);
}

void KeptLogs::tidy(const std::string& last) const {
    std::vector<KeptEntry> newestFirst = all();
    removeOutdated(newestFirst, [this](const KeptEntry& entry) { static_cast<void>(remove(entry)); });
    std::size_t count = 1;
    std::uint64_t bytes = 0;
    for (const KeptEntry& entry : newestFirst) {
        bytes += entry.file == last ? entry.bytes : 0;
    }
    for (const KeptEntry& entry : newestFirst) {
        if (entry.file != last) {
            ++count;
            bytes += entry.bytes;
            if (count > mostEntries || bytes > mostBytes) {
                static_cast<void>(remove(entry));
            }
        }
    }
    // What holds nothing is the rest of a program that died over its first words.
    for (const std::string& name : namesIn(folder)) {
        const std::string path = folder + '/' + name;
        const auto file = KeptFile::open(path, KeptFile::Access::write);
        if (file && !file->note() && file->lock() == KeptFile::Lock::taken) {
            ::unlink(path.c_str());
        }
    }
}

std::optional<FileError> KeptLogs::keepFormerFile(const std::string& path, std::uint64_t records) const {
    if (struct stat status = {};
        ::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_size == 0) {
        return std::nullopt;
    }
    const auto content = readFile(path);
    if (const auto* const error = std::get_if<FileError>(&content)) {
        return *error;
    }
    auto created = create();
    if (const auto* const error = std::get_if<FileError>(&created)) {
        return *error;
    }
    auto& [file, keptPath] = std::get<Opened>(created);
    KeptNote note{KeptKind::formerFile, KeptReason::overwritten, true, path, records};
    stamp(note);
    const int error = file.append(note, KeptFile::Content::bytes, [&content](ImageSink& sink) {
        sink.bytes(std::get<std::string>(content));
    });
    if (error != 0) {
        ::unlink(keptPath.c_str());
        return folderError(error);
    }
    tidy(keptPath);
    return std::nullopt;
}

KeptInHand::KeptInHand(const KeptLogs& keptLogs) : kept(keptLogs) {}

std::optional<FileError> KeptInHand::keep(const tallyrig::ADIFDocument& document, const std::string& path) {
    KeptNote note;
    note.path = path;
    note.records = document.records().size();
    if (!opened) {
        log = std::random_device()();
        log = (log << 32U | std::random_device()()) | 1U;
        note.log = log;
        kept.stamp(note);
        return keepWhole(document, note);
    }
    KeptFile& file = opened->file;
    if (document.isSameAs(last) && file.note()->path == path) {
        return std::nullopt;
    }
    note.log = log;
    note.order = file.note()->order + 1;
    note.timeMs = kept.now();
    constexpr std::uint64_t longestChain = 200;
    const auto steps = stepsBetween(last.records(), document.records());
    std::size_t own = 0;
    for (const ImageStep& step : steps) {
        own += step.ownCount;
    }
    if (own > document.records().size() / 4 + 100 || file.changes() >= longestChain ||
        file.changeBytes() > file.wholeBytes() + ImageSink::pieceSize) {
        return keepWhole(document, note);
    }
    const std::uint64_t before = file.size();
    const int error = file.append(note, KeptFile::Content::change,
                                  [&](ImageSink& sink) { writeChange(document, steps, sink); });
    if (error != 0) {
        return folderError(error);
    }
    written += file.size() - before;
    last = document;
    return std::nullopt;
}

std::optional<FileError> KeptInHand::keepWhole(const tallyrig::ADIFDocument& document, const KeptNote& note) {
    auto created = kept.create();
    if (const auto* const error = std::get_if<FileError>(&created)) {
        return *error;
    }
    auto& fresh = std::get<KeptLogs::Opened>(created);
    const int error = fresh.file.append(note, KeptFile::Content::wholeLog,
                                        [&](ImageSink& sink) { writeImage(document, sink); });
    if (error != 0) {
        ::unlink(fresh.path.c_str());
        return folderError(error);
    }
    written += fresh.file.size();
    if (opened) {
        ::unlink(opened->path.c_str());
    }
    opened = std::move(fresh);
    last = document;
    kept.tidy(opened->path);
    return std::nullopt;
}

std::optional<KeptEntry> KeptInHand::letGo(KeptReason reason) {
    if (!opened) {
        return std::nullopt;
    }
    KeptNote note = *opened->file.note();
    note.reason = reason;
    kept.stamp(note);
    // Without the note it is listed as that of a program that died, which is no loss.
    static_cast<void>(opened->file.append(note, KeptFile::Content::none, {}));
    const KeptEntry entry = {*opened->file.note(), opened->path, opened->file.size()};
    opened.reset();
    last = {};
    kept.tidy(entry.file);
    return entry;
}

void KeptInHand::discard() {
    if (opened) {
        ::unlink(opened->path.c_str());
        opened.reset();
        last = {};
    }
}

std::variant<tallyrig::ADIFDocument, FileError> KeptInHand::takeUp(const KeptEntry& entry) {
    if (entry.note.kind == KeptKind::formerFile) {
        return kept.read(entry);
    }
    auto taken = kept.openToWrite(entry);
    if (!taken || !taken->file.note()) {
        return goneError();
    }
    auto document = taken->file.readLog();
    if (!document) {
        return FileError{"Die aufgehobene Datei ist beschädigt."};
    }
    taken->file.cutDamage();
    KeptNote note = *taken->file.note();
    note.reason = KeptReason::inHand;
    note.isDismissed = false;
    // Without the note it would be listed with the old one, which is no loss.
    static_cast<void>(taken->file.append(note, KeptFile::Content::none, {}));
    last = *document;
    log = note.log;
    opened = std::move(taken);
    return *std::move(document);
}

}  // namespace quillon
