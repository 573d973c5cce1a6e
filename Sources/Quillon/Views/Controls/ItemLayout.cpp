// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/ItemLayout.h"

namespace quillon {

ItemLayout::ItemLayout(QWidget* parent) : QLayout(parent) {
    setContentsMargins(0, 0, 0, 0);
}

ItemLayout::~ItemLayout() = default;

void ItemLayout::addItem(QLayoutItem* item) {
    items.emplace_back(item);
}

QLayoutItem* ItemLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* ItemLayout::takeAt(int index) {
    if (index < 0 || index >= count()) {
        return nullptr;
    }
    QLayoutItem* const taken = items[static_cast<std::size_t>(index)].release();
    items.erase(items.begin() + index);
    return taken;
}

QSize ItemLayout::largestItem() const {
    QSize largest;
    for (const auto& item : items) {
        largest = largest.expandedTo(item->sizeHint());
    }
    return largest;
}

}  // namespace quillon
