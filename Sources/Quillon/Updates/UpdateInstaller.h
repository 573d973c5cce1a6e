// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/BackgroundWork.h"
#include "Quillon/Platform/HTTP/HTTP.h"
#include "Quillon/Updates/InstallError.h"
#include "Quillon/Updates/InstallPlatform.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace quillon {

class UpdateDownload;

/// Gets the archive of a release, checks it, puts the program in it in the place of the running one and
/// starts it. Whatever fails, the running program stays as it is.
///
/// Lives on the main thread. What takes long runs beside it; if the program ends meanwhile, what was not yet
/// put in its place is given up, and the destructor waits for the rest.
class UpdateInstaller : public QObject {
    Q_OBJECT

  public:
    /// How far an installation is.
    struct Phase {
        enum class Kind {
            idle,
            downloading,  ///< With `progress`.
            verifying,
            installing,
            relaunching,
            failed,  ///< With `message`.
        };
        Kind kind = Kind::idle;
        double progress = 0;  ///< From 0 to 1; negative if it is not known how much there is to load.
        QString message;      ///< German, for the user.

        friend bool operator==(const Phase&, const Phase&) = default;
    };

    /// Both outlive the object.
    UpdateInstaller(HTTPClient& httpClient, InstallPlatform& installPlatform, QObject* parent = nullptr);
    ~UpdateInstaller() override;

    const Phase& phase() const { return currentPhase; }

    /// Begins with the archive at `dmgURL`, of which the manifest gives `sha256` in hexadecimal digits. Does
    /// nothing while an installation is under way; after a failure it may be tried again.
    void downloadAndInstall(const QString& dmgURL, const std::optional<QString>& sha256);

  signals:
    void phaseChanged();

  private:
    using Outcome = std::optional<InstallError>;

    void verify(const QString& dmg, const std::optional<QString>& sha256);
    void performInstall(const QString& dmg);
    void relaunch(const QString& bundle);
    /// Runs `step` beside the main thread and then `next` on it, or fails with what it gives.
    void run(std::function<Outcome(const InstallWork&)> step, std::function<void()> next);
    void setPhase(Phase phase);
    void fail(const InstallError& error);

    HTTPClient& http;
    InstallPlatform& platform;
    Phase currentPhase;
    InstallLock lock;  ///< Held while an installation is under way.
    std::unique_ptr<UpdateDownload> download;
    BackgroundWork work;
};

}  // namespace quillon
