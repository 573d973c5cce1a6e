// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecordList.h"
#include "Tallyrig/Log/UUID.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// Records in rows: all of a log in its order, or those at certain positions.
/// A view: good until the log or the positions change.
class RowsOnScreen {
  public:
    using Positions = std::vector<std::uint32_t>;

    /// Null for all records.
    RowsOnScreen(const tallyrig::ADIFRecordList& recordList, const Positions* recordPositions)
        : records(recordList), positions(recordPositions) {}

    bool areAll() const { return positions == nullptr; }
    std::size_t size() const { return positions != nullptr ? positions->size() : records.size(); }
    /// The position in the log of the record in `row`, below `size()`.
    std::size_t index(std::size_t row) const { return positions != nullptr ? (*positions)[row] : row; }
    const tallyrig::ADIFRecord& record(std::size_t row) const { return records[index(row)]; }
    /// Absent if the record is in no row. Cost: a scan unless these are all records.
    std::optional<std::size_t> rowOf(tallyrig::UUID id) const;

  private:
    const tallyrig::ADIFRecordList& records;
    const Positions* positions;
};

/// What decides which records are on screen and in which order.
struct RowOrder {
    std::string searchText;                 ///< As typed; empty for all records.
    std::optional<std::string> sortColumn;  ///< In upper case; absent for the order of the log.
    bool sortAscending = true;

    friend bool operator==(const RowOrder&, const RowOrder&) = default;
};

/// Which records stand in which row, kept for as long as the log, the search and the sort stay the same. It
/// notices by itself when they do not.
class DisplayedRows {
  public:
    /// The records that the search leaves, in the order of the log.
    RowsOnScreen filtered(const tallyrig::ADIFRecordList& records, const RowOrder& order);
    /// The same as sorted.
    RowsOnScreen displayed(const tallyrig::ADIFRecordList& records, const RowOrder& order);

  private:
    /// Positions and what they were worked out from.
    struct Known {
        tallyrig::ADIFRecordList records;
        RowOrder order;
        RowsOnScreen::Positions positions;

        bool isFor(const tallyrig::ADIFRecordList& otherRecords, const RowOrder& otherOrder) const {
            return records.isSameAs(otherRecords) && order == otherOrder;
        }
    };

    std::optional<Known> kept;
    std::optional<Known> sorted;
};

}  // namespace quillon
