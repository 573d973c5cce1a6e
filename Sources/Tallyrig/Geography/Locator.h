// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// The system's one arithmetic of Maidenhead locators ("JO62QM") and the distances between them.
namespace tallyrig {

/// A point on the globe in degrees: north and east are positive.
struct Coordinate {
    double lat = 0;
    double lon = 0;

    friend bool operator==(const Coordinate&, const Coordinate&) = default;
};

/// The centre of the subsquare or, where characters 5 and 6 are none (they have to be letters from A to X),
/// of the square that the first four characters name. Blanks around the locator, its case and whatever stands
/// behind the sixth character do not matter. Absent if the first four characters name no square.
std::optional<Coordinate> maidenheadToCoordinate(std::string_view locator);

/// The great-circle distance on a sphere of radius 6371.0 km.
double greatCircleKm(const Coordinate& from, const Coordinate& to);
/// The same between the centres that the locators name; absent if either names none.
std::optional<double> greatCircleKm(std::string_view from, std::string_view to);

/// The same in whole kilometres, halves away from zero.
std::int64_t distanceKm(const Coordinate& from, const Coordinate& to);
std::optional<std::int64_t> distanceKm(std::string_view from, std::string_view to);

/// The distances of many places from one. The locators have few parallels and meridians, so that their sines
/// and cosines are worked out once each.
class DistancesFrom {
  public:
    explicit DistancesFrom(const Coordinate& from);

    /// `greatCircleKm` of `from` and the centre that the locator names; absent if it names none.
    std::optional<double> greatCircleKm(std::string_view locator);

  private:
    /// What a parallel adds to the haversine.
    struct Parallel {
        double sinSquared;
        double cosines;
    };

    Coordinate from;
    std::vector<Parallel> parallels;  ///< By the row of the grid; not a number before it is first asked for.
    std::vector<double> meridians;    ///< The sines of half the differences, by column.
};

}  // namespace tallyrig
