// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Updates/UpdateInstaller.h"

#include <QWidget>

class QLabel;
class QProgressBar;

namespace quillon {

/// Tells how far an installation is, or why it failed; hidden while there is none.
class InstallStatus : public QWidget {
    Q_OBJECT

  public:
    explicit InstallStatus(QWidget* parent = nullptr);

    void show(const UpdateInstaller::Phase& phase);

  private:
    void showProgress(double progress);

    QWidget* warning;
    QLabel* heading;
    QProgressBar* bar;
    QLabel* percent;
    QLabel* reason;
    QLabel* wayOut;
};

}  // namespace quillon
