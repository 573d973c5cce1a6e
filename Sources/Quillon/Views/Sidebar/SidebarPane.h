// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Stores/AppStores.h"

#include <QScrollArea>

class QComboBox;
class QVBoxLayout;

namespace quillon {

class Settings;

/// The left column of the window: the choice of what is worked at, and below it the controls that set that
/// up. Where letters are large it asks for the width that its buttons need.
class SidebarPane : public QScrollArea {
    Q_OBJECT

  public:
    /// Stores and settings outlive the pane.
    SidebarPane(const AppStores& appStores, Settings& userSettings, QWidget* parent = nullptr);

    /// Whether there is a result of which reports can be written.
    void offerReports(bool offered);

  signals:
    void reportsOffered(bool offered);
    /// The user wants the log checked.
    void checkRequested();
    /// The user wants to choose logs to be checked against each other.
    void addLogsRequested();
    /// The user wants the reports of that check.
    void reportsRequested();
    /// The user added a field to the selected QSO; it is the last of the record.
    void fieldAdded();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void showMode();
    /// The sections for the contest, with the choice of its pane above them.
    QWidget* contestSections();
    void showWhole(const QWidget& control);
    void makeRoom();

    AppStores stores;
    Settings& settings;
    QComboBox* modePicker = nullptr;
    QVBoxLayout* column = nullptr;
    bool hasReports = false;
    QWidget* sections = nullptr;  ///< Those of the mode.
};

}  // namespace quillon
