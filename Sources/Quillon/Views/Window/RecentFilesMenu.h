// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/PresenceCheck.h"
#include "Quillon/Platform/RecentFiles.h"

#include <QHash>
#include <QMenu>

namespace quillon {

/// The logs that the user had last, the newest on top. What is not there stays in the menu, greyed out: the
/// stick or the server on which it lies may be back later.
class RecentFilesMenu : public QMenu {
    Q_OBJECT

  public:
    /// The settings outlive the menu.
    RecentFilesMenu(Settings& settings, QWidget* parent);

    /// Greys out the menu itself where there is nothing in it. To be called before it can be seen.
    void refresh();

  signals:
    /// The user wants the log at `path`.
    void chosen(const QString& path);

  private:
    void fill();
    void addFile(const QString& path, const QString& name, int number);
    void showPresence(const QString& path, bool isThere);

    RecentFiles files;
    PresenceCheck* presence;
    QHash<QString, QAction*> actionByPath;
};

}  // namespace quillon
