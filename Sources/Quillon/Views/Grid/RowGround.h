// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

class QColor;
class QPainter;
class QPalette;
class QRectF;

namespace quillon {

/// What lies behind the cells of a row: each second one is a shade darker, a selected one has the accent
/// colour, and a line ends it.
struct RowGround {
    static constexpr double selectedOpacity = 0.25;  ///< Of the accent colour behind a selected row.

    std::size_t rowIndex = 0;  ///< Among the rows on screen.
    bool isSelected = false;

    void paint(QPainter& painter, const QRectF& area, const QPalette& palette) const;
};

/// How the frame around the cell where the keyboard is is drawn.
enum class CellFrame {
    typing,  ///< What is typed goes into the cell.
    away,    ///< It will when the keyboard comes back.
    place,   ///< The keyboard is here, but types into nothing.
};

/// `area` is the cell with its divider and its piece of the separator.
void paintCellFrame(QPainter& painter, const QRectF& area, CellFrame frame, const QPalette& palette);

}  // namespace quillon
