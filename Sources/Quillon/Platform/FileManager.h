#pragma once

#include <QString>

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
};

}  // namespace quillon
