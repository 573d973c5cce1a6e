// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/LogStore.h"
#include "Tallyrig/Log/ADIFWriter.h"

#include <utility>

namespace quillon {

using tallyrig::ADIFRecord;
using tallyrig::UUID;

void LogStore::noteSelection() {
    state.selectionRevision = rowSelection.revision();
}

void LogStore::changeSelection(Selection selection) {
    rowSelection.select(std::move(selection));
    noteSelection();
}

void LogStore::setSelection(Selection selection, std::optional<UUID> anchor) {
    const Operation operation(*this);
    rowSelection.setAnchor(anchor);
    changeSelection(std::move(selection));
}

void LogStore::selectRow(UUID id, ClickModifiers modifiers) {
    const Operation operation(*this);
    rowSelection.click(id, modifiers, rowsOnScreen());
    noteSelection();
}

void LogStore::selectRecord(std::size_t index) {
    if (index < state.document.records().size()) {
        const UUID id = state.document.records()[index].id();
        setSelection({id}, id);
    }
}

std::optional<UUID> LogStore::showRecord(std::size_t index) {
    const auto& records = state.document.records();
    if (index >= records.size()) {
        return std::nullopt;
    }
    const Operation operation(*this);
    selectRecord(index);
    setMode(AppMode::check);
    return records[index].id();
}

void LogStore::selectAllDisplayed() {
    const Operation operation(*this);
    const RowsOnScreen shown = rowsOnScreen();
    changeSelection(idsInRows(shown, 0, shown.size()));
}

const ADIFRecord* LogStore::selectedRecord() const {
    const auto index = selection().size() == 1 ? indexOf(*selection().begin()) : std::nullopt;
    return index ? &state.document.records()[*index] : nullptr;
}

std::size_t LogStore::hiddenSelectionCount() const {
    return rowSelection.countOutside(rows.filtered(state.document.records(), state.order));
}

std::string LogStore::selectionAsADIF() const {
    std::vector<ADIFRecord> selected;
    for (const std::uint32_t position : rowSelection.positionsIn(state.document.records())) {
        selected.push_back(state.document.records()[position]);
    }
    const tallyrig::ADIFDocument document("", {}, tallyrig::ADIFRecordList(std::move(selected)));
    return tallyrig::ADIFWriter{
        .programID = {}, .programVersion = {}, .adifVersion = {}, .writeHeader = false}
        .write(document);
}

}  // namespace quillon
