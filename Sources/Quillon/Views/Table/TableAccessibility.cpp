#include "Quillon/Views/Table/TableAccessibility.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Table/CellView.h"
#include "Quillon/Views/Table/ColumnHeaderCell.h"
#include "Quillon/Views/Table/StatusGutterCell.h"
#include "Quillon/Views/Table/TableBody.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <cstddef>
#include <unordered_map>

namespace quillon {
namespace {

// Assistive technology counts in `int`, from 0; the header is the row in front of the first.

int columnCount(const TableBody& body) {
    return static_cast<int>(body.tableGeometry().columnCount());
}

int rowCount(const TableBody& body) {
    return static_cast<int>(body.tableGeometry().rowCount());
}

int childIndex(const TableBody& body, int row, int column) {
    return (row + 1) * columnCount(body) + column;
}

QAccessibleInterface* interfaceOf(TableBody& body) {
    return QAccessible::queryAccessibleInterface(&body);
}

/// A cell that is not a widget: what column headers and the cells of records have in common.
class CellBase : public QAccessibleInterface {
  public:
    CellBase(TableBody& tableBody, int cellRow, int cellColumn)
        : body(&tableBody), row(cellRow), column(cellColumn) {}
    int indexInTable() const { return body ? childIndex(*body, row, column) : -1; }

    bool isValid() const override { return body && column < columnCount(*body); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return isValid() ? interfaceOf(*body)->window() : nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override { return body ? interfaceOf(*body) : nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}

  protected:
    const std::string& columnName() const { return body->log().columns()[static_cast<std::size_t>(column)]; }
    QRect onScreen(const QRectF& place) const {
        const QRect area = place.toRect();
        return {body->mapToGlobal(area.topLeft()), area.size()};
    }

    QPointer<TableBody> body;
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
        QRectF place = body->cellArea({0, static_cast<std::size_t>(column)});
        place.setTop(-ColumnHeaderCell::height());
        place.setBottom(0);
        return onScreen(place);
    }
    QString text(QAccessible::Text kind) const override {
        if (!isValid() || (kind != QAccessible::Name && kind != QAccessible::Description)) {
            return {};
        }
        return kind == QAccessible::Name ? toQString(ADIFFieldCatalog::label(columnName()))
                                         : toQString(columnName());
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction() && isValid()) {
            body->log().toggleSort(columnName());
        }
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
};

class CellInterface : public CellBase,
                      public QAccessibleTableCellInterface,
                      public QAccessibleActionInterface {
  public:
    using CellBase::CellBase;

    bool isValid() const override { return CellBase::isValid() && row < rowCount(*body); }
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.selectable = true;
        state.focusable = true;
        state.editable = true;
        state.selected = isSelected();
        state.focused = body->hasFocus() && body->currentCell() == position();
        state.offscreen = !body->cellArea(position()).intersects(body->rect());
        return state;
    }
    QRect rect() const override { return isValid() ? onScreen(body->cellArea(position())) : QRect(); }
    QString text(QAccessible::Text kind) const override {
        if (!isValid()) {
            return {};
        }
        const QSORowView shown = body->rowView(position().row);
        switch (kind) {
            case QAccessible::Name:
            case QAccessible::Value:
                return CellView{shown.record, columnName()}.text();
            case QAccessible::Description:
                return StatusGutterCell{shown.severity, body->log().recordIssueMessages(shown.record.id())}
                    .toolTip();
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

    bool isSelected() const override { return isValid() && body->rowView(position().row).isSelected; }
    QList<QAccessibleInterface*> columnHeaderCells() const override {
        return isValid() ? QList{interfaceOf(*body)->child(column)} : QList<QAccessibleInterface*>();
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
            body->setCurrentCell(position());
            body->log().selectRow(body->rowView(position().row).record.id(), {});
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
    explicit TableInterface(TableBody& tableBody) : QAccessibleWidget(&tableBody, QAccessible::Table) {}
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
            cell = new HeaderCellInterface(body(), row, column);
        } else {
            cell = new CellInterface(body(), row, column);
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
        const QPoint point = body().mapFromGlobal(QPoint(x, y));
        const QPointF origin = body().cellArea({0, 0}).topLeft();
        const auto row = body().tableGeometry().rowAt(point.y() - origin.y());
        const auto column =
            body().tableGeometry().columnAt(point.x() - origin.x() + body().tableGeometry().columnLeft(0));
        return row && column ? cellAt(static_cast<int>(*row), static_cast<int>(*column)) : nullptr;
    }
    QAccessibleInterface* focusChild() const override {
        const auto& current = body().currentCell();
        return current && body().hasFocus()
                   ? cellAt(static_cast<int>(current->row), static_cast<int>(current->column))
                   : QAccessibleWidget::focusChild();
    }

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override {
        const bool exists = row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
        return exists ? child(childIndex(body(), row, column)) : nullptr;
    }
    int rowCount() const override { return quillon::rowCount(body()); }
    int columnCount() const override { return quillon::columnCount(body()); }
    QString rowDescription(int row) const override { return QString::number(row + 1); }
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
        return row >= 0 && row < rowCount() && body().rowView(static_cast<std::size_t>(row)).isSelected;
    }
    bool isColumnSelected(int) const override { return false; }
    bool selectRow(int row) override { return row < rowCount() && (isRowSelected(row) || toggle(row)); }
    bool unselectRow(int row) override { return isRowSelected(row) && toggle(row); }
    bool selectColumn(int) override { return false; }
    bool unselectColumn(int) override { return false; }

    void modelChange(QAccessibleTableModelChangeEvent*) override { forgetCells(); }

  private:
    TableBody& body() const { return *static_cast<TableBody*>(widget()); }

    bool toggle(int row) {
        if (row < 0) {
            return false;
        }
        const tallyrig::UUID id = body().rowView(static_cast<std::size_t>(row)).record.id();
        body().log().selectRow(id, {.command = true});
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

QAccessibleInterface* makeTableInterface(const QString& className, QObject* object) {
    auto* body =
        className == QLatin1String("quillon::TableBody") ? qobject_cast<TableBody*>(object) : nullptr;
    return body != nullptr ? new TableInterface(*body) : nullptr;
}

}  // namespace

void registerTableAccessibility() {
    QAccessible::installFactory(makeTableInterface);
}

void announceCurrentCell(TableBody& body) {
    if (!QAccessible::isActive() || !body.currentCell() || !body.hasFocus()) {
        return;
    }
    QAccessibleEvent event(&body, QAccessible::Focus);
    event.setChild(childIndex(body, static_cast<int>(body.currentCell()->row),
                              static_cast<int>(body.currentCell()->column)));
    QAccessible::updateAccessibility(&event);
}

void announceSelection(TableBody& body) {
    if (QAccessible::isActive()) {
        QAccessibleEvent event(&body, QAccessible::SelectionWithin);
        QAccessible::updateAccessibility(&event);
    }
}

void announceOtherCells(TableBody& body) {
    QAccessibleTableModelChangeEvent event(&body, QAccessibleTableModelChangeEvent::ModelReset);
    QAccessible::updateAccessibility(&event);
}

}  // namespace quillon
