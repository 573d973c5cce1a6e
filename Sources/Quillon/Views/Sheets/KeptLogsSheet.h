// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Kept/KeptLogs.h"

#include <QDialog>

#include <vector>

class QLabel;
class QPushButton;
class QTreeWidget;

namespace quillon {

class LogKeeper;

/// The kept logs and former files, the latest first: one of them can be brought back, any of them deleted.
/// Follows what the keeper keeps while it is open.
class KeptLogsSheet : public QDialog {
    Q_OBJECT

  public:
    /// `logKeeper` outlives the sheet.
    KeptLogsSheet(LogKeeper& logKeeper, QWidget* parent);

  signals:
    /// The sheet is closed, here and below.
    void bringBackWanted(const quillon::KeptEntry& entry);
    void compareWanted(const quillon::KeptEntry& entry);
    /// The sheet stays open.
    void removed(const quillon::KeptEntry& entry);
    /// The same; `why` is a German sentence.
    void removeFailed(const quillon::KeptEntry& entry, const QString& why);

  private:
    void fill();
    void resizeToList();
    void offerActions();
    std::vector<KeptEntry> chosen() const;
    /// Closes the sheet and sends `wanted` with what is chosen.
    void closeWith(void (KeptLogsSheet::*wanted)(const KeptEntry& entry));
    void askToRemove();
    void removeAll(const std::vector<KeptEntry>& unwanted);

    LogKeeper& keeper;
    std::vector<KeptEntry> entries;
    QTreeWidget* list;
    QLabel* nothing;
    QPushButton* bringBackButton;
    QPushButton* compareButton;
    QPushButton* removeButton;
};

}  // namespace quillon
