// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestRules.h"

#include <optional>
#include <string_view>

namespace tallyrig {

/// The built-in rule sets, for the station that is evaluated.
struct ContestTemplates {
    static ContestRules helvetia(const ContestStation& station);
    static ContestRules uskaXmas(const ContestStation& station);
    static ContestRules fieldDay(const ContestStation& station);
    static ContestRules nmd(const ContestStation& station);
    static ContestRules iaruHF(const ContestStation& station);
    static ContestRules waeDX(const ContestStation& station);
    static ContestRules wag(const ContestStation& station);
    static ContestRules cqWW(const ContestStation& station);
    static ContestRules cqWWRtty(const ContestStation& station);
    static ContestRules cqWPX(const ContestStation& station);
    static ContestRules cqWPXRtty(const ContestStation& station);
    static ContestRules arrlDX(const ContestStation& station);
    static ContestRules euHFChampionship(const ContestStation& station);
    static ContestRules ref(const ContestStation& station);
    static ContestRules sac(const ContestStation& station);
    static ContestRules eucwUFT(const ContestStation& station);
    static ContestRules aaDX(const ContestStation& station);
    static ContestRules jidx(const ContestStation& station);
    static ContestRules russianDX(const ContestStation& station);
    static ContestRules arrlRTTYRoundup(const ContestStation& station);
    static ContestRules swissEmergency(const ContestStation& station);
    static ContestRules darc10m(const ContestStation& station);
    static ContestRules mhz50(const ContestStation& station);
    static ContestRules iaruVHFUHF(const ContestStation& station);
    static ContestRules iaruR1VHF(const ContestStation& station);
    static ContestRules iaruR1UHF(const ContestStation& station);
    static ContestRules darcUKW(const ContestStation& station);
    static ContestRules helvetiaVHF(const ContestStation& station);
    static ContestRules marconiVHF(const ContestStation& station);
    static ContestRules agcwVHFUHF(const ContestStation& station);
    static ContestRules alpeAdriaVHF(const ContestStation& station);
    static ContestRules alpeAdriaUHF(const ContestStation& station);
    static ContestRules vhfDistance(const ContestStation& station);
    static ContestRules genericOnePointDXCC(const ContestStation& station);

    /// The rule set of a contest as logging programs name it, such as "CQ-WW-CW", in any case; absent if
    /// there is none of that name.
    static std::optional<ContestRules> forTemplateID(std::string_view id, const ContestStation& station);
};

}  // namespace tallyrig
