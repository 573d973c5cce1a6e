// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace quillon {

class LogStore;
class SidebarSection;

/// The sections of the sidebar for the programs for operating outdoors: which it is, the check and the files.
class OutdoorSections : public QWidget {
    Q_OBJECT

  public:
    /// `logStore` outlives the sections.
    explicit OutdoorSections(LogStore& logStore, QWidget* parent = nullptr);

  private:
    SidebarSection* programs();
    SidebarSection* roles();
    SidebarSection* checking();
    SidebarSection* exporting();
    void showProgram();

    LogStore& store;
    SidebarSection* roleSection = nullptr;
    QLabel* checkNote = nullptr;
    QPushButton* exportButton = nullptr;
    QLabel* exportNote = nullptr;
};

}  // namespace quillon
