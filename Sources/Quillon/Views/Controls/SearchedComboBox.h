// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/CalmComboBox.h"

namespace quillon {

/// A picker of many entries, found by typing: the list opens, and what is typed goes to the first entry in
/// which it stands, best at its beginning or at that of a word.
class SearchedComboBox : public CalmComboBox {
    Q_OBJECT

  public:
    explicit SearchedComboBox(QWidget* parent = nullptr);

    /// The list opens below the picker, as wide as its longest entry.
    void showPopup() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// Opens the list and looks for what this key types; false, and nothing happens, if it types nothing.
    bool search(const QKeyEvent& event);
};

}  // namespace quillon
