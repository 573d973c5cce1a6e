#include "Quillon/Stores/LogStoreDisplay.h"

#include "Quillon/Stores/LogStoreOperation.h"
#include "Quillon/Stores/RecordFilter.h"
#include "Quillon/Stores/RecordOrder.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <numeric>

namespace quillon {

namespace text = tallyrig::text;

const LogStore::Display::Rows* LogStore::Display::filtered(const Observed& now) {
    if (now.searchText.isEmpty()) {
        filter.reset();
        return nullptr;
    }
    const tallyrig::ADIFRecordList& records = now.document.records();
    if (!filter || !filter->records.isSameAs(records) || filter->searchText != now.searchText) {
        filter = Filter{records, now.searchText, recordsContaining(records, now.searchText.toStdString())};
    }
    return &filter->rows;
}

const LogStore::Display::Rows* LogStore::Display::displayed(const Observed& now) {
    const Rows* const kept = filtered(now);
    if (!now.sortColumn) {
        order.reset();
        return kept;
    }
    const tallyrig::ADIFRecordList& records = now.document.records();
    if (!order || !order->records.isSameAs(records) || order->searchText != now.searchText ||
        order->column != *now.sortColumn || order->ascending != now.sortAscending) {
        Rows all;
        if (kept == nullptr) {
            all.resize(records.size());
            std::iota(all.begin(), all.end(), 0U);
        }
        order =
            Order{records, now.searchText, *now.sortColumn, now.sortAscending,
                  sortedByColumn(records, kept != nullptr ? *kept : all, *now.sortColumn,
                                 now.sortAscending ? SortDirection::ascending : SortDirection::descending)};
    }
    return &order->rows;
}

void LogStore::toggleSort(std::string_view name) {
    const Operation operation(*this);
    std::string column = text::upper(name);
    if (state.sortColumn && text::equal(*state.sortColumn, column)) {
        state.sortAscending = !state.sortAscending;
    } else {
        state.sortColumn = std::move(column);
        state.sortAscending = true;
    }
}

void LogStore::clearSort() {
    const Operation operation(*this);
    state.sortColumn.reset();
}

void LogStore::setSearchText(const QString& searchText) {
    const Operation operation(*this);
    state.searchText = searchText;
}

std::size_t LogStore::filteredCount() const {
    const Display::Rows* const rows = display->filtered(state);
    return rows != nullptr ? rows->size() : state.document.records().size();
}

std::size_t LogStore::displayedCount() const {
    return filteredCount();
}

const tallyrig::ADIFRecord& LogStore::displayedRecord(std::size_t row) const {
    return state.document.records()[displayedIndex(row)];
}

std::size_t LogStore::displayedIndex(std::size_t row) const {
    const Display::Rows* const rows = display->displayed(state);
    return rows != nullptr ? (*rows)[row] : row;
}

std::optional<std::size_t> LogStore::displayedRow(tallyrig::UUID id) const {
    const auto index = indexOf(id);
    const Display::Rows* const rows = display->displayed(state);
    if (!index || rows == nullptr) {
        return index;
    }
    const auto row = std::ranges::find(*rows, *index);
    return row == rows->end() ? std::nullopt : std::optional(static_cast<std::size_t>(row - rows->begin()));
}

}  // namespace quillon
