// SPDX-License-Identifier: GPL-3.0-or-later
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
#include <memory>
#include <optional>
#include <string>

namespace quillon {

/// A log that a store holds, and what its file has.
struct LogInHand {
    tallyrig::ADIFDocument document;
    tallyrig::ADIFDocument saved;
    std::optional<QString> path;

    /// False only if nothing is to be kept; otherwise it takes a look at the values.
    bool mayDiffer() const { return !document.isSameAs(saved); }
    std::string pathText() const { return path.value_or(QString()).toStdString(); }
};

/// Keeps one log in hand as long as it has changes that its file does not have, and lets it go into the
/// folder of kept logs when another takes its place. Holds copies of its own, which cost nothing: what is
/// compared and written is so beside the main thread. Where keeping fails, it is tried again.
class InHandKeeper : public QObject {
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

    /// `keptLogs` outlives the object; `now` is in hand at first.
    InHandKeeper(const KeptLogs& keptLogs, Pace writingPace, LogInHand now, QObject* parent);
    /// As `end`, if that was not called.
    ~InHandKeeper() override;

    /// To be called after each change of the log or of what its file has.
    void follow(LogInHand now);
    /// Another log makes room for `document`, which `taken` may hold already, as the one in hand. Its file is
    /// taken to have nothing of it.
    void takeUp(std::shared_ptr<KeptInHand> taken, const tallyrig::ADIFDocument& document);

    /// Keeps the changes that the log has now. Returns when they are on the disk.
    void keepNow();
    /// Lets the log in hand go, if it has changes. Returns when all is on the disk. Nothing is kept
    /// afterwards.
    void end(KeptReason reason);

  signals:
    /// A log with changes has made room for another, and is kept.
    void letGone(const quillon::KeptEntry& entry);
    /// A log has made room for another, kept or not.
    void changed();
    /// Why keeping did not work, in German. Sent each time.
    void failed(const QString& why);

  private:
    /// What of `last` is to be kept.
    std::optional<tallyrig::ADIFDocument> unsaved() const;
    bool isUpToDate() const;
    void letGo(KeptReason reason);
    void keepLater();
    void beginKeeping();
    void endKeeping(const std::optional<FileError>& error, std::uint64_t bytes, QDeadlineTimer longestRest);
    void tellFailure(const FileError& error);
    /// Writes what the log has, or that it has nothing.
    static std::optional<FileError> write(KeptInHand& hand, const LogInHand& log);
    /// Lets `work` run behind all that was begun before, and what it returns then on the main thread.
    void runBeside(const std::function<std::function<void()>()>& work);

    const KeptLogs& kept;
    const Pace pace;
    LogInHand last;
    /// The document that was last taken to be kept; absent if nothing is to be kept.
    std::optional<tallyrig::ADIFDocument> begun;
    std::shared_ptr<KeptInHand> hand;  ///< Belongs to whoever runs in the pool.
    QThreadPool pool;
    QTimer timer;
    QDeadlineTimer rest;  ///< Nothing is written before.
    bool isWriting = false;
    bool hasEnded = false;
};

}  // namespace quillon
