// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Updates/UpdateChecker.h"

#include "Quillon/Platform/AppInfo.h"
#include "Quillon/Platform/Settings.h"

#include <QTimer>
#include <QUrl>

#include <utility>

namespace quillon {

namespace {

constexpr std::chrono::hours betweenChecks(24);
/// Of a manifest, which has some hundred.
constexpr qint64 mostBytes = 1'000'000;

UpdateChecker::Result error(UpdateCheckError::Kind kind, const QString& text = {}) {
    return UpdateCheckError{kind, text};
}

}  // namespace

UpdateChecker::UpdateChecker(const QString& manifestAddress, Settings& userSettings, HTTPClient& httpClient,
                             std::chrono::milliseconds longest, Clock clock)
    : manifestURL(manifestAddress),
      settings(userSettings),
      http(httpClient),
      timeout(longest),
      now(std::move(clock)) {}

void UpdateChecker::check(When when, std::function<void(const Result&)> tell) {
    gathering.reset();
    waiting = std::make_unique<QObject>();
    whenDone = std::move(tell);
    if (when == When::ifDue && !isDue()) {
        finishAfter(std::chrono::milliseconds::zero(), std::optional<VersionInfo>());
    } else {
        fetch();
    }
}

bool UpdateChecker::isDue() const {
    const auto last = settings.moment(setting::lastUpdateCheck);
    return !last || now() >= last->addDuration(betweenChecks);
}

void UpdateChecker::fetch() {
    using Kind = UpdateCheckError::Kind;
    HTTPRequest request;
    request.address = QUrl(manifestURL, QUrl::StrictMode);
    request.headers = {{"User-Agent", (appName() + QLatin1Char('/') + appVersion()).toUtf8()}};
    request.timeout = timeout;
    if (!isOnTheWeb(request.address)) {
        finishAfter(std::chrono::milliseconds::zero(), error(Kind::invalidResponse));
        return;
    }
    gathering = std::make_unique<HTTPGathering>(
        http, request, mostBytes, [this](const HTTPGathering::Result& answer) { finish(resultOf(answer)); });
    // A server that sends a byte now and then would be waited for all day.
    finishAfter(timeout,
                error(Kind::network, QStringLiteral("Der Server hat nicht rechtzeitig geantwortet.")));
}

UpdateChecker::Result UpdateChecker::resultOf(const HTTPGathering::Result& answer) {
    using Kind = UpdateCheckError::Kind;
    if (const auto* const failure = std::get_if<HTTPFailure>(&answer)) {
        return error(Kind::network, failure->description);
    }
    const auto& [response, body] = std::get<HTTPAnswer>(answer);
    if (!response.isSuccess()) {
        return error(Kind::invalidResponse);
    }
    const auto manifest = VersionInfo::decode(body);
    if (const auto* const why = std::get_if<QString>(&manifest)) {
        return error(Kind::decoding, *why);
    }
    const auto& info = std::get<VersionInfo>(manifest);
    settings.setValue(setting::lastUpdateCheck, now());
    const auto decision = info.decision(appVersion(), settings.string(setting::skippedUpdate));
    return decision == VersionInfo::Decision::updateAvailable ? std::optional(info) : std::nullopt;
}

void UpdateChecker::finishAfter(std::chrono::milliseconds wait, const Result& result) {
    QTimer::singleShot(wait, waiting.get(), [this, result] { finish(result); });
}

void UpdateChecker::finish(const Result& result) {
    gathering.reset();
    waiting.reset();
    // Who is told may begin another check.
    const auto tell = std::exchange(whenDone, {});
    tell(result);
}

}  // namespace quillon
