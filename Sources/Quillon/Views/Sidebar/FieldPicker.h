// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/SearchedComboBox.h"

namespace quillon {

class LogStore;

/// Offers the ADIF fields that the single selected QSO does not have yet, each under its German name.
///
/// The list is long: it is made when it opens. It opens by any key that would change a choice, for here a
/// choice changes the log.
class FieldPicker : public SearchedComboBox {
    Q_OBJECT

  public:
    /// `logStore` outlives the picker.
    explicit FieldPicker(const LogStore& logStore, QWidget* parent = nullptr);

    void showPopup() override;

  signals:
    /// The user chose the field of this name.
    void picked(const QString& name);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    const LogStore& store;
};

}  // namespace quillon
