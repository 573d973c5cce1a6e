// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Stores/StoreState.h"
#include "Quillon/Updates/UpdateChecker.h"
#include "Quillon/Updates/VersionInfo.h"

#include <QObject>
#include <QString>

#include <optional>
#include <span>

namespace quillon {

class Browser;
class Settings;

/// Looks for updates: once when the program starts, where nothing is told unless there is one, and when the
/// user asks, where every outcome is told. At most one check runs at a time. Lives on the main thread.
///
/// Each property has one change signal, sent when the change is whole and only if the value is another one.
class UpdateManager : public QObject {
    Q_OBJECT

  public:
    /// What the user is told, in German, until it was read.
    struct Answer {
        QString title;
        QString text;

        friend bool operator==(const Answer&, const Answer&) = default;
    };

    /// All outlive the object. `manifestURL` is empty where updates come another way, with the packages of
    /// the system: then no check is made, and who asks for one is told so.
    UpdateManager(const QString& manifestURL, Settings& userSettings, HTTPClient& httpClient,
                  Browser& webBrowser, QObject* parent = nullptr);

    /// The offer to be shown; the dialog is open exactly while there is one.
    const std::optional<VersionInfo>& updateInfo() const { return state.updateInfo; }
    const std::optional<Answer>& answer() const { return state.answer; }
    /// Whether a check runs that the user asked for.
    bool isCheckingManually() const { return state.isCheckingManually; }

    /// Returns at once. Nothing happens if no check is due, or one runs.
    void checkOnStartup();
    /// Returns at once. Takes the place of a check that runs from the start; nothing more happens if one runs
    /// that was asked for.
    void checkManually();
    void clearAnswer();

    // What is done about the offer. Nothing happens without one.

    /// Opens the archive's address in the browser and takes the offer back, whatever comes of it. What is no
    /// address of the web, or finds no browser, is told.
    void openDownload();
    /// The same for the address of the release notes, if there is one; the offer stays.
    void openReleaseNotes();
    /// Never offers this version again, unless it becomes critical, and takes the offer back.
    void skipThisVersion();
    /// Takes the offer back until the next check.
    void postpone();

  signals:
    void updateInfoChanged();
    void answerChanged();
    void isCheckingManuallyChanged();

  private:
    struct Observed {
        std::optional<VersionInfo> updateInfo;
        std::optional<Answer> answer;
        bool isCheckingManually = false;
    };
    using Changes = StoreState<UpdateManager, Observed>;

    static std::span<const Changes::Property> observedProperties();

    void tellOutcome(const UpdateChecker::Result& result);
    void openInBrowser(const QString& address);

    Settings& settings;
    Browser& browser;
    UpdateChecker checker;
    Observed state;
    Changes changes{*this, state, observedProperties()};
};

}  // namespace quillon
