// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Stores/DisplayedRows.h"
#include "Tallyrig/Log/ADIFRecordList.h"
#include "Tallyrig/Log/UUID.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_set>
#include <vector>

namespace quillon {

/// The keys held down at a click on a row.
struct ClickModifiers {
    bool command = false;  ///< Takes the row in or out of the selection.
    bool shift = false;    ///< Selects from the anchor to the row.
};

/// The selected records of a log, by id, and the anchor from which a range is selected.
class RowSelection {
  public:
    using IDs = std::unordered_set<tallyrig::UUID>;

    const IDs& ids() const { return selected; }
    const std::optional<tallyrig::UUID>& anchor() const { return rangeAnchor; }
    /// Another one after each change of ids or anchor.
    std::uint64_t revision() const { return changes; }

    /// Selects these and no others; the anchor stays.
    void select(IDs ids);
    void setAnchor(std::optional<tallyrig::UUID> id);
    /// A click on the row of `id`. With shift it selects from the anchor to it as they stand on screen, and
    /// the anchor stays; without an anchor on screen, shift counts for nothing. The click becomes the anchor
    /// otherwise, also where it took its row out of the selection.
    void click(tallyrig::UUID id, ClickModifiers keys, const RowsOnScreen& rows);
    /// Drops the ids that are not in `records`, and the anchor if it is not selected then.
    void reduceTo(const tallyrig::ADIFRecordList& records);

    /// The positions of the selected records in `records`, ascending. Cost: a look-up for each of a few, or
    /// a walk through the records.
    RowsOnScreen::Positions positionsIn(const tallyrig::ADIFRecordList& records) const;
    /// How many of the selected records, all of which the log holds, are in none of `rows`.
    std::size_t countOutside(const RowsOnScreen& rows) const;

  private:
    IDs selected;
    std::optional<tallyrig::UUID> rangeAnchor;
    std::uint64_t changes = 0;
};

/// The ids of the records in the rows from `first` to before `end`.
RowSelection::IDs idsInRows(const RowsOnScreen& rows, std::size_t first, std::size_t end);

}  // namespace quillon
