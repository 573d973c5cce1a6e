// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Analysis/ADIFComparison.h"
#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/UUID.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// Two logs with their comparison, and which of its rows are on screen. The logs are those of the last
/// `follow`, whatever has become of them in their stores, so that rows and records belong together.
class ComparedLogs {
  public:
    using Side = tallyrig::ADIFComparison::Side;
    using Status = tallyrig::ADIFComparison::Status;

    enum class Change {
        none,
        row,  ///< At most what is in one row; rows and columns are where they were.
        all,
    };
    enum class Shown { all, differences };

    /// Takes over the logs as they are now. Where one record was edited, and not its key, its row alone is
    /// looked at; otherwise the logs are compared anew. Cost: `ADIFComparator::refresh` and a walk along the
    /// records that does not look into them, or else `ADIFComparator::compare`.
    Change follow(const tallyrig::ADIFDocument& left, const tallyrig::ADIFDocument& right,
                  const std::vector<std::string>& keyFields);
    /// A row that an edit has made equal stays on screen until the logs are compared anew.
    void show(Shown wanted);
    Shown shown() const { return chosenRows ? Shown::differences : Shown::all; }

    const tallyrig::ADIFComparison& comparison() const { return found; }
    const tallyrig::ADIFDocument& log(Side side) const { return side == Side::left ? leftLog : rightLog; }
    const std::vector<std::string>& columns() const { return found.columns(); }

    // The rows on screen. Each `row` is below `rowCount()`.
    std::size_t rowCount() const { return chosenRows ? chosenRows->size() : found.rowCount(); }
    tallyrig::ADIFComparison::Row row(std::size_t row) const { return found.row(comparedRow(row)); }
    /// Null if the row has none on this side. Good until the next `follow`.
    const tallyrig::ADIFRecord* record(std::size_t row, Side side) const;
    /// Where the record is on screen. Cost: a scan of the rows for one on the right.
    std::optional<std::size_t> rowOf(tallyrig::UUID record, Side side) const;
    /// The nearest row that is not equal behind `row` or in front of it; from nowhere the first or the last.
    std::optional<std::size_t> nextDifference(std::optional<std::size_t> row) const;
    std::optional<std::size_t> previousDifference(std::optional<std::size_t> row) const;

  private:
    std::size_t comparedRow(std::size_t row) const { return chosenRows ? (*chosenRows)[row] : row; }
    std::optional<std::size_t> comparedRowOf(std::size_t record, Side side) const;
    std::optional<std::size_t> shownRow(std::optional<std::size_t> compared) const;
    bool followEdit(const tallyrig::ADIFDocument& now, Side side);

    tallyrig::ADIFDocument leftLog;
    tallyrig::ADIFDocument rightLog;
    std::vector<std::string> keys;
    tallyrig::ADIFComparison found;
    std::optional<std::vector<std::uint32_t>> chosenRows;  ///< Ascending; absent while all are shown.
};

}  // namespace quillon
