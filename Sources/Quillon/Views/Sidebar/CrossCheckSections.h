// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>

class QPushButton;

namespace quillon {

class ContestStore;
class CrossCheckStore;
class SidebarSection;

/// The sections of the sidebar for checking the logs of many stations against each other: which logs, how
/// they are compared and scored, and the reports. Each change goes to the stores at once.
class CrossCheckSections : public QWidget {
    Q_OBJECT

  public:
    /// Both outlive the sections.
    CrossCheckSections(CrossCheckStore& crossStore, ContestStore& contestStore, QWidget* parent = nullptr);

    /// Whether there is a result of which reports can be written.
    void offerReports(bool offered);

  signals:
    /// The user wants to choose logs to be added.
    void addLogsRequested();
    void exportRequested();

  private:
    SidebarSection* logs();
    SidebarSection* comparing();
    SidebarSection* scoring();
    SidebarSection* reports();
    void addSwitch(SidebarSection& section, const QString& text, bool isOn,
                   void (CrossCheckStore::*set)(bool), const QString& meaning);
    void addPenalty(SidebarSection& section, const QString& label, int factor,
                    void (CrossCheckStore::*set)(int), const QString& meaning);

    CrossCheckStore& store;
    ContestStore& contest;
    QPushButton* reportsButton = nullptr;
};

}  // namespace quillon
