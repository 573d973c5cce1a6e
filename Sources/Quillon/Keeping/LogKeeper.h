// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Keeping/InHandKeeper.h"
#include "Quillon/Platform/Files/FileState.h"
#include "Quillon/Platform/Kept/KeptLogs.h"
#include "Tallyrig/Log/ADIFDocument.h"

#include <QObject>
#include <QString>

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quillon {

class CompareStore;
class LogStore;

/// Keeps the open log, and those that are compared beside it, as long as they have changes that their files
/// do not have, and lets them go into the folder of kept logs when others take their place or the program
/// ends. Also keeps what stood in a file that is saved over.
///
/// Follows the stores by their signals. Where keeping fails, the logs in hand are as they are without it.
class LogKeeper : public QObject {
    Q_OBJECT

  public:
    using Pace = InHandKeeper::Pace;

    /// The stores outlive the keeper.
    LogKeeper(LogStore& logStore, CompareStore& compareStore, const std::string& folder, Pace pace,
              QObject* parent = nullptr);
    /// As `end`, if that was not called.
    ~LogKeeper() override;

    /// Everything kept, the latest first, but what programs have in hand.
    std::vector<KeptEntry> entries() const { return kept.entries(); }
    /// Logs that were in hand when a program ended, and of which the user was not told yet.
    std::vector<KeptEntry> leftBehind() const;
    /// What is kept, for a look at it; a sentence if it cannot be read.
    std::variant<tallyrig::ADIFDocument, FileError> read(const KeptEntry& entry) const {
        return kept.read(entry);
    }
    /// Makes a kept thing the open log, with changes that its file does not have; the one that is open is
    /// let go. Where it cannot be read nothing happens but that a sentence comes back which says why.
    std::optional<QString> bringBack(const KeptEntry& entry);
    /// Gone for good; a sentence if that fails.
    std::optional<QString> remove(const KeptEntry& entry);
    /// The user was told of these.
    void dismiss(const std::vector<KeptEntry>& told);

    /// Keeps the changes that the logs have now. Returns when they are on the disk.
    void keepNow();
    /// Lets the logs in hand go that have changes. Returns when all is on the disk. Nothing is kept
    /// afterwards.
    void end(KeptReason reason);

  signals:
    /// A log with changes has made room for another, and is kept.
    void letGone(const quillon::KeptEntry& entry);
    /// Something was kept or let go. What others do to the folder is not told.
    void entriesChanged();
    /// Keeping does not work; one German sentence that says why. Sent once.
    void failed(const QString& sentence);

  private:
    LogInHand current() const;
    LogInHand leftSide();
    LogInHand rightSide();
    static LogInHand side(const tallyrig::ADIFDocument& document, bool isDirty,
                          const std::optional<QString>& path, tallyrig::ADIFDocument& saved);
    std::size_t knownRecordsIn(const QString& path) const;
    /// Where what is written to a file comes from.
    enum class Origin { log, side, exportedText };
    bool mayGo(const QString& path, const FileState& now, Origin origin) const;
    void keepFormerFile(const QString& path, Origin origin);
    void noteWritten(const QString& path, Origin origin);
    void tellFailure(const QString& sentence);

    LogStore& store;
    CompareStore& compare;
    const KeptLogs kept;
    const tallyrig::ADIFDocument noLog;
    tallyrig::ADIFDocument savedLeft = noLog;
    tallyrig::ADIFDocument savedRight = noLog;
    InHandKeeper log;
    InHandKeeper left;
    InHandKeeper right;
    /// A file that this program wrote, or keeps already because it is about to.
    struct WrittenFile {
        FileState state;
        Origin origin = Origin::log;
    };
    std::map<std::string, WrittenFile> writtenFiles;  ///< By path.
    bool hasFailed = false;
};

}  // namespace quillon
