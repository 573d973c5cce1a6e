// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/LogStore.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Text/Text.h"

#include <QPointer>

#include <array>
#include <utility>

namespace quillon {

namespace text = tallyrig::text;

using tallyrig::ADIFField;
using tallyrig::ADIFRecord;
using tallyrig::UUID;

namespace {

/// By which the writes to one field make one step back.
std::string fieldKey(UUID recordID, std::size_t fieldIndex) {
    return "field:" + recordID.text() + ":" + std::to_string(fieldIndex);
}

bool hasValue(const ADIFRecord& record) {
    for (const tallyrig::ADIFFieldView field : record.fields()) {
        if (!field.value.empty()) {
            return true;
        }
    }
    return false;
}

}  // namespace

EditHistory::Snapshot LogStore::currentSnapshot() const {
    return {state.document, state.columns.names(), state.isDirty, state.reading};
}

void LogStore::commitUndo(EditHistory::Snapshot before, std::optional<std::string> coalescingKey) {
    history.commit(std::move(before), std::move(coalescingKey));
    noteHistory();
}

void LogStore::noteHistory() {
    state.canUndo = history.canUndo();
    state.canRedo = history.canRedo();
}

void LogStore::undo() {
    takeStep(&EditHistory::undo);
}

void LogStore::redo() {
    takeStep(&EditHistory::redo);
}

void LogStore::takeStep(std::optional<EditHistory::Snapshot> (EditHistory::*step)(EditHistory::Snapshot)) {
    const Operation operation(*this);
    // A copy, which shares the logs, so that the step is not lost if memory runs out on the way.
    EditHistory stepped = history;
    auto snapshot = (stepped.*step)(currentSnapshot());
    if (!snapshot) {
        return;
    }
    state.document = std::move(snapshot->document);
    state.columns.setNames(std::move(snapshot->columns));
    state.isDirty = snapshot->isDirty;
    state.reading = std::move(snapshot->reading);
    clearCheckResults();
    rowSelection.reduceTo(state.document.records());
    noteSelection();
    history = std::move(stepped);
    noteHistory();
}

RecordChanges LogStore::changesOfLastStep() const {
    const EditHistory::Snapshot* const before = history.beforeLatestStep();
    return before == nullptr ? RecordChanges()
                             : changesBetween(before->document.records(), state.document.records());
}

void LogStore::editRecord(std::size_t index, const std::function<void(ADIFRecord&)>& change,
                          std::optional<std::string> coalescingKey) {
    const Operation operation(*this);
    EditHistory::Snapshot before = currentSnapshot();
    state.document.records().modify(index, change);
    state.isDirty = true;
    commitUndo(std::move(before), std::move(coalescingKey));
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
    editRecord(
        *index,
        [&](ADIFRecord& record) { record.set(column, value.empty() ? std::nullopt : std::optional(value)); },
        "cell:" + recordID.text() + ":" + text::upper(column));
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
    editRecord(
        *index, [&](ADIFRecord& record) { record.setValue(fieldIndex, value); },
        fieldKey(recordID, fieldIndex));
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

void LogStore::addField(UUID recordID, std::string_view name, std::string_view value) {
    const auto index = indexOf(recordID);
    if (!index) {
        return;
    }
    const Operation operation(*this);
    EditHistory::Snapshot before = currentSnapshot();
    state.document.records().modify(
        *index, [&](ADIFRecord& record) { record.appendField(ADIFField(name, std::string(value))); });
    if (!columnExists(name)) {
        state.columns.append(cleanedFieldName(name));
    }
    state.isDirty = true;
    const std::size_t fieldIndex = state.document.records()[*index].fields().size() - 1;
    commitUndo(std::move(before),
               value.empty() ? std::nullopt : std::optional(fieldKey(recordID, fieldIndex)));
}

void LogStore::removeField(UUID recordID, std::size_t fieldIndex) {
    const auto index = indexOf(recordID);
    if (index && fieldIndex < state.document.records()[*index].fields().size()) {
        editRecord(*index, [&](ADIFRecord& record) { record.removeFieldAt(fieldIndex); });
    }
}

void LogStore::addRecord() {
    const Operation operation(*this);
    EditHistory::Snapshot before = currentSnapshot();
    const std::array fields = {ADIFField("CALL", "")};
    ADIFRecord record(fields);
    Selection added = {record.id()};
    state.document.records().append(std::move(record));
    finishBulkEdit(std::move(before), 1);
    changeSelection(std::move(added));
}

std::size_t LogStore::pasteRecords(std::string_view adif) {
    tallyrig::ADIFDocument pasted = tallyrig::ADIFParser::parse(adif);
    // Any text may stand in the clipboard, and what looks like a tag makes a field.
    pasted.records().removeIf([](const ADIFRecord& record) { return !hasValue(record); });
    if (pasted.records().empty()) {
        return 0;
    }
    const Operation operation(*this);
    EditHistory::Snapshot before = currentSnapshot();
    Selection ids;
    for (const ADIFRecord& record : pasted.records()) {
        ids.insert(record.id());
        state.document.records().append(record);
    }
    for (std::string& name : pasted.fieldNames()) {
        state.columns.append(std::move(name));
    }
    finishBulkEdit(std::move(before), pasted.records().size());
    changeSelection(std::move(ids));
    return pasted.records().size();
}

void LogStore::deleteSelected() {
    if (selection().empty()) {
        return;
    }
    const Operation operation(*this);
    EditHistory::Snapshot before = currentSnapshot();
    state.document.records().removeIf(
        [this](const ADIFRecord& record) { return selection().contains(record.id()); });
    finishBulkEdit(std::move(before), selection().size());
    changeSelection({});
}

void LogStore::setColumnValue(std::string_view column, std::string_view value,
                              tallyrig::ColumnTarget target) {
    const Operation operation(*this);
    EditHistory::Snapshot before = currentSnapshot();
    finishBulkEdit(std::move(before), state.document.setColumn(column, value, target));
}

void LogStore::replaceInColumn(std::string_view column, std::string_view find, std::string_view replacement) {
    const Operation operation(*this);
    EditHistory::Snapshot before = currentSnapshot();
    finishBulkEdit(std::move(before), state.document.replaceInColumn(column, find, replacement));
}

void LogStore::finishBulkEdit(EditHistory::Snapshot before, std::size_t changedRecords) {
    if (changedRecords > 0) {
        state.isDirty = true;
        clearCheckResults();
        commitUndo(std::move(before));
    }
}

}  // namespace quillon
