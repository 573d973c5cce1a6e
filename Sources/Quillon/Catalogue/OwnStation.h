// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestStation.h"
#include "Tallyrig/Text/Text.h"

#include <string>

namespace quillon {

/// The own station's data as typed, at first those of a station in Switzerland.
struct OwnStation {
    std::string myDXCC = "287";
    std::string myContinent = "EU";
    std::string myCQZone = "14";
    std::string myITUZone = "28";
    std::string myGrid = "JN47";

    /// What rules are given of it: the continent and the locator are in upper case.
    tallyrig::ContestStation station() const {
        return {myDXCC, tallyrig::text::upper(myContinent), myCQZone, myITUZone,
                tallyrig::text::upper(myGrid)};
    }
    friend bool operator==(const OwnStation&, const OwnStation&) = default;
};

}  // namespace quillon
