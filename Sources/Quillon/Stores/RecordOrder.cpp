// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/RecordOrder.h"

#include "Quillon/Platform/NaturalOrder.h"
#include "Tallyrig/Log/RecordValues.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace quillon {

std::vector<std::uint32_t> sortedByColumn(const tallyrig::ADIFRecordList& records,
                                          const std::vector<std::uint32_t>& rows, std::string_view column,
                                          SortDirection direction) {
    tallyrig::RecordValues reader{column};
    std::vector<std::string_view> values;
    values.reserve(rows.size());
    for (const std::uint32_t row : rows) {
        reader.read(records[row]);
        values.push_back(reader.valueOrEmpty(0));
    }
    const std::vector<std::uint32_t> ranks = NaturalOrder::ranks(values);
    // The rank, turned round for the other direction, stands in front of the place that keeps the order of
    // equals.
    constexpr std::uint32_t last = std::numeric_limits<std::uint32_t>::max();
    std::vector<std::uint64_t> keys(rows.size());
    for (std::size_t place = 0; place < rows.size(); ++place) {
        const std::uint32_t rank =
            direction == SortDirection::ascending ? ranks[place] : last - 1 - ranks[place];
        keys[place] = std::uint64_t{values[place].empty() ? last : rank} << 32 | place;
    }
    std::ranges::sort(keys);
    std::vector<std::uint32_t> sorted;
    sorted.reserve(rows.size());
    for (const std::uint64_t key : keys) {
        sorted.push_back(rows[static_cast<std::uint32_t>(key)]);
    }
    return sorted;
}

}  // namespace quillon
