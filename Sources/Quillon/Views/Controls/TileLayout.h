#pragma once

#include "Quillon/Views/Controls/ItemLayout.h"

namespace quillon {

/// Puts tiles of one size beside each other, in as many rows of equally many as the width asks for: six
/// tiles stand in one row, in two, in three or in six.
class TileLayout : public ItemLayout {
    Q_OBJECT

  public:
    explicit TileLayout(QWidget* parent = nullptr);

    /// How many tiles stand in a row: the largest divisor of `count` so that each has `leastWidth` at least,
    /// with the gaps between them in `width`; 1 if none has.
    static int columns(int count, int width, int leastWidth, int gap);

    int heightForWidth(int width) const override;
    /// All tiles in one row.
    QSize sizeHint() const override;
    /// One tile.
    QSize minimumSize() const override;
    void setGeometry(const QRect& area) override;

  private:
    int rowHeight(int tileWidth) const;
};

}  // namespace quillon
