// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Keeping/FileWatch.h"
#include "Quillon/Stores/AppStores.h"

#include <QObject>

#include <functional>

class QWidget;

namespace quillon {

class NoticeStrip;

/// Tells the user when another program has changed the file of the open log, and what can be done about it.
class FileNotices : public QObject {
    Q_OBJECT

  public:
    /// All outlive the object, of which `window` is the parent. `openFile` opens a log as the window does it.
    FileNotices(const AppStores& appStores, NoticeStrip& noticeStrip, QWidget& window,
                std::function<void(const QString& path)> openFile);

    /// Looks at the file now, as where the system does not tell of changes.
    void look() { watch.look(); }

  private:
    void tellOf(const QString& path);
    void compare(const QString& path);

    AppStores stores;
    NoticeStrip& strip;
    std::function<void(const QString& path)> open;
    FileWatch watch;
};

}  // namespace quillon
