#include "Quillon/Stores/LogStore.h"
#include "Quillon/Stores/LogStoreDisplay.h"
#include "Quillon/Stores/LogStoreOperation.h"
#include "Tallyrig/Log/ADIFWriter.h"

#include <algorithm>
#include <utility>

namespace quillon {

using tallyrig::ADIFRecord;
using tallyrig::UUID;

void LogStore::changeSelection(Selection selection) {
    if (selection != state.selection) {
        state.selection = std::move(selection);
        ++state.selectionRevision;
    }
}

/// Drops the ids of records that the log does not hold.
void LogStore::reduceSelectionToDocument() {
    const tallyrig::ADIFRecordList& records = state.document.records();
    Selection kept;
    // A few are looked up one by one; for many, one walk through the log is the shorter way.
    if (state.selection.size() < records.size() / 32) {
        kept = state.selection;
        std::erase_if(kept, [&](UUID id) { return !records.indexOf(id); });
    } else {
        for (const ADIFRecord& record : records) {
            if (state.selection.contains(record.id())) {
                kept.insert(record.id());
            }
        }
    }
    changeSelection(std::move(kept));
}

void LogStore::setSelection(Selection selection, std::optional<UUID> anchor) {
    const Operation operation(*this);
    changeSelection(std::move(selection));
    state.selectionAnchor = anchor;
}

void LogStore::selectRow(UUID id, ClickModifiers modifiers) {
    const Operation operation(*this);
    if (modifiers.shift && state.selectionAnchor) {
        const auto anchorRow = displayedRow(*state.selectionAnchor);
        const auto row = displayedRow(id);
        if (anchorRow && row) {
            const auto [first, last] = std::minmax(*anchorRow, *row);
            changeSelection(idsInRows(first, last + 1));
            return;
        }
    }
    if (!modifiers.command) {
        changeSelection({id});
    } else {
        if (state.selection.erase(id) == 0) {
            state.selection.insert(id);
        }
        ++state.selectionRevision;
    }
    state.selectionAnchor = id;
}

void LogStore::selectRecord(std::size_t index) {
    if (index >= state.document.records().size()) {
        return;
    }
    const UUID id = state.document.records()[index].id();
    setSelection({id}, id);
}

void LogStore::selectAllDisplayed() {
    const Operation operation(*this);
    changeSelection(idsInRows(0, displayedCount()));
}

/// The ids of the records in the rows from `first` to before `end`.
LogStore::Selection LogStore::idsInRows(std::size_t first, std::size_t end) const {
    Selection ids;
    ids.reserve(end - first);
    for (std::size_t row = first; row < end; ++row) {
        ids.insert(displayedRecord(row).id());
    }
    return ids;
}

const ADIFRecord* LogStore::selectedRecord() const {
    const auto index = state.selection.size() == 1 ? indexOf(*state.selection.begin()) : std::nullopt;
    return index ? &state.document.records()[*index] : nullptr;
}

std::size_t LogStore::hiddenSelectionCount() const {
    const Display::Rows* const rows = display->filtered(state);
    if (rows == nullptr || state.selection.empty()) {
        return 0;
    }
    const tallyrig::ADIFRecordList& records = state.document.records();
    const auto shown = std::ranges::count_if(
        *rows, [&](std::uint32_t index) { return state.selection.contains(records[index].id()); });
    return state.selection.size() - static_cast<std::size_t>(shown);
}

std::string LogStore::selectionAsADIF() const {
    std::vector<ADIFRecord> selected;
    for (const ADIFRecord& record : state.document.records()) {
        if (state.selection.contains(record.id())) {
            selected.push_back(record);
        }
    }
    const tallyrig::ADIFDocument document("", {}, tallyrig::ADIFRecordList(std::move(selected)));
    return tallyrig::ADIFWriter{
        .programID = {}, .programVersion = {}, .adifVersion = {}, .writeHeader = false}
        .write(document);
}

}  // namespace quillon
