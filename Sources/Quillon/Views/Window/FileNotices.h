// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Keeping/FileWatch.h"
#include "Quillon/Stores/AppStores.h"
#include "Quillon/Stores/SavingConcern.h"
#include "Quillon/Views/Controls/NoticeStrip.h"

#include <QObject>

#include <functional>

class QWidget;

namespace quillon {

/// Tells the user what becomes of the file of the open log: that another program has changed it, or that
/// saving over it takes something from it, and what can be done about it.
class FileNotices : public QObject {
    Q_OBJECT

  public:
    /// All outlive the object, of which `window` is the parent. `openFile` opens a log as the window does it.
    FileNotices(const AppStores& appStores, NoticeStrip& noticeStrip, QWidget& window,
                std::function<void(const QString& path)> openFile);

    /// Looks at the file now, as where the system does not tell of changes.
    void look() { watch.look(); }
    /// Saves the log as the user asks for it. Where that takes something from its file nothing is written
    /// until the user has said so, once for a file; asking again leads to where that is said.
    void save();

  private:
    void tellOf(const QString& path);
    Notice changedNotice(const QString& path);
    Notice savingNotice(SavingConcern concern);
    void compare(const QString& path);

    AppStores stores;
    NoticeStrip& strip;
    std::function<void(const QString& path)> open;
    FileWatch watch;
};

}  // namespace quillon
