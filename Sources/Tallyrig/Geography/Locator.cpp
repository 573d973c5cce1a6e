// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Geography/Locator.h"

#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>

namespace tallyrig {

namespace {

constexpr double earthRadiusKm = 6371.0;

/// The first six characters of a locator, in upper case. A character that is not ASCII, or that carries a
/// combining mark, is NUL, and so are those that are not there: none of them has a place in a locator.
std::array<char, 6> significantCharacters(std::string_view locator) {
    std::string buffer;
    const std::string_view upper = text::upper(text::trimmedOfBlanks(locator), buffer);
    std::array<char, 6> significant{};
    if (text::isASCII(upper)) {
        std::copy_n(upper.begin(), std::min(upper.size(), significant.size()), significant.begin());
        return significant;
    }
    std::size_t next = 0;
    for (const std::string_view character : text::characters(upper)) {
        if (next == significant.size()) {
            break;
        }
        significant[next++] = character.size() == 1 ? character.front() : '\0';
    }
    return significant;
}

/// Whether nothing about the locator needs to be trimmed or folded.
bool isPlain(std::string_view locator) {
    return text::isUpperASCII(locator) && text::detail::needsNoTrimming(locator);
}

/// Where the centre lies that a locator names, in squares and their subsquares.
struct GridPlace {
    int lonSquare;
    int latSquare;
    int lonSubsquare;  ///< Both `wholeSquare` where the locator names no subsquare.
    int latSubsquare;
};
constexpr int squareCount = 180;  ///< Of latitude as of longitude.
constexpr int wholeSquare = 24;

/// The place of `c` behind `first`, absent if it is `count` or more.
constexpr bool isWithin(char c, char first, int count) {
    return c >= first && c < first + count;
}

std::optional<GridPlace> gridPlace(std::string_view locator) {
    std::array<char, 6> c{};
    if (locator.size() == c.size() && isPlain(locator)) {
        std::copy_n(locator.begin(), c.size(), c.begin());
    } else {
        c = significantCharacters(locator);
    }
    if (!isWithin(c[0], 'A', 18) || !isWithin(c[1], 'A', 18) || !isWithin(c[2], '0', 10) ||
        !isWithin(c[3], '0', 10)) {
        return std::nullopt;
    }
    GridPlace place{(c[0] - 'A') * 10 + c[2] - '0', (c[1] - 'A') * 10 + c[3] - '0', wholeSquare, wholeSquare};
    if (isWithin(c[4], 'A', wholeSquare) && isWithin(c[5], 'A', wholeSquare)) {
        place.lonSubsquare = c[4] - 'A';
        place.latSubsquare = c[5] - 'A';
    }
    return place;
}

Coordinate coordinateOf(const GridPlace& place) {
    const double south = place.latSquare - 90.0;
    const double west = place.lonSquare * 2 - 180.0;
    return {south + (place.latSubsquare == wholeSquare ? 0.5 : place.latSubsquare / 24.0 + 1 / 48.0),
            west + (place.lonSubsquare == wholeSquare ? 1.0 : place.lonSubsquare / 12.0 + 1 / 24.0)};
}

double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

double sinOfHalfDifference(double from, double to) {
    return std::sin((radians(to) - radians(from)) / 2);
}

double cosines(double fromLat, double toLat) {
    return std::cos(radians(fromLat)) * std::cos(radians(toLat));
}

double kmOfHaversine(double a) {
    // Between antipodes, rounding may take `a` a hair's breadth beyond 1.
    return 2 * std::atan2(std::sqrt(a), std::sqrt(std::max(0.0, 1 - a))) * earthRadiusKm;
}

}  // namespace

std::optional<Coordinate> maidenheadToCoordinate(std::string_view locator) {
    const auto place = gridPlace(locator);
    return place ? std::optional(coordinateOf(*place)) : std::nullopt;
}

double greatCircleKm(const Coordinate& from, const Coordinate& to) {
    const double sinLat = sinOfHalfDifference(from.lat, to.lat);
    const double sinLon = sinOfHalfDifference(from.lon, to.lon);
    return kmOfHaversine(sinLat * sinLat + cosines(from.lat, to.lat) * sinLon * sinLon);
}

std::optional<double> greatCircleKm(std::string_view from, std::string_view to) {
    const auto start = maidenheadToCoordinate(from);
    const auto end = maidenheadToCoordinate(to);
    return start && end ? std::optional(greatCircleKm(*start, *end)) : std::nullopt;
}

std::int64_t distanceKm(const Coordinate& from, const Coordinate& to) {
    return std::llround(greatCircleKm(from, to));
}

std::optional<std::int64_t> distanceKm(std::string_view from, std::string_view to) {
    const auto start = maidenheadToCoordinate(from);
    const auto end = maidenheadToCoordinate(to);
    return start && end ? std::optional(distanceKm(*start, *end)) : std::nullopt;
}

DistancesFrom::DistancesFrom(const Coordinate& start)
    : from(start),
      parallels(squareCount * (wholeSquare + 1), {std::nan(""), 0}),
      meridians(squareCount * (wholeSquare + 1), std::nan("")) {}

std::optional<double> DistancesFrom::greatCircleKm(std::string_view locator) {
    const auto place = gridPlace(locator);
    if (!place) {
        return std::nullopt;
    }
    const auto index = [](int square, int subsquare) {
        return static_cast<std::size_t>(square * (wholeSquare + 1) + subsquare);
    };
    Parallel& parallel = parallels[index(place->latSquare, place->latSubsquare)];
    if (std::isnan(parallel.sinSquared)) {
        const double lat = coordinateOf(*place).lat;
        const double sinLat = sinOfHalfDifference(from.lat, lat);
        parallel = {sinLat * sinLat, cosines(from.lat, lat)};
    }
    double& sinLon = meridians[index(place->lonSquare, place->lonSubsquare)];
    if (std::isnan(sinLon)) {
        sinLon = sinOfHalfDifference(from.lon, coordinateOf(*place).lon);
    }
    return kmOfHaversine(parallel.sinSquared + parallel.cosines * sinLon * sinLon);
}

}  // namespace tallyrig
