// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Grid/TableAccessibility.h"

#include "Quillon/Views/Grid/AccessibleTable.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <QWidget>

#include <cstddef>
#include <unordered_map>

namespace quillon {
namespace {

// Assistive technology counts in `int`, from 0; the header is the row in front of the first.

int columnCount(const AccessibleTable& table) {
    return static_cast<int>(table.tableGeometry().columnCount());
}

int rowCount(const AccessibleTable& table) {
    return static_cast<int>(table.tableGeometry().rowCount());
}

int childIndex(const AccessibleTable& table, int row, int column) {
    return (row + 1) * columnCount(table) + column;
}

/// The table that a widget paints; null if it paints none.
AccessibleTable* tableIn(QObject* object) {
    return dynamic_cast<AccessibleTable*>(object);
}

/// A cell that is not a widget: what column headers and the cells of records have in common.
class CellBase : public QAccessibleInterface {
  public:
    CellBase(QWidget& tableWidget, int cellRow, int cellColumn)
        : widget(&tableWidget), row(cellRow), column(cellColumn) {}
    int indexInTable() const { return widget ? childIndex(shown(), row, column) : -1; }

    bool isValid() const override { return widget && column < columnCount(shown()); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return isValid() ? parent()->window() : nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return widget ? QAccessible::queryAccessibleInterface(widget) : nullptr;
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}

  protected:
    AccessibleTable& shown() const { return *tableIn(widget); }
    std::size_t columnPosition() const { return static_cast<std::size_t>(column); }
    QRect onScreen(const QRectF& place) const {
        const QRect area = place.toRect();
        return {widget->mapToGlobal(area.topLeft()), area.size()};
    }

    QPointer<QWidget> widget;
    int row;  ///< -1 for the header.
    int column;
};

class HeaderCellInterface : public CellBase, public QAccessibleActionInterface {
  public:
    using CellBase::CellBase;

    QAccessible::Role role() const override { return QAccessible::ColumnHeader; }
    QAccessible::State state() const override { return {}; }
    QRect rect() const override {
        if (!isValid()) {
            return {};
        }
        QRectF place = shown().cellArea({0, columnPosition()});
        place.setTop(-shown().headerHeight());
        place.setBottom(0);
        return onScreen(place);
    }
    QString text(QAccessible::Text kind) const override {
        if (!isValid() || (kind != QAccessible::Name && kind != QAccessible::Description)) {
            return {};
        }
        return kind == QAccessible::Name ? shown().columnTitle(columnPosition())
                                         : shown().columnRemark(columnPosition());
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction() && isValid()) {
            shown().pressColumn(columnPosition());
        }
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
};

class CellInterface : public CellBase,
                      public QAccessibleTableCellInterface,
                      public QAccessibleActionInterface {
  public:
    using CellBase::CellBase;

    bool isValid() const override { return CellBase::isValid() && row < rowCount(shown()); }
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.selectable = true;
        state.focusable = true;
        state.editable = shown().isCellEditable(position());
        state.selected = isSelected();
        state.focused = widget->hasFocus() && shown().currentCell() == position();
        state.offscreen = !shown().cellArea(position()).intersects(widget->rect());
        return state;
    }
    QRect rect() const override { return isValid() ? onScreen(shown().cellArea(position())) : QRect(); }
    QString text(QAccessible::Text kind) const override {
        if (!isValid()) {
            return {};
        }
        switch (kind) {
            case QAccessible::Name:
            case QAccessible::Value:
                return shown().cellText(position());
            case QAccessible::Description:
                return shown().rowRemark(position().row);
            default:
                return {};
        }
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        switch (type) {
            case QAccessible::TableCellInterface:
                return static_cast<QAccessibleTableCellInterface*>(this);
            case QAccessible::ActionInterface:
                return static_cast<QAccessibleActionInterface*>(this);
            default:
                return nullptr;
        }
    }

    bool isSelected() const override { return isValid() && shown().isRowSelected(position().row); }
    QList<QAccessibleInterface*> columnHeaderCells() const override {
        return isValid() ? QList{parent()->child(column)} : QList<QAccessibleInterface*>();
    }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return column; }
    int rowIndex() const override { return row; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction() && isValid()) {
            shown().pressCell(position());
        }
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    CellPosition position() const {
        return {static_cast<std::size_t>(row), static_cast<std::size_t>(column)};
    }
};

