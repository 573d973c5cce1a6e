// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace quillon {

/// Tells the desktop which files are used, for the lists in its own menus and panels, unless the user does
/// not want that remembered.
class DesktopRecentFiles : public QObject {
  public:
    using QObject::QObject;

    /// The file at `path`, which is absolute, was opened or saved. Some desktops are asked first, beside what
    /// goes on.
    void note(const QString& path);
};

}  // namespace quillon
