// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/ItemLayout.h"

namespace quillon {

/// How tiles are shared out between rows: all rows hold equally many, so that six tiles stand in one row, in
/// two, in three or in six; or as few rows as there can be, the last of which may be shorter.
enum class TileRows { even, fewest };

/// Puts tiles of one size beside each other, in as many rows as the width asks for.
class TileLayout : public ItemLayout {
    Q_OBJECT

  public:
    explicit TileLayout(QWidget* parent = nullptr, TileRows tileRows = TileRows::even);

    /// How many tiles stand in a row so that each has `leastWidth` at least, with the gaps between them in
    /// `width`: the largest divisor of `count`, or for the fewest rows, as many as share the tiles out best.
    /// 1 if not even two have that.
    static int columns(int count, int width, int leastWidth, int gap, TileRows rows = TileRows::even);

    int heightForWidth(int width) const override;
    /// All tiles in one row.
    QSize sizeHint() const override;
    /// One tile.
    QSize minimumSize() const override;
    void setGeometry(const QRect& area) override;

  private:
    int columnsIn(int width) const;
    int rowHeight(int tileWidth) const;

    TileRows rows;
};

}  // namespace quillon
