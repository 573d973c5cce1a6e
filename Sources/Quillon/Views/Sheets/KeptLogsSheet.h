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
    /// The sheet is closed.
    void bringBackWanted(const quillon::KeptEntry& entry);
    void removed(const quillon::KeptEntry& entry);
    /// One German sentence.
    void failed(const QString& sentence);

  private:
    void fill();
    void offerActions();
    std::vector<KeptEntry> chosen() const;
    void bringBack();
    void askToRemove();
    void removeAll(const std::vector<KeptEntry>& unwanted);

    LogKeeper& keeper;
    std::vector<KeptEntry> entries;
    QTreeWidget* list;
    QLabel* nothing;
    QPushButton* bringBackButton;
    QPushButton* removeButton;
};

}  // namespace quillon
