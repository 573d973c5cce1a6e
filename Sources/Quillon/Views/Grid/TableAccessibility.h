// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace quillon {

/// Lets assistive technology see every widget that is an `AccessibleTable` as a table, and every
/// `AccessibleTableHeader` as the header over one. To be called before the first of them is made; further
/// calls do nothing.
void registerTableAccessibility();

// What assistive technology is told, if any is listening. `table` is an `AccessibleTable`.

/// The keyboard is at another cell.
void announceCurrentCell(QWidget& table);
void announceSelection(QWidget& table);
/// Rows or columns came, went or moved: what was known about cells is void.
void announceOtherCells(QWidget& table);

}  // namespace quillon
