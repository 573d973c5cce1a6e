// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/CabrilloHeader.h"

#include "Tallyrig/Formats/LogLines.h"
#include "Tallyrig/Log/ProgramName.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <array>

namespace tallyrig {

namespace {

struct Member {
    std::string_view name;
    std::string CabrilloHeader::*text;
};

constexpr std::array<Member, 21> members = {{{"version", &CabrilloHeader::version},
                                             {"callsign", &CabrilloHeader::callsign},
                                             {"contest", &CabrilloHeader::contest},
                                             {"categoryOperator", &CabrilloHeader::categoryOperator},
                                             {"categoryBand", &CabrilloHeader::categoryBand},
                                             {"categoryMode", &CabrilloHeader::categoryMode},
                                             {"categoryPower", &CabrilloHeader::categoryPower},
                                             {"categoryStation", &CabrilloHeader::categoryStation},
                                             {"categoryAssisted", &CabrilloHeader::categoryAssisted},
                                             {"categoryTransmitter", &CabrilloHeader::categoryTransmitter},
                                             {"categoryTime", &CabrilloHeader::categoryTime},
                                             {"claimedScore", &CabrilloHeader::claimedScore},
                                             {"club", &CabrilloHeader::club},
                                             {"operators", &CabrilloHeader::operators},
                                             {"name", &CabrilloHeader::name},
                                             {"email", &CabrilloHeader::email},
                                             {"gridLocator", &CabrilloHeader::gridLocator},
                                             {"location", &CabrilloHeader::location},
                                             {"soapbox", &CabrilloHeader::soapbox},
                                             {"sentExchange", &CabrilloHeader::sentExchange},
                                             {"createdBy", &CabrilloHeader::createdBy}}};

constexpr std::array<std::string_view, members.size()> names = [] {
    std::array<std::string_view, members.size()> result;
    std::ranges::transform(members, result.begin(), &Member::name);
    return result;
}();

}  // namespace

CabrilloHeader CabrilloHeader::suggested(const ADIFDocument& document) {
    CabrilloHeader header;
    header.version = "3.0";
    header.callsign = text::upper(firstValue(document, {"STATION_CALLSIGN", "OPERATOR", "OWNER_CALLSIGN"}));
    header.contest = text::upper(firstValue(document, {"CONTEST_ID"}));
    header.categoryBand = "ALL";
    header.categoryMode = "MIXED";
    header.createdBy = programName;
    return header;
}

std::span<const std::string_view> CabrilloHeader::memberNames() {
    return names;
}

bool CabrilloHeader::setMember(std::string_view memberName, std::string_view value) {
    const auto* const found = std::ranges::find(members, memberName, &Member::name);
    if (found == members.end()) {
        return false;
    }
    this->*found->text = value;
    return true;
}

}  // namespace tallyrig
