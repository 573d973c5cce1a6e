// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sidebar/ContestPicker.h"

#include "Quillon/Catalogue/Contests.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Views/Controls/Strings.h"

#include <cstddef>

namespace quillon {

ContestPicker::ContestPicker(ContestStore& contestStore, QWidget* parent) : SearchedComboBox(parent) {
    for (const Contest offered : contests) {
        addItem(toQString(label(offered)));
    }
    const auto show = [this, &contestStore] { setCurrentIndex(static_cast<int>(contestStore.contest())); };
    show();
    connect(this, &QComboBox::currentIndexChanged, this, [&contestStore](int index) {
        contestStore.setContest(contests[static_cast<std::size_t>(index)]);
    });
    connect(&contestStore, &ContestStore::contestChanged, this, show);
}

}  // namespace quillon
