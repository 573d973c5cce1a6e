// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QSignalSpy>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace quillon::testing {

/// Counts the change signals that an object sends, but not those that all objects have.
class SignalCounter {
  public:
    explicit SignalCounter(QObject& object) {
        const QMetaObject* const type = object.metaObject();
        for (int index = type->methodOffset(); index < type->methodCount(); ++index) {
            if (type->method(index).methodType() == QMetaMethod::Signal) {
                spies.push_back(std::make_unique<QSignalSpy>(&object, type->method(index)));
            }
        }
    }

    /// The properties whose change was told since the last call, in alphabetical order and with a blank
    /// between; one that was told several times has the number behind it.
    std::string sent() {
        std::vector<std::string> properties;
        for (const auto& spy : spies) {
            if (!spy->isEmpty()) {
                const QByteArray signal = spy->signal().left(spy->signal().indexOf('('));
                const std::string property = QByteArray(signal).replace("Changed", "").toStdString();
                properties.push_back(spy->size() == 1 ? property : property + std::to_string(spy->size()));
                spy->clear();
            }
        }
        std::sort(properties.begin(), properties.end());
        std::string text;
        for (const std::string& property : properties) {
            text += (text.empty() ? "" : " ") + property;
        }
        return text;
    }

  private:
    std::vector<std::unique_ptr<QSignalSpy>> spies;
};

}  // namespace quillon::testing
