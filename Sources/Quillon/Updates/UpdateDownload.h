// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Files/Descriptor.h"
#include "Quillon/Platform/HTTP/HTTP.h"
#include "Quillon/Updates/InstallPlatform.h"

#include <QObject>
#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <variant>

namespace quillon {

/// One file on its way from a server to the disk. Where the network fails it goes on from there, at most
/// twice. Ends with the object; what came until then stays on the disk.
class UpdateDownload : public QObject {
  public:
    /// The path of the file.
    using Result = std::variant<QString, InstallError>;

    struct Callbacks {
        /// From 0 to 1, or negative if it is not known how much there is.
        std::function<void(double progress)> progressed;
        /// Called once, maybe from `start`; may destroy the object.
        std::function<void(const Result& result)> ended;
    };

    /// What a server sends beyond this is no release, and would only fill the disk.
    static constexpr qint64 defaultMostBytes = 2'000'000'000;

    /// Client and platform outlive the object. Nothing happens before `start`.
    UpdateDownload(HTTPClient& httpClient, InstallPlatform& installPlatform, QUrl archiveAddress,
                   Callbacks callbacks, qint64 mostBytesOfFile = defaultMostBytes);

    /// Loads into a new folder at `folder`; what is there goes, a link, but not what it leads to.
    void start(const QString& folder);

    /// The name of the file that is loaded from `address`: its last part, or one of ours if that is none for
    /// a file.
    static QString fileName(const QUrl& address);

  private:
    std::optional<InstallError> createFile(const QString& folder);
    void attempt();
    void takeResponse(const HTTPResponse& response);
    /// Ends the download if the file may not become larger by so many bytes. Whether it did.
    bool refuseBeyond(qint64 more);
    void takeBlock(const QByteArray& block);
    void takeFailure(const HTTPFailure& failure);
    void takeEnd();
    void end(const Result& result);

    HTTPClient& http;
    InstallPlatform& platform;
    const QUrl address;
    Callbacks told;
    const qint64 mostBytes;
    QString path;
    Descriptor file;
    std::unique_ptr<HTTPTransfer> transfer;
    qint64 received = 0;
    qint64 total = -1;  ///< -1 if the server does not say.
    int attempts = 0;
    std::optional<std::chrono::milliseconds> lastProgress;
};

}  // namespace quillon
