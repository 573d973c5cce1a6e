// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Grid/CellView.h"
#include "Quillon/Views/Grid/ColumnHeaderCell.h"
#include "Quillon/Views/Table/StatusGutterCell.h"
#include "Quillon/Views/Table/TableBody.h"
#include "Quillon/Views/Table/TableHeader.h"

// What those are told who do not see the table.

namespace quillon {

double TableBody::headerHeight() const {
    return ColumnHeaderCell::height();
}

QString TableBody::cellText(CellPosition cell) const {
    return CellView{store.displayedRecord(cell.row), store.columns()[cell.column]}.text();
}

QString TableBody::columnTitle(std::size_t column) const {
    return ColumnHeaderCell{store.columns()[column]}.label();
}

QString TableBody::columnRemark(std::size_t column) const {
    const std::string& name = store.columns()[column];
    return ColumnHeaderCell{name, TableHeader::sortOf(store, name)}.remark();
}

QString TableBody::rowTitle(std::size_t row) const {
    return QStringLiteral("Zeile ") + QString::number(store.displayedIndex(row) + 1);
}

QString TableBody::rowRemark(std::size_t row) const {
    const QSORowView shown = rowView(row);
    if (!shown.severity) {
        return {};
    }
    const bool isError = *shown.severity == tallyrig::ValidationSeverity::error;
    return (isError ? QStringLiteral("Fehler: ") : QStringLiteral("Warnung: ")) +
           StatusGutterCell{shown.severity, store.recordIssueMessages(shown.record.id())}.toolTip();
}

bool TableBody::isRowSelected(std::size_t row) const {
    return rowView(row).isSelected;
}

void TableBody::toggleRow(std::size_t row) {
    store.selectRow(store.displayedRecord(row).id(), {.command = true});
}

void TableBody::pressCell(CellPosition cell) {
    setCurrentCell(cell);
    select(current.content().record, {});
}

void TableBody::pressColumn(std::size_t column) {
    store.toggleSort(store.columns()[column]);
}

}  // namespace quillon
