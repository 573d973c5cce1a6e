// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>

#include <memory>
#include <optional>

namespace quillon {

/// What the user set, kept between runs, by key. The typed questions are the ones to ask: a value of the
/// wrong type counts as missing.
class Settings {
  public:
    Settings() = default;
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;
    virtual ~Settings() = default;

    /// The stored value, invalid if there is none.
    virtual QVariant value(const QString& key) const = 0;
    virtual void setValue(const QString& key, const QVariant& value) = 0;

    bool boolean(const QString& key, bool missing) const;
    /// Absent becomes a null string.
    QString string(const QString& key) const;
    std::optional<QDateTime> moment(const QString& key) const;
};

/// The settings of this user on this machine.
std::unique_ptr<Settings> userSettings();

}  // namespace quillon
