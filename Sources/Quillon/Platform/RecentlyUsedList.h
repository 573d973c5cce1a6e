// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

namespace quillon {

/// The list of the files that the programs of the desktop used last, which they all share:
/// `recently-used.xbel` in the user's folder for data.
class RecentlyUsedList {
  public:
    /// The folder is made when something is written; so is the list, for its owner alone.
    explicit RecentlyUsedList(QString dataFolder) : folder(std::move(dataFolder)) {}

    /// Notes that this program used the file at `path`, which is absolute, at that time. What others wrote
    /// stays. Nothing happens where the list cannot be read or written, is none, or is held by another
    /// program for longer than a moment: it is a convenience that must not get into the way.
    void note(const QString& path, const QDateTime& time) const;

  private:
    QString folder;
};

/// Whether the desktop's settings below `configFolder` let programs remember which files were used.
bool desktopRemembersFiles(const QString& configFolder);

}  // namespace quillon
