// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <string>
#include <string_view>

namespace quillon::testing {

/// A folder that goes with the test.
class TemporaryFolder {
  public:
    QString path(const QString& name) const { return folder.filePath(name); }

    /// Writes a file and returns its path.
    QString write(const QString& name, std::string_view content) const {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) ||
            file.write(content.data(), static_cast<qint64>(content.size())) < 0) {
            qFatal("no temporary file");
        }
        return path(name);
    }

    std::string read(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(no file)";
    }

    /// Everything in it, hidden or not, in alphabetical order and with a blank between.
    std::string names() const {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)
            .join(QLatin1Char(' '))
            .toStdString();
    }

  private:
    QTemporaryDir folder;
};

}  // namespace quillon::testing
