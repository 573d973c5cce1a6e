// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/TileLayout.h"

#include <algorithm>

namespace quillon {

TileLayout::TileLayout(QWidget* parent, TileRows tileRows) : ItemLayout(parent), rows(tileRows) {
    setSpacing(12);
}

int TileLayout::columns(int count, int width, int leastWidth, int gap, TileRows rows) {
    int inRow = std::max(count, 1);
    while (inRow > 1 && ((rows == TileRows::even && count % inRow != 0) ||
                         inRow * leastWidth + (inRow - 1) * gap > width)) {
        --inRow;
    }
    const int rowCount = (count + inRow - 1) / inRow;
    return rowCount == 0 ? inRow : (count + rowCount - 1) / rowCount;
}

int TileLayout::columnsIn(int width) const {
    return columns(count(), width, minimumSize().width(), spacing(), rows);
}

int TileLayout::heightForWidth(int width) const {
    const int inRow = columnsIn(width);
    const int rowCount = (count() + inRow - 1) / inRow;
    const int tileWidth = (width - (inRow - 1) * spacing()) / inRow;
    return rowCount * rowHeight(tileWidth) + std::max(rowCount - 1, 0) * spacing();
}

QSize TileLayout::sizeHint() const {
    const QSize tile = minimumSize();
    return {count() * tile.width() + std::max(count() - 1, 0) * spacing(), tile.height()};
}

QSize TileLayout::minimumSize() const {
    return largestItem();
}

void TileLayout::setGeometry(const QRect& area) {
    QLayout::setGeometry(area);
    const int inRow = columnsIn(area.width());
    const int height = rowHeight((area.width() - (inRow - 1) * spacing()) / inRow);
    // The pixels that cannot be shared out go to some of the tiles, so that the last ends where the row does.
    const auto leftOf = [&](int column) { return column * (area.width() + spacing()) / inRow; };
    for (int index = 0; index < count(); ++index) {
        const int column = index % inRow;
        const int row = index / inRow;
        itemAt(index)->setGeometry(QRect(area.x() + leftOf(column), area.y() + row * (height + spacing()),
                                         leftOf(column + 1) - leftOf(column) - spacing(), height));
    }
}

int TileLayout::rowHeight(int tileWidth) const {
    int highest = 0;
    for (const auto& item : items) {
        highest = std::max(
            highest, item->hasHeightForWidth() ? item->heightForWidth(tileWidth) : item->sizeHint().height());
    }
    return highest;
}

}  // namespace quillon
