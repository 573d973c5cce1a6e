// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Contest/ContestStation.h"

#include "Tallyrig/Geography/DXCCInfo.h"
#include "Tallyrig/Log/MostFrequentValue.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <cstddef>

namespace tallyrig {

ContestStation ContestStation::adapted(std::string_view owner, const ADIFDocument& log) const {
    constexpr std::size_t leastCharacters = 4;
    ContestStation station = *this;
    if (const auto entity = DXCCInfo::dxccCode(owner)) {
        station.dxcc = *entity;
        station.continent = DXCCInfo::continentOfEntity(*entity).value_or(station.continent);
    }
    const auto locator = mostFrequentValue(log, "MY_GRIDSQUARE", [](std::string_view value) {
        std::string upper = text::upper(text::trimmedOfBlanks(value));
        return text::characterCount(upper) < leastCharacters ? std::string() : upper;
    });
    station.gridSquare = locator.value_or(station.gridSquare);
    return station;
}

}  // namespace tallyrig
