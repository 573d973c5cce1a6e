#pragma once

#include "Tallyrig/Contest/ContestFields.h"
#include "Tallyrig/Contest/ContestRules.h"
#include "Tallyrig/Contest/RelationCondition.h"
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

    /// The points of the record that `fields` stands at. `worked` is looked at only where points go by
    /// relation.
    std::int64_t points(const ContestFields& fields, std::string_view band, const WorkedStation& worked);

  private:
    /// The two ends of a distance.
    struct Ends {
        Coordinate own;
        Coordinate other;
    };
    /// A QSO, to be valued by one case after the other.
    struct QSO;

    /// Absent if one of the locators is none.
    std::optional<Ends> ends(const ContestFields& fields);

    const ContestRules& rules;
    std::size_t myField = 0;
    std::size_t theirField = 0;             ///< Also the one field that holds the points.
    std::optional<std::string> ownLocator;  ///< The last one, as it was read, and its place.
    std::optional<Coordinate> ownPlace;
};

}  // namespace tallyrig
