// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/RowSelection.h"

#include <algorithm>
#include <utility>

namespace quillon {

using tallyrig::UUID;

void RowSelection::select(IDs ids) {
    if (ids != selected) {
        selected = std::move(ids);
        ++changes;
    }
}

void RowSelection::setAnchor(std::optional<UUID> id) {
    if (id != rangeAnchor) {
        rangeAnchor = id;
        ++changes;
    }
}

void RowSelection::click(UUID id, ClickModifiers keys, const RowsOnScreen& rows) {
    if (keys.shift && rangeAnchor) {
        const auto anchorRow = rows.rowOf(*rangeAnchor);
        const auto row = rows.rowOf(id);
        if (anchorRow && row) {
            const auto [first, last] = std::minmax(*anchorRow, *row);
            select(idsInRows(rows, first, last + 1));
            return;
        }
    }
    if (!keys.command) {
        select({id});
    } else {
        if (selected.erase(id) == 0) {
            selected.insert(id);
        }
        ++changes;
    }
    setAnchor(id);
}

void RowSelection::reduceTo(const tallyrig::ADIFRecordList& records) {
    IDs kept;
    for (const std::uint32_t position : positionsIn(records)) {
        kept.insert(records[position].id());
    }
    select(std::move(kept));
    if (rangeAnchor && !selected.contains(*rangeAnchor)) {
        setAnchor(std::nullopt);
    }
}

RowsOnScreen::Positions RowSelection::positionsIn(const tallyrig::ADIFRecordList& records) const {
    RowsOnScreen::Positions positions;
    // A few are looked up one by one; for many, one walk through the log is the shorter way.
    if (selected.size() < records.size() / 32) {
        for (const UUID id : selected) {
            if (const auto position = records.indexOf(id)) {
                positions.push_back(static_cast<std::uint32_t>(*position));
            }
        }
        std::ranges::sort(positions);
    } else if (!selected.empty()) {
        std::uint32_t position = 0;
        for (const tallyrig::ADIFRecord& record : records) {
            if (selected.contains(record.id())) {
                positions.push_back(position);
            }
            ++position;
        }
    }
    return positions;
}

std::size_t RowSelection::countOutside(const RowsOnScreen& rows) const {
    if (rows.areAll() || selected.empty()) {
        return 0;
    }
    std::size_t shown = 0;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        shown += selected.contains(rows.record(row).id()) ? 1 : 0;
    }
    return selected.size() - shown;
}

RowSelection::IDs idsInRows(const RowsOnScreen& rows, std::size_t first, std::size_t end) {
    RowSelection::IDs ids;
    ids.reserve(end - first);
    for (std::size_t row = first; row < end; ++row) {
        ids.insert(rows.record(row).id());
    }
    return ids;
}

}  // namespace quillon
