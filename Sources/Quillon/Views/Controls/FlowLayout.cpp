// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/FlowLayout.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr int lineGap = 2;

}  // namespace

std::vector<QRect> FlowLayout::placesIn(int width) const {
    const int lineHeight = largestItem().height();
    const QMargins margins = contentsMargins();
    const int right = width - margins.right();
    std::vector<QRect> places;
    int x = margins.left();
    int y = margins.top();
    for (const auto& item : items) {
        const int itemWidth = item->sizeHint().width();
        if (x > margins.left() && x + itemWidth > right) {
            x = margins.left();
            y += lineHeight + lineGap;
        }
        places.emplace_back(x, y, itemWidth, lineHeight);
        x += itemWidth + spacing();
    }
    if (!places.empty()) {
        places.back().moveLeft(std::max(places.back().left(), right - places.back().width()));
    }
    return places;
}

int FlowLayout::heightForWidth(int width) const {
    const std::vector<QRect> places = placesIn(width);
    return places.empty() ? 0 : places.back().bottom() + 1 + contentsMargins().bottom();
}

QSize FlowLayout::sizeHint() const {
    int width = std::max(count() - 1, 0) * spacing();
    for (const auto& item : items) {
        width += item->sizeHint().width();
    }
    return QSize(width, largestItem().height()).grownBy(contentsMargins());
}

QSize FlowLayout::minimumSize() const {
    return largestItem().grownBy(contentsMargins());
}

void FlowLayout::setGeometry(const QRect& area) {
    QLayout::setGeometry(area);
    const std::vector<QRect> places = placesIn(area.width());
    for (std::size_t index = 0; index < places.size(); ++index) {
        items[index]->setGeometry(places[index].translated(area.topLeft()));
    }
}

}  // namespace quillon
