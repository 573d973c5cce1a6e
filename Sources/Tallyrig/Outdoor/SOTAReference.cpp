// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Outdoor/SOTAReference.h"

#include "Tallyrig/Outdoor/ReferencePieces.h"
#include "Tallyrig/Text/Text.h"

namespace tallyrig::SOTAReference {

bool isValid(std::string_view reference) {
    const ReferenceCharacters text(reference);
    const auto summit = splitAtFirst(text.all(), '/');
    if (!summit) {
        return false;
    }
    const auto regionAndNumber = splitAtLast(summit->second, '-');
    return regionAndNumber && isWord(summit->first, {1, 3}) && isWord(regionAndNumber->first, {1, 3}) &&
           isNumber(regionAndNumber->second, {1, 4});
}

std::string resolveCall(const ADIFRecord& record) {
    const std::string_view station = text::trimmedOfBlanks(record.valueOrEmpty("STATION_CALLSIGN"));
    return text::upper(station.empty() ? text::trimmedOfBlanks(record.valueOrEmpty("OPERATOR")) : station);
}

}  // namespace tallyrig::SOTAReference
