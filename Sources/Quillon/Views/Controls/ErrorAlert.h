// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <optional>

class QMessageBox;
class QWidget;

namespace quillon {

/// Shows the message of a store over a window for as long as there is one, and clears it when the user has
/// read it. A newer message takes the place of the text that stands there. Never waits for the user.
class ErrorAlert : public QObject {
    Q_OBJECT

  public:
    /// What the user must be told; absent once it was. The alert shows the beginning of a very long text.
    using Message = std::function<std::optional<QString>()>;

    /// `message` and `clear` ask and change the store, which outlives the window. The store's signal of
    /// change is to be connected with `refresh`.
    ErrorAlert(const QString& windowTitle, Message messageOfStore, std::function<void()> clearMessage,
               QWidget& overWindow);

    void refresh();

  private:
    QString title;
    Message message;
    std::function<void()> clear;
    QWidget& window;
    QPointer<QMessageBox> box;  ///< Null until there is something to tell.
};

}  // namespace quillon
