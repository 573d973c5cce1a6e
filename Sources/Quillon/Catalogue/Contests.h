// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Catalogue/GenericContest.h"
#include "Tallyrig/Contest/ContestRules.h"
#include "Tallyrig/Contest/ContestStation.h"

#include <array>
#include <optional>
#include <string_view>

namespace quillon {

/// The contests that a log can be scored by.
enum class Contest {
    helvetia,
    uskaXmas,
    fieldDay,
    nmd,
    iaruHF,
    waeDX,
    wag,
    cqWW,
    cqWPX,
    cqWWRtty,
    cqWPXRtty,
    arrlDX,
    euHFChamp,
    ref,
    sac,
    eucwUFT,
    aaDX,
    jidx,
    russianDX,
    arrlRTTYRoundup,
    swissEmergency,
    mhz50,
    iaruVHFUHF,
    iaruR1VHF,
    iaruR1UHF,
    darcUKW,
    helvetiaVHF,
    marconiVHF,
    agcwVHFUHF,
    alpeAdriaVHF,
    alpeAdriaUHF,
    vhf,
    generic,
};

/// All of them, in the order in which they are offered.
inline constexpr std::array contests = {
    Contest::helvetia,       Contest::uskaXmas,     Contest::fieldDay,     Contest::nmd,
    Contest::iaruHF,         Contest::waeDX,        Contest::wag,          Contest::cqWW,
    Contest::cqWPX,          Contest::cqWWRtty,     Contest::cqWPXRtty,    Contest::arrlDX,
    Contest::euHFChamp,      Contest::ref,          Contest::sac,          Contest::eucwUFT,
    Contest::aaDX,           Contest::jidx,         Contest::russianDX,    Contest::arrlRTTYRoundup,
    Contest::swissEmergency, Contest::mhz50,        Contest::iaruVHFUHF,   Contest::iaruR1VHF,
    Contest::iaruR1UHF,      Contest::darcUKW,      Contest::helvetiaVHF,  Contest::marconiVHF,
    Contest::agcwVHFUHF,     Contest::alpeAdriaVHF, Contest::alpeAdriaUHF, Contest::vhf,
    Contest::generic,
};

/// The name of the case, such as "cqWW", by which a command line names the contest.
std::string_view rawValue(Contest contest);
/// The contest of this name, absent if there is none.
std::optional<Contest> contestNamed(std::string_view rawValue);

/// The German words for it.
std::string_view label(Contest contest);
/// A German note on its rules for a person. It may say more than the rules do.
std::string_view info(Contest contest);

/// The rules of `contest` for the station that is evaluated; `generic` is what the contest of one's own is
/// made of.
tallyrig::ContestRules rulesOf(Contest contest, const GenericContest& generic,
                               const tallyrig::ContestStation& station);

}  // namespace quillon