class TableInterface : public QAccessibleWidget, public QAccessibleTableInterface {
  public:
    explicit TableInterface(QWidget& tableWidget) : QAccessibleWidget(&tableWidget, QAccessible::Table) {}
    ~TableInterface() override {
        for (const auto& [index, id] : cells) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    int childCount() const override { return (rowCount() + 1) * columnCount(); }
    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) {
            return nullptr;
        }
        if (columnCount() != columnsOfCells) {
            forgetCells();
        }
        const auto known = cells.find(index);
        if (known != cells.end()) {
            return QAccessible::accessibleInterface(known->second);
        }
        const int row = index / columnCount() - 1;
        const int column = index % columnCount();
        CellBase* cell = nullptr;
        if (row < 0) {
            cell = new HeaderCellInterface(*widget(), row, column);
        } else {
            cell = new CellInterface(*widget(), row, column);
        }
        // The registry of interfaces owns it from here on.
        cells.emplace(index, QAccessible::registerAccessibleInterface(cell));
        return cell;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* cell = dynamic_cast<const CellBase*>(child);
        return cell != nullptr ? cell->indexInTable() : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint point = widget()->mapFromGlobal(QPoint(x, y));
        const TableGeometry& geometry = shown().tableGeometry();
        if (geometry.columnCount() == 0) {
            return nullptr;
        }
        const QPointF origin = shown().cellArea({0, 0}).topLeft();
        const auto row = geometry.rowAt(point.y() - origin.y());
        const auto column = geometry.columnAt(point.x() - origin.x() + geometry.columnLeft(0));
        return row && column ? cellAt(static_cast<int>(*row), static_cast<int>(*column)) : nullptr;
    }
    QAccessibleInterface* focusChild() const override {
        const auto& current = shown().currentCell();
        return current && widget()->hasFocus()
                   ? cellAt(static_cast<int>(current->row), static_cast<int>(current->column))
                   : QAccessibleWidget::focusChild();
    }

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override {
        const bool exists = row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
        return exists ? child(childIndex(shown(), row, column)) : nullptr;
    }
    int rowCount() const override { return quillon::rowCount(shown()); }
    int columnCount() const override { return quillon::columnCount(shown()); }
    QString rowDescription(int row) const override {
        return row >= 0 && row < rowCount() ? shown().rowTitle(static_cast<std::size_t>(row)) : QString();
    }
    QString columnDescription(int column) const override {
        const QAccessibleInterface* header = column >= 0 && column < columnCount() ? child(column) : nullptr;
        return header != nullptr ? header->text(QAccessible::Name) : QString();
    }

    // Whole rows are selected, so that a selected cell is a cell of a selected row.
    QList<int> selectedRows() const override {
        QList<int> rows;
        for (int row = 0; row < rowCount(); ++row) {
            if (isRowSelected(row)) {
                rows.append(row);
            }
        }
        return rows;
    }
    int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
    QList<QAccessibleInterface*> selectedCells() const override {
        QList<QAccessibleInterface*> selected;
        for (const int row : selectedRows()) {
            for (int column = 0; column < columnCount(); ++column) {
                selected.append(cellAt(row, column));
            }
        }
        return selected;
    }
    int selectedCellCount() const override { return selectedRowCount() * columnCount(); }
    QList<int> selectedColumns() const override { return {}; }
    int selectedColumnCount() const override { return 0; }
    bool isRowSelected(int row) const override {
        return row >= 0 && row < rowCount() && shown().isRowSelected(static_cast<std::size_t>(row));
    }
    bool isColumnSelected(int) const override { return false; }
    bool selectRow(int row) override { return row < rowCount() && (isRowSelected(row) || toggle(row)); }
    bool unselectRow(int row) override { return isRowSelected(row) && toggle(row); }
    bool selectColumn(int) override { return false; }
    bool unselectColumn(int) override { return false; }

    void modelChange(QAccessibleTableModelChangeEvent*) override { forgetCells(); }

  private:
    AccessibleTable& shown() const { return *tableIn(widget()); }

    bool toggle(int row) {
        if (row < 0) {
            return false;
        }
        shown().toggleRow(static_cast<std::size_t>(row));
        return true;
    }

    void forgetCells() const {
        for (const auto& [index, id] : cells) {
            QAccessible::deleteAccessibleInterface(id);
        }
        cells.clear();
        columnsOfCells = columnCount();
    }

    mutable std::unordered_map<int, QAccessible::Id> cells;  ///< Those that were asked for, by child index.
    mutable int columnsOfCells = 0;  ///< The number of columns that the indices count by.
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) {
        return nullptr;
    }
    if (tableIn(widget) != nullptr) {
        return new TableInterface(*widget);
    }
    return dynamic_cast<AccessibleTableHeader*>(object) != nullptr
               ? new QAccessibleWidget(widget, QAccessible::ColumnHeader)
               : nullptr;
}

}  // namespace

void registerTableAccessibility() {
    QAccessible::installFactory(makeInterface);
}

void announceCurrentCell(QWidget& table) {
    const AccessibleTable* shown = tableIn(&table);
    if (!QAccessible::isActive() || !shown->currentCell() || !table.hasFocus()) {
        return;
    }
    QAccessibleEvent event(&table, QAccessible::Focus);
    event.setChild(childIndex(*shown, static_cast<int>(shown->currentCell()->row),
                              static_cast<int>(shown->currentCell()->column)));
    QAccessible::updateAccessibility(&event);
}

void announceSelection(QWidget& table) {
    if (QAccessible::isActive()) {
        QAccessibleEvent event(&table, QAccessible::SelectionWithin);
        QAccessible::updateAccessibility(&event);
    }
}

void announceOtherCells(QWidget& table) {
    QAccessibleTableModelChangeEvent event(&table, QAccessibleTableModelChangeEvent::ModelReset);
    QAccessible::updateAccessibility(&event);
}

}  // namespace quillon
