#pragma once

#include "Quillon/Stores/AppMode.h"

#include <QScrollArea>

class QComboBox;
class QVBoxLayout;

namespace quillon {

class ContestStore;
class LogStore;
class Settings;

/// The left column of the window: the choice of what is worked at, and below it the controls that set that
/// up. Where letters are large it asks for the width that its buttons need.
class SidebarPane : public QScrollArea {
    Q_OBJECT

  public:
    /// All of them outlive the pane.
    SidebarPane(LogStore& logStore, ContestStore& contestStore, Settings& userSettings,
                QWidget* parent = nullptr);

  signals:
    /// The user wants the log checked.
    void checkRequested();
    /// The user added a field to the selected QSO; it is the last of the record.
    void fieldAdded();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void showMode();
    void putIntoTabOrder();
    void showWhole(const QWidget& control);
    void makeRoom();

    LogStore& store;
    ContestStore& contest;
    Settings& settings;
    QComboBox* modePicker = nullptr;
    QVBoxLayout* column = nullptr;
    QWidget* sections = nullptr;  ///< Those of the mode.
};

}  // namespace quillon
