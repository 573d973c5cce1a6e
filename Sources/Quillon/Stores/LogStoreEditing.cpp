#include "Quillon/Stores/LogStore.h"
#include "Quillon/Stores/LogStoreOperation.h"
#include "Tallyrig/Log/ADIFParser.h"
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
    state.beforeStep = nullptr;
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
    state.beforeStep = &to;
    noteHistory();
}

RecordChanges LogStore::changesOfLastStep() const {
    return state.beforeStep == nullptr
               ? RecordChanges()
               : changesBetween(state.beforeStep->back().document.records(), state.document.records());
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
    state.beforeStep = nullptr;
    noteHistory();
}

void LogStore::noteHistory() {
    state.canUndo = !state.undoStack.empty();
    state.canRedo = !state.redoStack.empty();
}

std::string_view LogStore::cell(UUID recordID, std::string_view column) const {
    const auto index = indexOf(recordID);
    return index ? state.document.records()[*index].valueOrEmpty(column) : std::string_view();
}

void LogStore::setCell(UUID recordID, std::string_view column, std::string_view value) {
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

TextBinding LogStore::cellBinding(UUID recordID, const std::string& column) {
    const QPointer<LogStore> store(this);
    return {[store, recordID, column] { return std::string(store ? store->cell(recordID, column) : ""); },
            [store, recordID, column](std::string_view value) {
                if (store) {
                    store->setCell(recordID, column, value);
                }
            }};
}

std::string_view LogStore::field(UUID recordID, std::size_t fieldIndex) const {
    const auto index = indexOf(recordID);
    if (!index || fieldIndex >= state.document.records()[*index].fields().size()) {
        return {};
    }
    return state.document.records()[*index].fields()[fieldIndex].value;
}

void LogStore::setField(UUID recordID, std::size_t fieldIndex, std::string_view value) {
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

TextBinding LogStore::fieldBinding(UUID recordID, std::size_t fieldIndex) {
    const QPointer<LogStore> store(this);
    return {[store, recordID, fieldIndex] {
                return std::string(store ? store->field(recordID, fieldIndex) : "");
            },
            [store, recordID, fieldIndex](std::string_view value) {
                if (store) {
                    store->setField(recordID, fieldIndex, value);
                }
            }};
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

std::size_t LogStore::pasteRecords(std::string_view adif) {
    tallyrig::ADIFDocument pasted = tallyrig::ADIFParser::parse(adif);
    // Any text may stand in the clipboard, and what looks like a tag makes a field.
    pasted.records().removeIf([](const ADIFRecord& record) { return record.stored().allValues().empty(); });
    if (pasted.records().empty()) {
        return 0;
    }
    const Operation operation(*this);
    commitUndo(currentSnapshot());
    Selection ids;
    for (const ADIFRecord& record : pasted.records()) {
        ids.insert(record.id());
        state.document.records().append(record);
    }
    for (const std::string& name : pasted.fieldNames()) {
        if (!columnExists(name)) {
            state.columns.push_back(name);
        }
    }
    changeSelection(std::move(ids));
    state.isDirty = true;
    clearCheckResults();
    return pasted.records().size();
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
