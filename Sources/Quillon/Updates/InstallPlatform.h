// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Updates/InstallError.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <variant>

namespace quillon {

/// What runs beside the main thread, as it is asked whether it is still wanted.
class InstallWork {
  public:
    void cancel() { cancelled = true; }
    bool isCancelled() const { return cancelled; }
    double progress() const { return 0; }  ///< Not told: the phase says enough.

  private:
    std::atomic<bool> cancelled = false;
};

/// Whatever keeps another program from installing as long as it lives.
using InstallLock = std::shared_ptr<const void>;

/// What an installation asks of the operating system. Paths are absolute. The real one is
/// `DesktopInstallPlatform`.
class InstallPlatform {
  public:
    using Outcome = std::optional<InstallError>;  ///< Absent on success.

    InstallPlatform() = default;
    InstallPlatform(const InstallPlatform&) = delete;
    InstallPlatform& operator=(const InstallPlatform&) = delete;
    virtual ~InstallPlatform() = default;

    // On the main thread.

    /// A folder that is the user's alone, and stays from one run of the program to the next.
    virtual std::variant<QString, InstallError> tempDirectory() = 0;
    /// One program of the user at a time installs. Asked for before all else, but for the folder.
    virtual std::variant<InstallLock, InstallError> lockInstallation(const QString& tempDirectory) = 0;
    /// The running program's bundle: the folder "X.app" that holds all that it needs. Where it does not run
    /// from one, the folder of the program.
    virtual QString bundleLocation() = 0;
    virtual qint64 processID() = 0;
    /// Starts a process that outlives this one.
    virtual Outcome spawnDetached(const QString& executable, const QStringList& arguments) = 0;
    /// Asks the application to quit in the regular way, in which it may refuse.
    virtual void terminateApplication() = 0;
    /// Ends it with the status 0. It still keeps what the user has not saved, but cannot refuse.
    virtual void exitApplication() = 0;
    /// Since some moment in the past; never goes back.
    virtual std::chrono::milliseconds now() = 0;
    /// Calls from the event loop, unless `context` has gone until then; `lifetime()` goes with the platform.
    virtual void callLater(std::chrono::milliseconds delay, QObject* context, std::function<void()> call) = 0;

    // On any thread.

    virtual bool isWritable(const QString& directory) = 0;
    /// Makes the content of the archive at `image` a folder of its own and gives its path. Nothing of it is
    /// there after a failure, or when `work` is no longer wanted.
    virtual std::variant<QString, InstallError> attach(const QString& image, const InstallWork& work) = 0;
    virtual void detach(const QString& mountPoint) = 0;
    /// The names of what is in the folder, ascending; none if it cannot be read.
    virtual QStringList list(const QString& folder) = 0;
    /// Whether the bundle holds a program that can be started.
    virtual bool isApplication(const QString& bundle) = 0;
    /// The program in the bundle.
    virtual QString program(const QString& bundle) = 0;
    virtual Outcome move(const QString& from, const QString& to) = 0;
    /// Copies a folder with its modes and links to a path where nothing is. Returns when all is on the disk.
    virtual Outcome ditto(const QString& from, const QString& to) = 0;
    /// Removes a file, or a folder with all that is in it; a link, but not what it leads to. Absent if
    /// nothing is there.
    virtual Outcome remove(const QString& path) = 0;

    QObject* lifetime() { return &alive; }

  private:
    QObject alive;
};

}  // namespace quillon
