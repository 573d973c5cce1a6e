#pragma once

namespace quillon {

class TableBody;

/// Lets assistive technology see `TableBody` as a table of cells with their column headers. To be called
/// before the first one is made; further calls do nothing.
void registerTableAccessibility();

// What assistive technology is told, if any is listening.

/// The keyboard is at another cell.
void announceCurrentCell(TableBody& body);
void announceSelection(TableBody& body);
/// Rows or columns came, went or moved: what was known about cells is void.
void announceOtherCells(TableBody& body);

}  // namespace quillon
