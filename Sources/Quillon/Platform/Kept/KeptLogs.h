// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Files/Files.h"
#include "Quillon/Platform/Kept/KeptFile.h"
#include "Quillon/Platform/Kept/KeptNote.h"
#include "Tallyrig/Log/ADIFDocument.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quillon {

/// A kept thing as a list shows it.
struct KeptEntry {
    KeptNote note;
    std::string file;  ///< Its path.
    std::uint64_t bytes = 0;
};

/// The folder in which logs outlive the program that had them in hand. Several programs share it, and what
/// else may lie there is left alone.
///
/// The last 30 things stay, 500 MB together at most; the oldest go first. What was kept last stays even if it
/// alone is larger, and what a running program works on stays as long as that runs. Nothing here is shared
/// between threads but the disk: any thread may have an object of its own.
class KeptLogs {
  public:
    static constexpr std::size_t mostEntries = 30;
    static constexpr std::uint64_t mostBytes = 500'000'000;

    /// Milliseconds since 1970 in UTC.
    using Clock = std::function<std::int64_t()>;

    /// The folder (UTF-8) is made when something is to be kept, for its owner alone.
    explicit KeptLogs(std::string folderPath, Clock clock = systemTimeMs);

    /// Everything but what running programs have in hand, the latest first. Empty if the folder cannot be
    /// read. Cost: a look at each file, none of which is read in full.
    std::vector<KeptEntry> entries() const;

    /// What the entry holds: the log, or what a former file reads as. A sentence if it is gone or damaged.
    std::variant<tallyrig::ADIFDocument, FileError> read(const KeptEntry& entry) const;
    /// Absent on success, and if it is gone already. A running program's is not removed.
    std::optional<FileError> remove(const KeptEntry& entry) const;
    /// Marks it as one that the user was told of. Where that fails, the user is told once more.
    void dismiss(const KeptEntry& entry) const;

    /// Keeps what the file at `path` holds, which has `records` records as far as the caller knows. Nothing
    /// to do for what is not there, is empty or is no file.
    std::optional<FileError> keepFormerFile(const std::string& path, std::uint64_t records) const;

  private:
    friend class KeptInHand;

    struct Opened {
        KeptFile file;
        std::string path;
    };

    static std::int64_t systemTimeMs();
    /// With those that programs have in hand, and what was left behind.
    std::vector<KeptEntry> all() const;
    std::variant<Opened, FileError> create() const;
    std::optional<Opened> openToWrite(const KeptEntry& entry) const;
    /// Lets `note` be of this moment, and the latest.
    void stamp(KeptNote& note) const;
    /// Removes what is too much, but not the file at `last`.
    void tidy(const std::string& last) const;

    std::string folder;
    Clock now;
};

/// The log that this program has in hand, as it is kept while the user works on it. At most one file, which
/// no other program touches as long as this one lives.
class KeptInHand {
  public:
    /// `keptLogs` outlives the object.
    explicit KeptInHand(const KeptLogs& keptLogs);

    /// Makes `document` what is kept, of the log whose file is `path`. Writes what differs from the last
    /// time, or everything where that is more or would make a long chain. After a failure what was kept
    /// before stays kept.
    std::optional<FileError> keep(const tallyrig::ADIFDocument& document, const std::string& path);
    /// Lets what is kept stay for later; what comes next is another log. Nothing happens if nothing is kept.
    /// Gives the entry that it is from now on.
    std::optional<KeptEntry> letGo(KeptReason reason);
    /// Nothing is to be kept any more: the log has its file.
    void discard();
    /// Takes a log that was kept as the one in hand.
    std::variant<tallyrig::ADIFDocument, FileError> takeUp(const KeptEntry& entry);

    bool isKept() const { return opened.has_value(); }
    /// Of all that was written so far.
    std::uint64_t bytesWritten() const { return written; }

  private:
    std::optional<FileError> keepWhole(const tallyrig::ADIFDocument& document, const KeptNote& note);

    const KeptLogs& kept;
    std::optional<KeptLogs::Opened> opened;
    tallyrig::ADIFDocument last;  ///< What the file holds.
    std::uint64_t log = 0;
    std::uint64_t written = 0;
};

}  // namespace quillon
