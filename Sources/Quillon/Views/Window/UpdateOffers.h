// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

class QMessageBox;
class QString;
class QWidget;

namespace quillon {

class UpdateAlertView;
class UpdateInstaller;
class UpdateManager;

/// Shows over a window what comes of looking for updates: the offer, in a dialog that is open as long as
/// there is one, and the answer to a user who asked.
class UpdateOffers : public QObject {
    Q_OBJECT

  public:
    /// What installs the release of one offer.
    using MakeInstaller = std::function<std::unique_ptr<UpdateInstaller>()>;

    /// Both outlive the object.
    UpdateOffers(UpdateManager& updateManager, MakeInstaller installerForOffer, QWidget& overWindow);

    /// For the user, who is told what comes of it.
    void check();

  signals:
    /// What the status line is to say; empty for nothing more.
    void noticed(const QString& text);

  private:
    void showOffer();
    void showAnswer();

    UpdateManager& manager;
    const MakeInstaller makeInstaller;
    QWidget& window;
    QPointer<UpdateAlertView> dialog;  ///< Null where there is no offer.
    QPointer<QMessageBox> answerBox;   ///< Null where there is no answer.
};

}  // namespace quillon
