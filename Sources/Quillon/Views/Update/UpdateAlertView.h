// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Updates/VersionInfo.h"

#include <QDialog>

#include <memory>
#include <vector>

class QBoxLayout;
class QPushButton;
class QTextEdit;

namespace quillon {

class InstallStatus;
class UpdateInstaller;
class UpdateManager;

/// Offers a release: what it is, and what can be done about it. What the manifest says is shown letter by
/// letter, for it comes from elsewhere.
///
/// While the archive is being loaded the dialog can be closed, which gives that up. While the files are put
/// in their places it cannot; then the program closes it on its way out.
class UpdateAlertView : public QDialog {
    Q_OBJECT

  public:
    /// Offers `release`, which is what `updateManager` has to offer; that outlives the dialog. The
    /// installation ends with it.
    UpdateAlertView(VersionInfo release, UpdateManager& updateManager,
                    std::unique_ptr<UpdateInstaller> updateInstaller, QWidget* parent = nullptr);
    ~UpdateAlertView() override;

    /// Whether it may be closed now.
    bool isClosable() const;

    void reject() override;

  private:
    bool isInstalling() const;
    QWidget* heading();
    QTextEdit* message();
    QBoxLayout* buttonRow();
    QPushButton* addButton(QBoxLayout& row, const QString& text, void (UpdateManager::*action)());
    void install();
    /// Shows how far the installation is, and offers what is possible meanwhile.
    void follow();
    void growToFit();

    const VersionInfo info;
    UpdateManager& manager;
    std::unique_ptr<UpdateInstaller> installer;
    InstallStatus* status = nullptr;
    QPushButton* installButton = nullptr;  ///< Null if the release cannot be installed from here.
    std::vector<QPushButton*> otherButtons;
};

}  // namespace quillon
