// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Updates/InstallPlatform.h"

#include <QRegularExpression>
#include <QTimer>

#include <filesystem>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace quillon::testing {

/// An operating system that notes what it is asked for. Of the disk it has nothing but the folder for
/// temporary files.
class StandInPlatform : public InstallPlatform {
  public:
    explicit StandInPlatform(QString temporaryFolder) : temporary(std::move(temporaryFolder)) {}

    std::variant<QString, InstallError> tempDirectory() override {
        if (!tempError.isEmpty()) {
            return InstallError{tempError};
        }
        return temporary;
    }
    std::variant<InstallLock, InstallError> lockInstallation(const QString& /*tempDirectory*/) override {
        if (!held.expired()) {
            return InstallError{QStringLiteral("locked")};
        }
        const auto lock = std::make_shared<int>(0);
        held = lock;
        return lock;
    }
    QString bundleLocation() override { return bundle; }
    qint64 processID() override { return 4711; }
    Outcome spawnDetached(const QString& executable, const QStringList& arguments) override {
        return note("spawn " + executable + ' ' + arguments.join(QLatin1Char(' ')));
    }
    void terminateApplication() override { static_cast<void>(note(QStringLiteral("terminate"))); }
    void exitApplication() override {
        static_cast<void>(note(QStringLiteral("exit")));
        hasExited = true;
    }
    std::chrono::milliseconds now() override { return time; }
    void callLater(std::chrono::milliseconds delay, QObject* context, std::function<void()> call) override {
        static_cast<void>(note(QStringLiteral("after %1").arg(delay.count())));
        QTimer::singleShot(0, context, std::move(call));
    }

    bool isWritable(const QString& directory) override { return !note("writable " + directory); }
    std::variant<QString, InstallError> attach(const QString& image, const InstallWork& work) override {
        while (isSlow && !work.isCancelled()) {
            std::this_thread::yield();
        }
        if (auto error = note("attach " + image.mid(temporary.size() + 1))) {
            return *error;
        }
        return QStringLiteral("/mnt");
    }
    void detach(const QString& mountPoint) override { static_cast<void>(note("detach " + mountPoint)); }
    QStringList list(const QString& folder) override {
        return folder == QLatin1String("/mnt") ? content : beside;
    }
    bool isApplication(const QString& app) override { return !note("look " + app); }
    QString program(const QString& app) override { return app + "/bin/p"; }
    Outcome move(const QString& from, const QString& to) override { return note("move " + from + ' ' + to); }
    Outcome ditto(const QString& from, const QString& to) override {
        return note("ditto " + from + ' ' + to);
    }
    Outcome remove(const QString& path) override {
        const bool isReal = path.startsWith(temporary);
        auto error = note("remove " + path.mid(isReal ? temporary.size() + 1 : 0));
        if (isReal && !error) {
            std::filesystem::remove_all(path.toStdString());
        }
        return error;
    }

    /// One line for each thing asked for, the fresh UUID as "ID"; forgotten then.
    std::string asked() {
        const std::lock_guard guard(mutex);
        return std::exchange(log, {});
    }

    QString bundle = QStringLiteral("/opt/Quillon.app");
    QStringList content = {QStringLiteral(".hidden"), QStringLiteral("LIESMICH"), QStringLiteral("New.app"),
                           QStringLiteral("Other.app")};
    QStringList beside;   ///< The names in the bundle's folder.
    bool isSlow = false;  ///< Attaching takes until nobody wants it any more.
    bool hasExited = false;
    QString tempError;  ///< Why there is no folder for temporary files, if there is none.
    /// What begins with one of these fails and says so.
    QStringList failing;
    std::chrono::milliseconds time{0};

  private:
    Outcome note(QString what) {
        static const QRegularExpression id(QStringLiteral("[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}"));
        what.replace(id, QStringLiteral("ID"));
        const std::lock_guard guard(mutex);
        log += what.toStdString() + '\n';
        for (const QString& start : std::as_const(failing)) {
            if (what.startsWith(start)) {
                return InstallError{what.section(QLatin1Char(' '), 0, 0) + QStringLiteral(" failed")};
            }
        }
        return std::nullopt;
    }

    const QString temporary;
    std::weak_ptr<int> held;
    std::mutex mutex;  ///< Some is asked for beside the main thread.
    std::string log;
};

}  // namespace quillon::testing
