// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"

#include <span>
#include <string>
#include <string_view>

namespace tallyrig {

/// What a Cabrillo file needs beyond the QSOs. Any text will do in any member.
struct CabrilloHeader {
    std::string version;
    std::string callsign;
    std::string contest;
    std::string categoryOperator;
    std::string categoryBand;
    std::string categoryMode;
    std::string categoryPower;
    std::string categoryStation;
    std::string categoryAssisted;
    std::string categoryTransmitter;
    std::string categoryTime;
    std::string claimedScore;
    std::string club;
    std::string operators;
    std::string name;
    std::string email;
    std::string gridLocator;
    std::string location;
    std::string soapbox;       ///< May have several lines.
    std::string sentExchange;  ///< For QSOs that have none of their own.
    std::string createdBy;

    /// A header to begin with: call and contest from the log, usual values in a few other members.
    static CabrilloHeader suggested(const ADIFDocument& document);

    /// The names of all members in their order.
    static std::span<const std::string_view> memberNames();
    /// Sets the member of this name, spelled as above. False if there is none.
    bool setMember(std::string_view memberName, std::string_view value);

    friend bool operator==(const CabrilloHeader&, const CabrilloHeader&) = default;
};

}  // namespace tallyrig
