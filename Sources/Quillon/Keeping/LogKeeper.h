#pragma once

#include "Quillon/Platform/Kept/KeptLogs.h"
#include "Tallyrig/Log/ADIFDocument.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QString>
#include <QThreadPool>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

class LogStore;

/// Keeps the log in hand as long as it has changes that its file does not have, and lets it go into the
/// folder of kept logs when another takes its place or the program ends. Also keeps what stood in a file that
/// is saved over.
///
/// Follows the store by its signals and holds copies of its own, which cost nothing: what is written is
/// written beside the main thread. Where keeping fails, the log in hand is as it is without it.
class LogKeeper : public QObject {
    Q_OBJECT

  public:
    /// How soon changes are kept, and how much may be written: an image of `bytes` bytes is followed by a
    /// pause of `bytes / bytesPerMs`, within these bounds.
    struct Pace {
        int shortestMs = 5'000;
        int longestMs =
            25'000;  ///< With the time that writing takes, what is kept is 30 seconds old at most.
        std::uint64_t bytesPerMs = 4'000;
    };

    /// `logStore` outlives the keeper.
    LogKeeper(LogStore& logStore, const std::string& folder, Pace pace, QObject* parent = nullptr);
    /// As `end`, if that was not called.
    ~LogKeeper() override;

    /// Everything kept, the latest first, but what programs have in hand.
    std::vector<KeptEntry> entries() const { return kept.entries(); }
    /// Logs that were in hand when a program ended, and of which the user was not told yet.
    std::vector<KeptEntry> leftBehind() const;
    /// Makes a kept thing the log in hand, with changes that its file does not have; the one in hand is let
    /// go. Where it cannot be read nothing happens but that a sentence comes back which says why.
    std::optional<QString> bringBack(const KeptEntry& entry);
    /// Gone for good; a sentence if that fails.
    std::optional<QString> remove(const KeptEntry& entry);
    /// The user was told of these.
    void dismiss(const std::vector<KeptEntry>& told);

    /// Keeps the changes that the log has now. Returns when they are on the disk.
    void keepNow();
    /// Lets the log in hand go, if it has changes. Returns when all is on the disk. Nothing is kept
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
    /// The log and what its file has.
    struct Log {
        tallyrig::ADIFDocument document;
        tallyrig::ADIFDocument saved;
        std::optional<QString> path;

        bool mayDiffer() const { return !document.isSameAs(saved); }
        std::string pathText() const { return path.value_or(QString()).toStdString(); }
    };
    /// A file as it was at some moment: another one, or one that was written to, differs.
    struct FileState {
        std::uint64_t device = 0;
        std::uint64_t number = 0;
        std::uint64_t bytes = 0;
        std::int64_t changedNs = 0;

        static FileState of(const std::string& path);
        friend bool operator==(const FileState&, const FileState&) = default;
    };

    Log current() const;
    /// What of `last` is to be kept.
    std::optional<tallyrig::ADIFDocument> unsaved() const;
    bool isUpToDate() const;
    void follow();
    void letGo(KeptReason reason);
    void keepLater();
    void beginKeeping();
    void endKeeping(const std::optional<FileError>& error, std::uint64_t bytes, QDeadlineTimer longestRest);
    void keepFormerFile(const QString& path);
    void noteSaved(const QString& path);
    void tellFailure(const char* what, const std::string& why);
    /// Writes what the log has, or that it has nothing.
    static std::optional<FileError> write(KeptInHand& hand, const Log& log);
    /// Lets `work` run behind all that was begun before, and what it returns then on the main thread.
    void runBeside(const std::function<std::function<void()>()>& work);

    LogStore& store;
    const KeptLogs kept;
    const Pace pace;
    Log last;
    /// The document that was last taken to be kept; absent if nothing is to be kept.
    std::optional<tallyrig::ADIFDocument> begun;
    /// Belongs to whoever runs in the pool.
    std::shared_ptr<KeptInHand> hand;
    std::map<std::string, FileState> savedFiles;  ///< As they were left, by path.
    QThreadPool pool;
    QTimer timer;
    QDeadlineTimer rest;  ///< Nothing is written before.
    bool isWriting = false;
    bool hasFailed = false;
    bool hasEnded = false;
};

}  // namespace quillon
