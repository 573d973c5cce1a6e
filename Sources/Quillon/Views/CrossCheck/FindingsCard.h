// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/Card.h"
#include "Tallyrig/Log/UUID.h"

#include <cstddef>
#include <optional>
#include <vector>

class QComboBox;
class QLabel;

namespace quillon {

class CrossCheckStore;
struct CrossCheckEvaluation;
class FindingList;

/// The findings of one log of a cross-check, as far as the filter shows them.
class FindingsCard : public Card {
    Q_OBJECT

  public:
    /// The store outlives the card. At most `mostFindings` are listed.
    FindingsCard(CrossCheckStore& crossStore, std::size_t mostFindings, QWidget* parent = nullptr);

    /// Shows what `evaluation`, which outlives the call, says of the log, or nothing of none.
    void show(const CrossCheckEvaluation& evaluation, std::optional<tallyrig::UUID> log);

  signals:
    /// The user wants to see this QSO of the open log, which may have gone since the check.
    void qsoWanted(tallyrig::UUID record);

  private:
    CrossCheckStore& store;
    std::size_t findingLimit;
    QComboBox* filterPicker;
    QLabel* countLine;
    QLabel* nothing;
    FindingList* list;
    QLabel* further;
    std::vector<tallyrig::UUID> listed;  ///< The QSO of each row.
};

}  // namespace quillon
