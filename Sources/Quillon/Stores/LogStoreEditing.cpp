#include "Quillon/Stores/LogStore.h"
#include "Quillon/Stores/LogStoreOperation.h"
#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Text/Text.h"

#include <QPointer>

#include <algorithm>
#include <array>
#include <utility>

namespace quillon {

namespace {

namespace text = tallyrig::text;

using tallyrig::ADIFField;
using tallyrig::ADIFRecord;
using tallyrig::UUID;

constexpr std::size_t mostUndoSteps = 100;

}  // namespace

LogStore::EditSnapshot LogStore::currentSnapshot() const {
    return {state.document, state.columns, state.isDirty};
}

void LogStore::commitUndo(EditSnapshot snapshot, std::optional<std::string> coalescingKey) {
    state.undoStack.push_back(std::move(snapshot));
    if (state.undoStack.size() > mostUndoSteps) {
        state.undoStack.erase(state.undoStack.begin());
    }
    state.redoStack.clear();
    state.coalesceKey = std::move(coalescingKey);
    noteHistory();
}

void LogStore::commitTyping(std::string key) {
    if (!state.coalesceKey || !text::equal(*state.coalesceKey, key)) {
        commitUndo(currentSnapshot(), std::move(key));
    }
}

void LogStore::undo() {
    step(state.undoStack, state.redoStack);
}

void LogStore::redo() {
    step(state.redoStack, state.undoStack);
}

void LogStore::step(std::vector<EditSnapshot>& from, std::vector<EditSnapshot>& to) {
    if (from.empty()) {
        return;
    }
    const Operation operation(*this);
    EditSnapshot snapshot = std::move(from.back());
    from.pop_back();
    to.push_back(currentSnapshot());
    apply(std::move(snapshot));
    state.coalesceKey.reset();
    noteHistory();
}

void LogStore::apply(EditSnapshot snapshot) {
    state.document = std::move(snapshot.document);
    state.columns = std::move(snapshot.columns);
    state.isDirty = snapshot.isDirty;
    reduceSelectionToDocument();
    if (state.selectionAnchor && !state.selection.contains(*state.selectionAnchor)) {
        state.selectionAnchor.reset();
    }
    clearCheckResults();
}

void LogStore::resetHistory() {
    state.undoStack.clear();
    state.redoStack.clear();
    state.coalesceKey.reset();
    noteHistory();
}

void LogStore::noteHistory() {
    state.canUndo = !state.undoStack.empty();
    state.canRedo = !state.redoStack.empty();
}

TextBinding LogStore::cellBinding(UUID recordID, const std::string& column) {
    const QPointer<LogStore> store(this);
    return {[store, recordID, column] {
                const auto index = store ? store->indexOf(recordID) : std::nullopt;
                return std::string(index ? store->document().records()[*index].valueOrEmpty(column) : "");
            },
            [store, recordID, column](std::string_view value) {
                if (store) {
                    store->writeCell(recordID, column, value);
                }
            }};
}

void LogStore::writeCell(UUID recordID, const std::string& column, std::string_view value) {
    const auto index = indexOf(recordID);
    if (!index || text::equal(state.document.records()[*index].valueOrEmpty(column), value)) {
        return;
    }
    const Operation operation(*this);
    commitTyping("cell:" + recordID.text() + ":" + text::upper(column));
    state.document.records().modify(*index, [&](ADIFRecord& record) {
        record.set(column, value.empty() ? std::nullopt : std::optional(value));
    });
    state.isDirty = true;
}

TextBinding LogStore::fieldBinding(UUID recordID, std::size_t fieldIndex) {
    const QPointer<LogStore> store(this);
    return {[store, recordID, fieldIndex] {
                const auto index = store ? store->indexOf(recordID) : std::nullopt;
                if (!index || fieldIndex >= store->document().records()[*index].fields().size()) {
                    return std::string();
                }
                return std::string(store->document().records()[*index].fields()[fieldIndex].value);
            },
            [store, recordID, fieldIndex](std::string_view value) {
                if (store) {
                    store->writeField(recordID, fieldIndex, value);
                }
            }};
}

void LogStore::writeField(UUID recordID, std::size_t fieldIndex, std::string_view value) {
    const auto index = indexOf(recordID);
    if (!index) {
        return;
    }
    const tallyrig::ADIFFields fields = state.document.records()[*index].fields();
    if (fieldIndex >= fields.size() || text::equal(fields[fieldIndex].value, value)) {
        return;
    }
    const Operation operation(*this);
    commitTyping("field:" + recordID.text() + ":" + std::to_string(fieldIndex));
    state.document.records().modify(*index, [&](ADIFRecord& record) { record.setValue(fieldIndex, value); });
    state.isDirty = true;
}

void LogStore::addField(UUID recordID, std::string_view name) {
    const auto index = indexOf(recordID);
    if (!index) {
        return;
    }
    const Operation operation(*this);
    commitUndo(currentSnapshot());
    state.document.records().modify(*index,
                                    [&](ADIFRecord& record) { record.appendField(ADIFField(name, "")); });
    const std::string column = cleanedFieldName(name);
    if (!columnExists(name) && !columnExists(column)) {
        state.columns.push_back(column);
    }
    state.isDirty = true;
}

void LogStore::removeField(UUID recordID, std::size_t fieldIndex) {
    const auto index = indexOf(recordID);
    if (!index || fieldIndex >= state.document.records()[*index].fields().size()) {
        return;
    }
    const Operation operation(*this);
    commitUndo(currentSnapshot());
    state.document.records().modify(*index, [&](ADIFRecord& record) { record.removeFieldAt(fieldIndex); });
    state.isDirty = true;
}

void LogStore::addRecord() {
    const Operation operation(*this);
    commitUndo(currentSnapshot());
    const std::array fields = {ADIFField("CALL", "")};
    ADIFRecord record(fields);
    changeSelection({record.id()});
    state.document.records().append(std::move(record));
    state.isDirty = true;
    clearCheckResults();
}

void LogStore::deleteSelected() {
    if (state.selection.empty()) {
        return;
    }
    const Operation operation(*this);
    commitUndo(currentSnapshot());
    state.document.records().removeIf(
        [this](const ADIFRecord& record) { return state.selection.contains(record.id()); });
    changeSelection({});
    state.isDirty = true;
    clearCheckResults();
}

void LogStore::setColumnValue(std::string_view column, std::string_view value,
                              tallyrig::ColumnTarget target) {
    const Operation operation(*this);
    EditSnapshot before = currentSnapshot();
    commitBulkEdit(std::move(before), state.document.setColumn(column, value, target));
}

void LogStore::replaceInColumn(std::string_view column, std::string_view find, std::string_view replacement) {
    const Operation operation(*this);
    EditSnapshot before = currentSnapshot();
    commitBulkEdit(std::move(before), state.document.replaceInColumn(column, find, replacement));
}

void LogStore::commitBulkEdit(EditSnapshot before, std::size_t changedRecords) {
    if (changedRecords == 0) {
        return;
    }
    commitUndo(std::move(before));
    state.isDirty = true;
    clearCheckResults();
}

}  // namespace quillon
