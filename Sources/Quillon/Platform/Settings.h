// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>
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
    /// Takes over what other programs of this user have set meanwhile. Cost: a look at the file.
    virtual void refresh() {}

    bool boolean(const QString& key, bool missing) const;
    /// Absent becomes a null string.
    QString string(const QString& key) const;
    std::optional<QDateTime> moment(const QString& key) const;
    /// A single string is a list of one; absent becomes an empty list.
    QStringList strings(const QString& key) const;
    /// Absent becomes `missing`, and so does what is no whole number.
    int number(const QString& key, int missing) const;
    /// Absent becomes an empty array.
    QByteArray bytes(const QString& key) const;
};

/// Settings that nobody has set yet, and that go with the object.
class PassingSettings : public Settings {
  public:
    QVariant value(const QString& key) const override { return values.value(key); }
    void setValue(const QString& key, const QVariant& value) override { values.insert(key, value); }

  private:
    QHash<QString, QVariant> values;
};

/// The settings of this user on this machine.
std::unique_ptr<Settings> userSettings();

}  // namespace quillon
