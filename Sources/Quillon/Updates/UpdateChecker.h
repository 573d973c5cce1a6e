// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/HTTP/HTTPAnswer.h"
#include "Quillon/Updates/VersionInfo.h"

#include <QDateTime>
#include <QObject>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <variant>

namespace quillon {

class Settings;

namespace setting {
/// A moment: of the last check that succeeded.
inline const QString lastUpdateCheck = QStringLiteral("update.lastCheck");
/// The version that the user does not want.
inline const QString skippedUpdate = QStringLiteral("update.skipVersion");
}  // namespace setting

struct UpdateCheckError {
    enum class Kind {
        network,          ///< There was no answer, or none that may be taken: too long, or sent elsewhere.
        decoding,         ///< The answer is no manifest.
        invalidResponse,  ///< The server has none, or there is no such address.
    };
    Kind kind = Kind::network;
    QString text;  ///< In German; empty for `invalidResponse`.
};

/// Fetches the manifest of updates and decides whether there is something to offer. Lives on the main thread,
/// which never waits for it.
class UpdateChecker {
  public:
    enum class When {
        ifDue,  ///< 24 hours after the last check that succeeded.
        always,
    };
    /// A release to be offered, none, or why nobody knows.
    using Result = std::variant<std::optional<VersionInfo>, UpdateCheckError>;
    using Clock = std::function<QDateTime()>;

    /// From the beginning of a check to the end of the answer.
    static constexpr std::chrono::milliseconds longestWait = std::chrono::seconds(10);

    /// Settings and client outlive the object.
    UpdateChecker(const QString& manifestAddress, Settings& userSettings, HTTPClient& httpClient,
                  std::chrono::milliseconds longest = longestWait,
                  Clock clock = &QDateTime::currentDateTimeUtc);

    /// Begins a check; one that runs is given up, and never tells. `tell` is called once, from the event
    /// loop, and not after the object has gone. The time of the check is kept in the settings if it succeeds.
    void check(When when, std::function<void(const Result&)> tell);
    bool isRunning() const { return whenDone != nullptr; }

    const QString manifestURL;

  private:
    bool isDue() const;
    void fetch();
    Result resultOf(const HTTPGathering::Result& answer);
    void finish(const Result& result);
    /// The same, from the event loop.
    void finishAfter(std::chrono::milliseconds wait, const Result& result);

    Settings& settings;
    HTTPClient& http;
    const std::chrono::milliseconds timeout;
    const Clock now;
    std::function<void(const Result&)> whenDone;  ///< Empty while no check runs.
    std::unique_ptr<HTTPGathering> gathering;
    std::unique_ptr<QObject> waiting;  ///< What is to be told later ends with it.
};

}  // namespace quillon
