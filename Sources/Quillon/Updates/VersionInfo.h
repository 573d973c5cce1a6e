// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/SystemVersion.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <variant>

namespace quillon {

/// The manifest of updates: what it says of the release that it offers. The fields are its keys. All texts
/// are as somebody else wrote them, of any length and with any characters in them.
struct VersionInfo {
    /// What comparing the manifest with the running program gives.
    enum class Decision {
        updateAvailable,
        upToDate,  ///< The running version is the same or newer.
        skipped,   ///< The user skipped this very version.
        osTooOld,  ///< Newer, but not for the operating system that runs here.
    };

    QString version;
    std::optional<QString> build;  ///< For information only.
    QString releaseDate;           ///< ISO 8601, with or without a time of day.
    QString downloadUrl;           ///< Of the archive.
    std::optional<QString> releaseNotesUrl;
    std::optional<QString> minimumMacOSVersion;  ///< The lowest system version that runs the release.
    std::optional<QString> message;
    bool critical = false;          ///< The update is important and cannot be skipped.
    std::optional<QString> sha256;  ///< Of the archive, in hexadecimal.

    /// The manifest in `json`, or one German sentence on why there is none: no object, a missing key, or a
    /// value of the wrong type, which null is as well. Keys that nobody knows are passed over.
    static std::variant<VersionInfo, QString> decode(const QByteArray& json);

    bool isCompatibleWithCurrentOS(const QString& runningSystem = systemVersion()) const;
    /// `skippedVersion` is null if the user skipped none.
    Decision decision(const QString& currentVersion, const QString& skippedVersion,
                      const QString& runningSystem = systemVersion()) const;
    /// Whether the program may install the release by itself: only what can be checked.
    bool canAutoInstall() const;
    /// The day of the release as "dd.MM.yyyy" in the time zone of the user; what cannot be read as it stands.
    QString releaseDay() const;

    friend bool operator==(const VersionInfo&, const VersionInfo&) = default;
};

}  // namespace quillon
