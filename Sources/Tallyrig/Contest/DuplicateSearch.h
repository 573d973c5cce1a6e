// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestFields.h"
#include "Tallyrig/Contest/ContestRules.h"
#include "Tallyrig/Log/ADIFRecordList.h"
#include "Tallyrig/Text/KeyNumbers.h"

#include <array>
#include <cstddef>
#include <vector>

namespace tallyrig {

/// Tells of one QSO of a log after the other whether it is a duplicate of one before. Refers to the rules and
/// the records.
class DuplicateSearch {
  public:
    DuplicateSearch(const ContestRules& rules, const ADIFRecordList& records);

    /// Whether the next QSO, from the first to the last, is a duplicate.
    bool isNextDuplicate() {
        if (next == blockSize) {
            searchBlock();
        }
        return isDuplicate[next++];
    }

  private:
    /// So many QSOs are searched ahead, for the memory of a large log's keys is slow to answer.
    static constexpr std::size_t blockSize = 64;

    void searchBlock();
    bool readsKey();

    const ContestRules& rules;
    ADIFRecordList::Iterator record;  ///< The first one behind the block.
    ADIFRecordList::Iterator end;

    ContestFields fields;
    std::vector<std::size_t> dupeFields;  ///< By position in the rules.
    std::size_t bandField = 0;            ///< Read only where there are duplicates on some bands alone.
    KeyNumbers keys;

    std::array<bool, blockSize> isDuplicate{};
    std::size_t next = blockSize;
};

}  // namespace tallyrig
