// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/CurrentCell.h"

#include "Quillon/Stores/LogStore.h"

#include <algorithm>

namespace quillon {

bool CurrentCell::isFramed() const {
    return place && (store.selection().size() != 1 || store.selection().contains(held.record));
}

void CurrentCell::set(CellPosition cell) {
    place = cell;
    held = contentOf(cell);
}

bool CurrentCell::follow(const TableGeometry& geometry) {
    if (!place) {
        return true;
    }
    const std::optional<CellPosition> found = positionOf(held);
    const std::optional<CellPosition> nearest = geometry.nearestCell(found.value_or(*place));
    if (!nearest) {
        place.reset();
        return false;
    }
    set(*nearest);
    return found.has_value();
}

void CurrentCell::rejoinSelection() {
    if (place && !isFramed()) {
        if (const auto selected = positionIn(*store.selection().begin())) {
            set(*selected);
        }
    }
}

CellContent CurrentCell::contentOf(CellPosition cell) const {
    return {store.displayedRecord(cell.row).id(),
            cell.column < store.columns().size() ? store.columns()[cell.column] : std::string()};
}

std::optional<CellPosition> CurrentCell::positionOf(const CellContent& content) const {
    const auto column = columnOf(content.column);
    const auto row = column ? rowOf(content.record) : std::nullopt;
    return row ? std::optional(CellPosition{*row, *column}) : std::nullopt;
}

std::optional<CellPosition> CurrentCell::positionIn(tallyrig::UUID record) const {
    const auto row = rowOf(record);
    return row ? std::optional(CellPosition{*row, columnOf(held.column).value_or(0)}) : std::nullopt;
}

std::optional<std::size_t> CurrentCell::rowOf(tallyrig::UUID record) const {
    // To look the row up is a walk through all rows, and mostly none has moved.
    if (place && place->row < store.displayedCount() && store.displayedRecord(place->row).id() == record) {
        return place->row;
    }
    return store.displayedRow(record);
}

std::optional<std::size_t> CurrentCell::columnOf(const std::string& name) const {
    if (name.empty() && store.columns().empty()) {
        return 0;
    }
    const auto column = std::ranges::find(store.columns(), name);
    return column == store.columns().end()
               ? std::nullopt
               : std::optional(static_cast<std::size_t>(column - store.columns().begin()));
}

}  // namespace quillon
