// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Outdoor/ReferenceGroups.h"

#include "Tallyrig/Text/Text.h"

#include <numeric>

namespace tallyrig {

void ReferenceGroups::add(std::size_t recordIndex, std::string_view reference) {
    const KeyNumbers::Entry entry =
        text::isASCII(reference) ? numbers.add(reference) : numbers.add(text::canonicalKey(reference));
    if (entry.isNew) {
        references.push_back(reference);
    }
    namings.push_back({entry.number, recordIndex});
}

void ReferenceGroups::finish() {
    begins.assign(references.size() + 1, 0);
    for (const Naming& naming : namings) {
        ++begins[naming.group + 1];
    }
    std::partial_sum(begins.begin(), begins.end(), begins.begin());
    std::vector<std::size_t> ends(begins.begin(), begins.end() - 1);
    recordsByGroup.resize(namings.size());
    for (const Naming& naming : namings) {
        recordsByGroup[ends[naming.group]++] = naming.record;
    }
    namings = {};
    numbers = KeyNumbers();
}

std::span<const std::size_t> ReferenceGroups::records(std::size_t group) const {
    return std::span(recordsByGroup).subspan(begins[group], begins[group + 1] - begins[group]);
}

}  // namespace tallyrig
