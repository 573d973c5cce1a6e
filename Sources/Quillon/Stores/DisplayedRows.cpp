// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/DisplayedRows.h"

#include "Quillon/Stores/RecordOrder.h"
#include "Tallyrig/Log/RecordFilter.h"

#include <algorithm>
#include <numeric>

namespace quillon {

std::optional<std::size_t> RowsOnScreen::rowOf(tallyrig::UUID id) const {
    const auto place = records.indexOf(id);
    if (!place || positions == nullptr) {
        return place;
    }
    const auto row = std::ranges::find(*positions, *place);
    return row == positions->end() ? std::nullopt
                                   : std::optional(static_cast<std::size_t>(row - positions->begin()));
}

RowsOnScreen DisplayedRows::filtered(const tallyrig::ADIFRecordList& records, const RowOrder& order) {
    if (order.searchText.empty()) {
        kept.reset();
        return {records, nullptr};
    }
    const RowOrder unsorted{order.searchText, std::nullopt, true};
    if (!kept || !kept->isFor(records, unsorted)) {
        kept = Known{records, unsorted, tallyrig::recordsContaining(records, order.searchText)};
    }
    return {records, &kept->positions};
}

RowsOnScreen DisplayedRows::displayed(const tallyrig::ADIFRecordList& records, const RowOrder& order) {
    if (!order.sortColumn) {
        sorted.reset();
        return filtered(records, order);
    }
    if (!sorted || !sorted->isFor(records, order)) {
        RowsOnScreen::Positions positions;
        if (filtered(records, order).areAll()) {
            positions.resize(records.size());
            std::iota(positions.begin(), positions.end(), 0U);
        } else {
            positions = kept->positions;
        }
        const auto direction = order.sortAscending ? SortDirection::ascending : SortDirection::descending;
        sorted = Known{records, order, sortedByColumn(records, positions, *order.sortColumn, direction)};
    }
    return {records, &sorted->positions};
}

}  // namespace quillon
