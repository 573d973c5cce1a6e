// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/ColumnFitting.h"
#include "Quillon/Stores/LogStore.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Text/VisibleText.h"

#include <cmath>
#include <utility>

namespace quillon {

namespace text = tallyrig::text;

QString LogStore::invalidFieldNameMessage(std::string_view name) {
    return QStringLiteral(
               "«%1» ist kein gültiger ADIF-Feldname.\n"
               "Erlaubt sind A–Z, 0–9 und _, beginnend mit einem Buchstaben (z. B. SOTA_REF).")
        .arg(QString::fromStdString(text::visibleText(text::trimmedOfBlanks(name))));
}

bool LogStore::addColumn(std::string_view name) {
    const Operation operation(*this);
    EditHistory::Snapshot before = currentSnapshot();
    if (!state.columns.add(name)) {
        return false;
    }
    commitUndo(std::move(before));
    return true;
}

bool LogStore::renameColumn(std::string_view old, std::string_view newName) {
    const Operation operation(*this);
    EditHistory::Snapshot before = currentSnapshot();
    const ColumnLayout::Renaming renaming = state.columns.rename(old, newName);
    if (renaming != ColumnLayout::Renaming::done) {
        return renaming == ColumnLayout::Renaming::needless;
    }
    const std::string source = text::upper(old);
    const std::string target = cleanedFieldName(newName);
    if (state.order.sortColumn && text::equal(*state.order.sortColumn, source)) {
        state.order.sortColumn = target;
    }
    state.document.renameColumn(source, target);
    state.isDirty = true;
    commitUndo(std::move(before));
    return true;
}

void LogStore::duplicateColumn(std::string_view name) {
    const Operation operation(*this);
    EditHistory::Snapshot before = currentSnapshot();
    if (const auto copy = state.columns.duplicate(name)) {
        state.document.duplicateColumn(name, *copy);
        state.isDirty = true;
        commitUndo(std::move(before));
    }
}

void LogStore::removeColumn(std::string_view name) {
    const Operation operation(*this);
    EditHistory::Snapshot before = currentSnapshot();
    state.document.removeColumn(name);
    const bool hadData = !state.document.isSameAs(before.document);
    const bool wasColumn = state.columns.remove(name);
    if (!hadData && !wasColumn) {
        return;
    }
    if (state.order.sortColumn && text::equal(*state.order.sortColumn, text::upper(name))) {
        state.order.sortColumn.reset();
    }
    state.isDirty = state.isDirty || hadData;
    commitUndo(std::move(before));
}

void LogStore::moveColumnBy(std::string_view name, int offset) {
    const Operation operation(*this);
    EditHistory::Snapshot before = currentSnapshot();
    if (state.columns.moveBy(name, offset)) {
        commitUndo(std::move(before));
    }
}

void LogStore::moveColumnBefore(std::string_view name, std::string_view target) {
    const Operation operation(*this);
    EditHistory::Snapshot before = currentSnapshot();
    if (state.columns.moveBefore(name, target)) {
        commitUndo(std::move(before));
    }
}

void LogStore::setWidth(double width, std::string_view name) {
    const Operation operation(*this);
    state.columns.setWidth(width, name);
}

void LogStore::scaleWidths(double factor) {
    const Operation operation(*this);
    for (const std::string& column : state.columns.names()) {
        state.columns.setWidth(std::round(state.columns.width(column) * factor), column);
    }
}

void LogStore::autoFitColumns() {
    autoFitColumns(columns());
}

void LogStore::autoFitColumns(const std::vector<std::string>& list) {
    const Operation operation(*this);
    const std::vector<double> widths = fittingWidths(list, state.document.records(), measurer);
    for (std::size_t column = 0; column < list.size(); ++column) {
        state.columns.setWidth(widths[column], list[column]);
    }
}

double LogStore::fittingWidth(std::string_view name) const {
    return fittingWidths({std::string(name)}, state.document.records(), measurer).front();
}

}  // namespace quillon
