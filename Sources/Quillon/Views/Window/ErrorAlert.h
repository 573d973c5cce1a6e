#pragma once

#include <QObject>
#include <QPointer>

class QMessageBox;
class QWidget;

namespace quillon {

class LogStore;

/// Shows the error message of the store over the window for as long as there is one, and clears it when the
/// user has read it. A newer message takes the place of the text that stands there. Never waits for the user.
class ErrorAlert : public QObject {
    Q_OBJECT

  public:
    ErrorAlert(LogStore& logStore, QWidget& overWindow);

  private:
    void refresh();

    LogStore& store;
    QWidget& window;
    QPointer<QMessageBox> box;  ///< Null until there is something to tell.
};

}  // namespace quillon
