// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/SearchedComboBox.h"

namespace quillon {

class ContestStore;

/// The choice of the contest.
class ContestPicker : public SearchedComboBox {
    Q_OBJECT

  public:
    /// `contestStore` outlives the picker.
    explicit ContestPicker(ContestStore& contestStore, QWidget* parent = nullptr);
};

}  // namespace quillon
