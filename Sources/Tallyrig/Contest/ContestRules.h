// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestMultiplier.h"
#include "Tallyrig/Contest/ContestPoints.h"
#include "Tallyrig/Contest/ContestStation.h"
#include "Tallyrig/Contest/RelationCondition.h"
#include "Tallyrig/Text/MemberEquality.h"
#include "Tallyrig/Text/TextMap.h"
#include "Tallyrig/Text/TextSet.h"
#include "Tallyrig/Text/UpperText.h"

#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace tallyrig {

/// A contest, told by data alone. Names of fields, bands and modes are in upper case, whatever they are given
/// in; the names of band groups stay as they are.
struct ContestRules {
    std::string name;
    ContestStation station;
    std::optional<UpperTextSet> bands = std::nullopt;  ///< Absent: all.
    std::optional<UpperTextSet> modes = std::nullopt;  ///< Absent: all.
    std::vector<UpperText> requiredFields{};
    std::vector<UpperText>
        dupeFields{};  ///< QSOs that agree in all of them are duplicates; without, none is.
    std::optional<UpperTextSet> dupeBands = std::nullopt;  ///< Where present, there are none on other bands.
    std::optional<RelationCondition> validRelation = std::nullopt;  ///< What every QSO must pass.
    ContestPoints points;
    std::vector<ContestMultiplier>
        multipliers{};  ///< In the order of reports; without, points are the score.
    std::optional<UpperTextMap<std::string>> bandGroups = std::nullopt;
    bool scorePerBand = false;  ///< The sum of the products of all bands, not the product of the sums.

    auto members() const {
        return std::tie(name, station, bands, modes, requiredFields, dupeFields, dupeBands, validRelation,
                        points, multipliers, bandGroups, scorePerBand);
    }
    friend bool operator==(const ContestRules& left, const ContestRules& right) {
        return text::haveEqualMembers(left, right);
    }
};

}  // namespace tallyrig
