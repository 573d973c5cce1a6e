// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/ItemLayout.h"

namespace quillon {

/// Puts items of their own sizes beside each other, like the words of a text: as many in a line as there is
/// room for, the others in the next. The last item stands at the right end of its line.
class FlowLayout : public ItemLayout {
    Q_OBJECT

  public:
    using ItemLayout::ItemLayout;

    int heightForWidth(int width) const override;
    /// All items in one line.
    QSize sizeHint() const override;
    /// The widest item.
    QSize minimumSize() const override;
    void setGeometry(const QRect& area) override;

  private:
    /// Where the items stand in a layout of this width whose upper left corner is (0, 0).
    std::vector<QRect> placesIn(int width) const;
};

}  // namespace quillon
