// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Kept/KeptLogs.h"
#include "Quillon/Stores/AppStores.h"

#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;

namespace quillon {

class KeptLogsSheet;
class LogKeeper;
class NoticeStrip;

/// Tells the user what was kept, lets it be brought back, and shows the list of it.
class KeptNotices : public QObject {
    Q_OBJECT

  public:
    /// All outlive the object, of which `window` is the parent. `brought` is called when the window shows
    /// another log.
    KeptNotices(const AppStores& appStores, LogKeeper& logKeeper, NoticeStrip& noticeStrip,
                QWidget& sheetWindow, std::function<void()> brought);

    /// Tells of what was left behind when a program ended.
    void tellOfLeftBehind();
    void showList();

  private:
    void tellOf(const KeptEntry& entry);
    void bringBack(const KeptEntry& entry);
    /// Shows the entry beside the open log.
    void compare(const KeptEntry& entry);
    void tellFailure(const QString& what, const KeptEntry& entry, const QString& why);
    /// The entry is none any more.
    void forget(const KeptEntry& entry);

    AppStores stores;
    LogKeeper& keeper;
    NoticeStrip& strip;
    QWidget& window;
    std::function<void()> hasBrought;
    QPointer<KeptLogsSheet> sheet;
};

}  // namespace quillon
