// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Grid/TableGeometry.h"
#include "Tallyrig/Log/UUID.h"

#include <optional>
#include <string>

namespace quillon {

class LogStore;

/// A cell by what it holds and not by where it stands.
struct CellContent {
    tallyrig::UUID record;
    std::string column;  ///< Empty in a table without columns.

    friend bool operator==(const CellContent&, const CellContent&) = default;
};

/// The cell at which the keyboard is. It belongs to its record and its column and follows both when rows or
/// columns move; where they are gone, the nearest takes their place.
///
/// It is framed, and what is typed goes into it, unless a single QSO is selected and that is another one:
/// what the user believes to be working on and what they would change are then not the same.
class CurrentCell {
  public:
    /// The store outlives the cell.
    explicit CurrentCell(const LogStore& logStore) : store(logStore) {}

    /// Absent while there are no rows or the keyboard was never in the table.
    const std::optional<CellPosition>& position() const { return place; }
    /// What the cell holds. Meaningless while there is no position.
    const CellContent& content() const { return held; }
    bool isFramed() const;

    /// The cell, which exists, becomes the current one.
    void set(CellPosition cell);
    void clear() { place.reset(); }
    /// To be called when rows or columns came, went or moved. False if what the cell held is gone.
    bool follow(const TableGeometry& geometry);
    /// Goes to the row of the single selected QSO if that is another one and in the table.
    void rejoinSelection();

    CellContent contentOf(CellPosition cell) const;
    /// Where this stands now; absent if it is not displayed.
    std::optional<CellPosition> positionOf(const CellContent& content) const;
    /// The place of the record's row in the column where the keyboard is, or was last; absent if the record
    /// is not displayed.
    std::optional<CellPosition> positionIn(tallyrig::UUID record) const;

  private:
    std::optional<std::size_t> rowOf(tallyrig::UUID record) const;
    std::optional<std::size_t> columnOf(const std::string& name) const;

    const LogStore& store;
    std::optional<CellPosition> place;
    CellContent held;
};

}  // namespace quillon
