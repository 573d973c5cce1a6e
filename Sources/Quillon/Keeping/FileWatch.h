// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Files/FileState.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

#include <optional>

namespace quillon {

class LogStore;

/// Notices when another program changes the file of the open log: since it was opened or saved, it holds
/// another log. Where the system does not tell of changes, as on a network, nothing is noticed.
class FileWatch : public QObject {
    Q_OBJECT

  public:
    /// `logStore` outlives the object.
    explicit FileWatch(LogStore& logStore, QObject* parent = nullptr);

    /// Looks at the file now. Cost: nothing more unless it was written to; otherwise reads it.
    void look();

  signals:
    /// The file of the open log holds another log than that had.
    void changedByOthers(const QString& path);
    /// What `changedByOthers` told of holds no more: the log was opened anew or is another, or its file holds
    /// it again.
    void settled();

  private:
    void follow();
    void watch();

    LogStore& store;
    QFileSystemWatcher watcher;
    QTimer looking;               ///< What is written in pieces is looked at when they are together.
    std::optional<QString> path;  ///< Of the file that is watched.
    FileState known;
    bool isChanged = false;
};

}  // namespace quillon
