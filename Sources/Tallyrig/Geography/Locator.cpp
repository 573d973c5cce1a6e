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

/// The place of `c` in `first` to `last`, absent outside.
std::optional<int> placeOf(char c, char first, char last) {
    return c >= first && c <= last ? std::optional(c - first) : std::nullopt;
}

double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

}  // namespace

std::optional<Coordinate> maidenheadToCoordinate(std::string_view locator) {
    const std::array<char, 6> c = significantCharacters(locator);
    const auto fieldLon = placeOf(c[0], 'A', 'R');
    const auto fieldLat = placeOf(c[1], 'A', 'R');
    const auto squareLon = placeOf(c[2], '0', '9');
    const auto squareLat = placeOf(c[3], '0', '9');
    if (!fieldLon || !fieldLat || !squareLon || !squareLat) {
        return std::nullopt;
    }
    Coordinate corner{*fieldLat * 10.0 - 90 + *squareLat, *fieldLon * 20.0 - 180 + *squareLon * 2};
    const auto subsquareLon = placeOf(c[4], 'A', 'X');
    const auto subsquareLat = placeOf(c[5], 'A', 'X');
    if (subsquareLon && subsquareLat) {
        return Coordinate{corner.lat + (*subsquareLat / 24.0 + 1 / 48.0),
                          corner.lon + (*subsquareLon / 12.0 + 1 / 24.0)};
    }
    return Coordinate{corner.lat + 0.5, corner.lon + 1.0};
}

double greatCircleKm(const Coordinate& from, const Coordinate& to) {
    const double sinLat = std::sin((radians(to.lat) - radians(from.lat)) / 2);
    const double sinLon = std::sin((radians(to.lon) - radians(from.lon)) / 2);
    const double a =
        sinLat * sinLat + std::cos(radians(from.lat)) * std::cos(radians(to.lat)) * sinLon * sinLon;
    // Between antipodes, rounding may take `a` a hair's breadth beyond 1.
    return 2 * std::atan2(std::sqrt(a), std::sqrt(std::max(0.0, 1 - a))) * earthRadiusKm;
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

}  // namespace tallyrig
