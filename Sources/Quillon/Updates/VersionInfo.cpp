// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Updates/VersionInfo.h"

#include "Quillon/Updates/VersionOrder.h"
#include "Tallyrig/Text/Text.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

namespace quillon {

namespace {

/// Reads the values of an object by their types and remembers the first key that gives none.
class Keys {
  public:
    explicit Keys(const QJsonObject& manifest) : object(manifest) {}

    std::optional<QString> text(const char* key) {
        const QJsonValue value = object[QLatin1String(key)];
        if (value.isString()) {
            return value.toString();
        }
        fail(!value.isUndefined(), "„%1“ ist kein Text.", key);
        return std::nullopt;
    }
    QString requiredText(const char* key) {
        fail(!object.contains(QLatin1String(key)), "„%1“ fehlt.", key);
        return text(key).value_or(QString());
    }
    bool boolean(const char* key) {
        const QJsonValue value = object[QLatin1String(key)];
        fail(!value.isUndefined() && !value.isBool(), "„%1“ ist weder wahr noch falsch.", key);
        return value.toBool();
    }

    /// Empty if there was none.
    const QString& failure() const { return firstFailure; }

  private:
    void fail(bool hasFailed, const char* words, const char* key) {
        if (hasFailed && firstFailure.isEmpty()) {
            firstFailure = QString::fromUtf8(words).arg(QLatin1String(key));
        }
    }

    const QJsonObject& object;
    QString firstFailure;
};

bool isAbove(const QString& left, const QString& right) {
    return compareVersions(left.toStdString(), right.toStdString()) > 0;
}

}  // namespace

std::variant<VersionInfo, QString> VersionInfo::decode(const QByteArray& json) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        return QStringLiteral("Kein JSON, Byte %1: %2").arg(error.offset).arg(error.errorString());
    }
    if (!document.isObject()) {
        return QStringLiteral("Kein JSON-Objekt.");
    }
    const QJsonObject object = document.object();
    Keys keys(object);
    VersionInfo info;
    info.version = keys.requiredText("version");
    info.build = keys.text("build");
    info.releaseDate = keys.requiredText("releaseDate");
    info.downloadUrl = keys.requiredText("downloadUrl");
    info.releaseNotesUrl = keys.text("releaseNotesUrl");
    info.minimumMacOSVersion = keys.text("minimumMacOSVersion");
    info.message = keys.text("message");
    info.critical = keys.boolean("critical");
    info.sha256 = keys.text("sha256");
    if (!keys.failure().isEmpty()) {
        return keys.failure();
    }
    return info;
}

bool VersionInfo::isCompatibleWithCurrentOS(const QString& runningSystem) const {
    return !minimumMacOSVersion || !isAbove(*minimumMacOSVersion, runningSystem);
}

VersionInfo::Decision VersionInfo::decision(const QString& currentVersion, const QString& skippedVersion,
                                            const QString& runningSystem) const {
    const bool isSkipped = !skippedVersion.isNull() &&
                           tallyrig::text::equal(skippedVersion.toStdString(), version.toStdString());
    if (isSkipped && !critical) {
        return Decision::skipped;
    }
    if (!isAbove(version, currentVersion)) {
        return Decision::upToDate;
    }
    return isCompatibleWithCurrentOS(runningSystem) ? Decision::updateAvailable : Decision::osTooOld;
}

bool VersionInfo::canAutoInstall() const {
    return sha256 && !tallyrig::text::trimmed(sha256->toStdString()).empty();
}

QString VersionInfo::releaseDay() const {
    // As a day is written in German Switzerland, in the form that names it by numbers.
    const QString form = QStringLiteral("dd.MM.yyyy");
    if (const QDate day = QDate::fromString(releaseDate, QStringLiteral("yyyy-MM-dd")); day.isValid()) {
        return day.toString(form);
    }
    if (const QDateTime moment = QDateTime::fromString(releaseDate, Qt::ISODateWithMs); moment.isValid()) {
        return moment.toLocalTime().toString(form);
    }
    return releaseDate;
}

}  // namespace quillon
