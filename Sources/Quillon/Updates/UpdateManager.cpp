// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Updates/UpdateManager.h"

#include "Quillon/Platform/AppInfo.h"
#include "Quillon/Platform/Browser.h"
#include "Quillon/Platform/Settings.h"

#include <QUrl>

namespace quillon {

namespace {

using Answer = UpdateManager::Answer;

Answer answerFor(const UpdateCheckError& error) {
    const QString title = QStringLiteral("Update-Check fehlgeschlagen");
    switch (error.kind) {
        case UpdateCheckError::Kind::network:
            return {title, QStringLiteral("Netzwerkfehler: ") + error.text};
        case UpdateCheckError::Kind::decoding:
            return {title, QStringLiteral("Die Update-Informationen konnten nicht gelesen werden.")};
        case UpdateCheckError::Kind::invalidResponse:
            break;
    }
    return {title, QStringLiteral("Ungültige Antwort vom Server.")};
}

}  // namespace

std::span<const UpdateManager::Changes::Property> UpdateManager::observedProperties() {
    static const Changes::Property properties[] = {
        {Changes::differ<&Observed::isCheckingManually>, &UpdateManager::isCheckingManuallyChanged},
        {Changes::differ<&Observed::updateInfo>, &UpdateManager::updateInfoChanged},
        {Changes::differ<&Observed::answer>, &UpdateManager::answerChanged},
    };
    return properties;
}

UpdateManager::UpdateManager(const QString& manifestURL, Settings& userSettings, HTTPClient& httpClient,
                             Browser& webBrowser, QObject* parent)
    : QObject(parent),
      settings(userSettings),
      browser(webBrowser),
      checker(manifestURL, userSettings, httpClient) {}

void UpdateManager::checkOnStartup() {
    if (checker.manifestURL.isEmpty() || checker.isRunning()) {
        return;
    }
    checker.check(UpdateChecker::When::ifDue, [this](const UpdateChecker::Result& result) {
        const auto* const info = std::get_if<std::optional<VersionInfo>>(&result);
        if (info != nullptr && *info) {
            const Changes::Operation operation(changes);
            state.updateInfo = *info;
        }
    });
}

void UpdateManager::checkManually() {
    const Changes::Operation operation(changes);
    if (checker.manifestURL.isEmpty()) {
        state.answer = {QStringLiteral("Updates kommen vom System"),
                        QStringLiteral("%1 %2 wird über die Paketverwaltung des Systems aktualisiert.")
                            .arg(appName(), appVersion())};
    } else if (!state.isCheckingManually) {
        state.isCheckingManually = true;
        checker.check(UpdateChecker::When::always,
                      [this](const UpdateChecker::Result& result) { tellOutcome(result); });
    }
}

void UpdateManager::tellOutcome(const UpdateChecker::Result& result) {
    const Changes::Operation operation(changes);
    state.isCheckingManually = false;
    if (const auto* const error = std::get_if<UpdateCheckError>(&result)) {
        state.answer = answerFor(*error);
    } else if (const auto& info = std::get<std::optional<VersionInfo>>(result)) {
        state.updateInfo = info;
    } else {
        state.answer = {QStringLiteral("Keine Updates verfügbar"),
                        QStringLiteral("Du verwendest bereits die neueste Version (%1).").arg(appVersion())};
    }
}

void UpdateManager::clearAnswer() {
    const Changes::Operation operation(changes);
    state.answer.reset();
}

void UpdateManager::openDownload() {
    const Changes::Operation operation(changes);
    if (state.updateInfo) {
        openInBrowser(state.updateInfo->downloadUrl);
        state.updateInfo.reset();
    }
}

void UpdateManager::openReleaseNotes() {
    const Changes::Operation operation(changes);
    if (state.updateInfo && state.updateInfo->releaseNotesUrl) {
        openInBrowser(*state.updateInfo->releaseNotesUrl);
    }
}

void UpdateManager::openInBrowser(const QString& address) {
    const QUrl url(address, QUrl::StrictMode);
    if (!isOnTheWeb(url)) {
        state.answer = {QStringLiteral("Seite lässt sich nicht öffnen"),
                        QStringLiteral("Die Update-Informationen nennen keine gültige Adresse dafür.")};
    } else if (!browser.open(url)) {
        state.answer = {QStringLiteral("Seite lässt sich nicht öffnen"),
                        QStringLiteral("Es ist kein Browser eingerichtet. Die Adresse ist:\n") +
                            url.toString(QUrl::FullyEncoded)};
    }
}

void UpdateManager::skipThisVersion() {
    const Changes::Operation operation(changes);
    if (state.updateInfo) {
        settings.setValue(setting::skippedUpdate, state.updateInfo->version);
        state.updateInfo.reset();
    }
}

void UpdateManager::postpone() {
    const Changes::Operation operation(changes);
    state.updateInfo.reset();
}

}  // namespace quillon
