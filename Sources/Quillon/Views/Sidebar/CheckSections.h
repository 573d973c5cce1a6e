// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLineEdit;

namespace quillon {

class LogStore;
class Settings;
class SidebarSection;

/// The sections of the sidebar for checking and saving the log. What is set here is kept between runs.
class CheckSections : public QWidget {
    Q_OBJECT

  public:
    /// Both outlive the sections.
    CheckSections(LogStore& logStore, Settings& userSettings, QWidget* parent = nullptr);

  signals:
    /// The user wants the log checked.
    void checkRequested();
    /// The user added a field to the selected QSO; it is the last of the record.
    void fieldAdded();

  private:
    SidebarSection* checks();
    SidebarSection* saving();
    SidebarSection* exporting();
    void addSwitch(SidebarSection& section, const QString& text, const QString& key, const QString& meaning);

    LogStore& store;
    Settings& settings;
};

}  // namespace quillon
