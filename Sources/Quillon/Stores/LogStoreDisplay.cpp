// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/LogStore.h"
#include "Tallyrig/Text/Text.h"

#include <unordered_set>
#include <utility>

namespace quillon {

namespace text = tallyrig::text;

void LogStore::toggleSort(std::string_view name) {
    const Operation operation(*this);
    std::string column = text::upper(name);
    if (state.order.sortColumn && text::equal(*state.order.sortColumn, column)) {
        state.order.sortAscending = !state.order.sortAscending;
    } else {
        state.order.sortColumn = std::move(column);
        state.order.sortAscending = true;
    }
}

void LogStore::clearSort() {
    const Operation operation(*this);
    state.order.sortColumn.reset();
}

void LogStore::setSearchText(const QString& searchText) {
    const Operation operation(*this);
    state.order.searchText = searchText.toStdString();
}

std::size_t LogStore::filteredCount() const {
    return rows.filtered(state.document.records(), state.order).size();
}

std::size_t LogStore::displayedCount() const {
    return filteredCount();
}

const tallyrig::ADIFRecord& LogStore::displayedRecord(std::size_t row) const {
    return rowsOnScreen().record(row);
}

std::size_t LogStore::displayedIndex(std::size_t row) const {
    return rowsOnScreen().index(row);
}

std::optional<std::size_t> LogStore::displayedRow(tallyrig::UUID id) const {
    return rowsOnScreen().rowOf(id);
}

std::optional<std::size_t> LogStore::firstDisplayedRow(const std::vector<tallyrig::UUID>& ids) const {
    if (ids.size() == 1) {
        return displayedRow(ids.front());
    }
    const std::unordered_set<tallyrig::UUID> sought(ids.begin(), ids.end());
    const RowsOnScreen shown = rowsOnScreen();
    for (std::size_t row = 0; row < shown.size() && !sought.empty(); ++row) {
        if (sought.contains(shown.record(row).id())) {
            return row;
        }
    }
    return std::nullopt;
}

}  // namespace quillon
