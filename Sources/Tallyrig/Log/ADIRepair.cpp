// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADIRepair.h"

#include "Tallyrig/Log/ADITags.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tallyrig {

namespace {

/// Whether the value of `tag` may end there: at a tag, and with none in it.
bool fits(std::string_view data, const PlacedADITag& tag, std::size_t end) {
    return isADIValueEnd(data, end) && !likelyADITag(data, tag.valueBegin, end);
}

std::size_t repairedEnd(std::string_view data, const PlacedADITag& tag, ReadingRepair repair) {
    if (repair == ReadingRepair::lengthsInCharacters) {
        const auto inCharacters = adiValueEndInCharacters(data, tag);
        if (inCharacters && fits(data, tag, *inCharacters)) {
            return *inCharacters;
        }
    }
    return fits(data, tag, tag.valueEnd) ? tag.valueEnd : adiValueEndNearby(data, tag).value_or(tag.valueEnd);
}

}  // namespace

RepairedADI::RepairedADI(std::string_view data, ReadingRepair repair) {
    repaired.reserve(data.size() + data.size() / 64);
    std::size_t copied = 0;
    std::size_t position = 0;
    std::ptrdiff_t total = 0;
    while (true) {
        const std::size_t open = data.find('<', position);
        const auto tag = open == std::string_view::npos ? std::nullopt : adiTagAt(data, open);
        if (!tag) {
            break;
        }
        position = tag->valueEnd;
        if (tag->tag.isMark() || tag->tag.lengthKind != ADILength::number) {
            continue;
        }
        position = repairedEnd(data, *tag, repair);
        if (position != tag->valueEnd) {
            const std::size_t digits = data.find(':', open) + 1;
            const std::size_t digitsEnd = data.find_first_of(":>", digits);
            const std::string length = std::to_string(position - tag->valueBegin);
            repaired.append(data, copied, digits - copied).append(length);
            copied = digitsEnd;
            total +=
                static_cast<std::ptrdiff_t>(length.size()) - static_cast<std::ptrdiff_t>(digitsEnd - digits);
            shifts.push_back({repaired.size(), total});
        }
    }
    repaired.append(data, copied);
}

ReadingReport RepairedADI::withOffsetsOfFile(const ReadingReport& report) const {
    std::vector<ReadingNote> notes(report.notes().begin(), report.notes().end());
    for (ReadingNote& note : notes) {
        const auto next = std::ranges::upper_bound(shifts, note.offset, {}, &Shift::offset);
        const std::ptrdiff_t total = next == shifts.begin() ? 0 : std::prev(next)->total;
        note.offset = static_cast<std::size_t>(static_cast<std::ptrdiff_t>(note.offset) - total);
    }
    return ReadingReport(std::move(notes), report.repair());
}

}  // namespace tallyrig
