// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/MostFrequentValue.h"

#include "Tallyrig/Log/RecordValues.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstddef>
#include <map>

namespace tallyrig {

std::optional<std::string> mostFrequentValue(const ADIFDocument& log, std::string_view field,
                                             const std::function<std::string(std::string_view)>& read) {
    std::map<std::string, std::size_t> counts;
    std::size_t nothing = 0;
    std::size_t* count = &nothing;
    RecordValues values({field});
    std::string_view lastValue;
    for (const ADIFRecord& record : log.records()) {
        values.read(record);
        if (const std::string_view value = values.valueOrEmpty(0); value != lastValue) {
            const std::string said = read(value);
            count = said.empty() ? &nothing : &counts[text::canonicalKey(said)];
            lastValue = value;
        }
        ++*count;
    }
    const auto most = std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; });
    return most == counts.end() ? std::nullopt : std::optional(most->first);
}

}  // namespace tallyrig
