// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Panels.h"

#include <QDialog>

namespace quillon {

/// Asks whether a log is to be written of which something would be lost, and shows what.
class LossDialog : public QDialog {
    Q_OBJECT

  public:
    LossDialog(const LossQuestion& question, QWidget* parent);

    /// `cancel` unless the user has pressed a button of another meaning.
    LossAnswer answer() const { return given; }

  private:
    LossAnswer given = LossAnswer::cancel;
};

}  // namespace quillon
