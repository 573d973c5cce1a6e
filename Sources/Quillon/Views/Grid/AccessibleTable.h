// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Grid/TableGeometry.h"

#include <QRectF>
#include <QString>

#include <cstddef>
#include <optional>

namespace quillon {

/// What assistive technology asks a hand-made table. A widget that paints a table implements it, and
/// `registerTableAccessibility` lets it be seen as a table of cells with their column headers.
///
/// Rows and columns are those of the geometry, counted from 0, and exist.
class AccessibleTable {
  public:
    AccessibleTable() = default;
    AccessibleTable(const AccessibleTable&) = delete;
    AccessibleTable& operator=(const AccessibleTable&) = delete;
    virtual ~AccessibleTable() = default;

    virtual const TableGeometry& tableGeometry() const = 0;
    /// The place of the cell in the coordinates of the widget, in view or not.
    virtual QRectF cellArea(CellPosition cell) const = 0;
    /// The height of the header, which stands right above the widget.
    virtual double headerHeight() const = 0;
    virtual const std::optional<CellPosition>& currentCell() const = 0;

    virtual QString cellText(CellPosition cell) const = 0;
    virtual bool isCellEditable(CellPosition) const { return true; }
    virtual QString columnTitle(std::size_t column) const = 0;
    /// What is to be told of the column besides, such as its order.
    virtual QString columnRemark(std::size_t column) const = 0;
    virtual QString rowTitle(std::size_t row) const = 0;
    /// What is to be told of the row besides, such as what a check found in it.
    virtual QString rowRemark(std::size_t row) const = 0;

    virtual bool isRowSelected(std::size_t row) const = 0;
    /// Takes the row into the selection or out of it.
    virtual void toggleRow(std::size_t row) = 0;
    /// As a click there.
    virtual void pressCell(CellPosition cell) = 0;
    virtual void pressColumn(std::size_t column) = 0;
};

/// The header over such a table, for the keyboard one stop; its description tells the column.
class AccessibleTableHeader {
  public:
    AccessibleTableHeader() = default;
    AccessibleTableHeader(const AccessibleTableHeader&) = delete;
    AccessibleTableHeader& operator=(const AccessibleTableHeader&) = delete;
    virtual ~AccessibleTableHeader() = default;
};

}  // namespace quillon
