// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace quillon {

/// The program with which the user looks at files.
class FileManager {
  public:
    FileManager() = default;
    FileManager(const FileManager&) = delete;
    FileManager& operator=(const FileManager&) = delete;
    virtual ~FileManager() = default;

    /// Shows what lies in the folder. Nothing happens where there is no such program.
    virtual void show(const QString& folder) = 0;
    /// Shows these files, one or more in one folder, as the selected ones in it; where the program cannot, or
    /// they are very many, it shows the folder.
    virtual void select(const QStringList& paths) = 0;
};

}  // namespace quillon
