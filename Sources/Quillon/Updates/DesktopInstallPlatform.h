// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Updates/InstallPlatform.h"

namespace quillon {

class Unpacker;

/// Installs the self-contained archive: its folder "Quillon.app" with the program in "bin" is the bundle.
class DesktopInstallPlatform : public InstallPlatform {
  public:
    /// `programFolder` is that of the running program, without links. To be asked for when the program
    /// starts: later another version may have taken its place.
    explicit DesktopInstallPlatform(QString programFolder);

    std::variant<QString, InstallError> tempDirectory() override;
    std::variant<InstallLock, InstallError> lockInstallation(const QString& tempDirectory) override;
    QString bundleLocation() override;
    qint64 processID() override;
    Outcome spawnDetached(const QString& executable, const QStringList& arguments) override;
    void terminateApplication() override;
    void exitApplication() override;
    std::chrono::milliseconds now() override;
    void callLater(std::chrono::milliseconds delay, QObject* context, std::function<void()> call) override;

    bool isWritable(const QString& directory) override;
    std::variant<QString, InstallError> attach(const QString& image, const InstallWork& work) override;
    void detach(const QString& mountPoint) override;
    QStringList list(const QString& folder) override;
    bool isApplication(const QString& bundle) override;
    QString program(const QString& bundle) override;
    Outcome move(const QString& from, const QString& to) override;
    Outcome ditto(const QString& from, const QString& to) override;
    Outcome remove(const QString& path) override;

  private:
    const QString folder;
    Unpacker* unpacker = nullptr;  ///< From when the installation is locked.
};

}  // namespace quillon
