// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Settings.h"

#include "Quillon/Platform/AppInfo.h"

#include <QMetaType>
#include <QSettings>

namespace quillon {

namespace {

class UserSettings final : public Settings {
  public:
    QVariant value(const QString& key) const override {
        const QVariant stored = settings.value(key);
        // The file holds a boolean as one of two words, which come back as text. No setting has these words
        // as text.
        if (stored.typeId() == QMetaType::QString) {
            const QString text = stored.toString();
            if (text == QLatin1String("true") || text == QLatin1String("false")) {
                return text == QLatin1String("true");
            }
        }
        return stored;
    }
    void setValue(const QString& key, const QVariant& value) override { settings.setValue(key, value); }
    void refresh() override { settings.sync(); }

  private:
    QSettings settings{QSettings::IniFormat, QSettings::UserScope, appName(), appName()};
};

}  // namespace

bool Settings::boolean(const QString& key, bool missing) const {
    const QVariant stored = value(key);
    return stored.typeId() == QMetaType::Bool ? stored.toBool() : missing;
}

QString Settings::string(const QString& key) const {
    const QVariant stored = value(key);
    return stored.typeId() == QMetaType::QString ? stored.toString() : QString();
}

std::optional<QDateTime> Settings::moment(const QString& key) const {
    const QVariant stored = value(key);
    const QDateTime moment = stored.typeId() == QMetaType::QDateTime ? stored.toDateTime() : QDateTime();
    return moment.isValid() ? std::optional(moment) : std::nullopt;
}

QStringList Settings::strings(const QString& key) const {
    const QVariant stored = value(key);
    // The file does not tell a list of one from its only string.
    const bool isText = stored.typeId() == QMetaType::QStringList || stored.typeId() == QMetaType::QString;
    return isText ? stored.toStringList() : QStringList();
}

int Settings::number(const QString& key, int missing) const {
    const QVariant stored = value(key);
    // The file holds a number as its digits, which come back as text.
    bool isNumber = stored.typeId() == QMetaType::Int || stored.typeId() == QMetaType::QString;
    const int number = isNumber ? stored.toInt(&isNumber) : 0;
    return isNumber ? number : missing;
}

QByteArray Settings::bytes(const QString& key) const {
    const QVariant stored = value(key);
    return stored.typeId() == QMetaType::QByteArray ? stored.toByteArray() : QByteArray();
}

std::unique_ptr<Settings> userSettings() {
    return std::make_unique<UserSettings>();
}

}  // namespace quillon
