// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/EDIHeader.h"

#include "Tallyrig/Formats/EDIBands.h"
#include "Tallyrig/Formats/LogLines.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <array>
#include <compare>

namespace tallyrig {

namespace {

constexpr std::array<std::string_view, 3> storedModes = {"distance", "blank", "adifField"};

/// A member by its name; `pointsMode`, alone no text, has none to point to.
struct Member {
    std::string_view name;
    std::string EDIHeader::*text;
};

constexpr std::array<Member, 24> members = {{
    {"contestName", &EDIHeader::contestName},
    {"dateStart", &EDIHeader::dateStart},
    {"dateEnd", &EDIHeader::dateEnd},
    {"callsign", &EDIHeader::callsign},
    {"locator", &EDIHeader::locator},
    {"section", &EDIHeader::section},
    {"band", &EDIHeader::band},
    {"club", &EDIHeader::club},
    {"operators", &EDIHeader::operators},
    {"responsibleName", &EDIHeader::responsibleName},
    {"responsibleCall", &EDIHeader::responsibleCall},
    {"responsibleEmail", &EDIHeader::responsibleEmail},
    {"address1", &EDIHeader::address1},
    {"address2", &EDIHeader::address2},
    {"postalCode", &EDIHeader::postalCode},
    {"city", &EDIHeader::city},
    {"txEquipment", &EDIHeader::txEquipment},
    {"rxEquipment", &EDIHeader::rxEquipment},
    {"power", &EDIHeader::power},
    {"antenna", &EDIHeader::antenna},
    {"antennaHeight", &EDIHeader::antennaHeight},
    {"remarks", &EDIHeader::remarks},
    {"pointsMode", nullptr},
    {"pointsField", &EDIHeader::pointsField},
}};

constexpr auto names = [] {
    std::array<std::string_view, members.size()> result;
    std::ranges::transform(members, result.begin(), &Member::name);
    return result;
}();

/// The first and the last day of a log by text order, of dates that have the length of one.
struct Days {
    std::string_view first;
    std::string_view last;
};

Days daysOf(const ADIFDocument& document) {
    Days days;
    for (const ADIFRecord& record : document.records()) {
        const std::string_view date = record.valueOrEmpty("QSO_DATE");
        if (!text::hasLength(date, 8)) {
            continue;
        }
        if (days.first.empty() || std::is_lt(text::compare(date, days.first))) {
            days.first = date;
        }
        if (days.last.empty() || std::is_gt(text::compare(date, days.last))) {
            days.last = date;
        }
    }
    return days;
}

}  // namespace

std::string_view storedText(EDIPointsMode mode) {
    return storedModes[static_cast<std::size_t>(mode)];
}

std::optional<EDIPointsMode> ediPointsMode(std::string_view storedText) {
    const auto* const found = std::ranges::find(storedModes, storedText);
    return found == storedModes.end()
               ? std::nullopt
               : std::optional(static_cast<EDIPointsMode>(found - storedModes.begin()));
}

EDIHeader EDIHeader::suggested(const ADIFDocument& document) {
    const Days days = daysOf(document);
    EDIHeader header;
    header.contestName = text::upper(firstValue(document, {"CONTEST_ID"}));
    header.dateStart = days.first;
    header.dateEnd = days.last;
    header.callsign = text::upper(firstValue(document, {"STATION_CALLSIGN", "OPERATOR", "OWNER_CALLSIGN"}));
    header.locator = text::upper(firstValue(document, {"MY_GRIDSQUARE"}));
    header.band = ediBandName(firstValue(document, {"BAND"}));
    header.operators = text::upper(firstValue(document, {"OPERATOR"}));
    return header;
}

std::span<const std::string_view> EDIHeader::memberNames() {
    return names;
}

bool EDIHeader::setMember(std::string_view name, std::string_view value) {
    const auto* const member = std::ranges::find(members, name, &Member::name);
    if (member == members.end()) {
        return false;
    }
    if (member->text != nullptr) {
        this->*(member->text) = value;
        return true;
    }
    const auto mode = ediPointsMode(value);
    pointsMode = mode.value_or(pointsMode);
    return mode.has_value();
}

}  // namespace tallyrig
