// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestFields.h"
#include "Tallyrig/Contest/ContestRules.h"
#include "Tallyrig/Geography/Locator.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tallyrig {

/// The points of one QSO after the other. Refers to the rules.
class QSOValuation {
  public:
    /// Adds the fields that it reads.
    QSOValuation(const ContestRules& rules, ContestFields& fields);

    /// The records that follow are on this band.
    void turnToBand(std::string_view band);

    /// The points of the record that `fields` stands at. `rule` is the one that holds for it where points go
    /// by relation, null if there is none.
    std::int64_t points(const ContestFields& fields, const RelationRule* rule);

  private:
    /// A QSO, to be valued by one case after the other.
    struct QSO;

    /// The distance of the locators, absent if one of them is none.
    std::optional<double> greatCircleKm(const ContestFields& fields);

    const ContestRules& rules;
    const std::string* bandGroup = nullptr;  ///< Null where the band is in none.
    std::int64_t bandPoints = 0;             ///< Where points go by band.
    std::size_t myField = 0;
    std::size_t theirField = 0;             ///< Also the one field that holds the points.
    std::optional<std::string> ownLocator;  ///< The last one, as it was read, and its place.
    std::optional<Coordinate> ownPlace;
    std::size_t qsosFromThere = 0;
    std::optional<DistancesFrom> distances;  ///< Made when there are many.
};

}  // namespace tallyrig
