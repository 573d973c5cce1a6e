// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace quillon {

/// Tells what the program is: its version, whose it is, who may do what with it, and what it stands on.
class AboutBox : public QDialog {
    Q_OBJECT

  public:
    explicit AboutBox(QWidget* parent = nullptr);

  signals:
    void handbookWanted();

  private:
    QWidget* head();
    QWidget* libraries();
    void showLicence();
};

}  // namespace quillon
