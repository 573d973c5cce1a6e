// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/RelationCondition.h"
#include "Tallyrig/Text/MemberEquality.h"
#include "Tallyrig/Text/TextMap.h"

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <variant>
#include <vector>

namespace tallyrig {

/// One row of a table of points.
struct RelationRule {
    RelationCondition condition;
    std::int64_t points = 0;
    /// By the name of a group of bands; goes before `points` on the bands of such a group.
    std::optional<TextMap<std::int64_t>> bandGroupPoints = std::nullopt;

    friend bool operator==(const RelationRule&, const RelationRule&) = default;
};

/// How a counted QSO is valued.
namespace points {

struct Fixed {
    static constexpr std::string_view name = "fixed";
    std::int64_t points = 0;
    auto members() const { return std::tie(points); }
};

struct PerBand {
    static constexpr std::string_view name = "perBand";
    TextMap<std::int64_t> table;  ///< By band.
    std::int64_t fallback = 0;    ///< On all other bands.
    auto members() const { return std::tie(table, fallback); }
};

/// The distance of the locators in kilometres, rounded to the nearest; 0 if one of them is missing.
struct DistanceKm {
    static constexpr std::string_view name = "distanceKm";
    std::string myField;  ///< Where this is missing or empty, the station's own locator counts.
    std::string theirField;
    auto members() const { return std::tie(myField, theirField); }
};

/// The same with every kilometre begun counting, so that two stations at one place have 1.
struct DistanceKmIaru {
    static constexpr std::string_view name = "distanceKmIaru";
    std::string myField;
    std::string theirField;
    auto members() const { return std::tie(myField, theirField); }
};

/// The number in a field, rounded to the nearest, halves away from zero; 0 if there is none or it is not
/// finite or too large.
struct AdifField {
    static constexpr std::string_view name = "adifField";
    std::string field;
    auto members() const { return std::tie(field); }
};

/// The first rule whose condition holds; 0 if there is none.
struct ByRelation {
    static constexpr std::string_view name = "byRelation";
    std::vector<RelationRule> rules;
    auto members() const { return std::tie(rules); }
};

template <typename Type>
concept Case = requires(const Type& valuation) {
    { Type::name } -> std::convertible_to<std::string_view>;
    valuation.members();
};

template <Case Type>
bool operator==(const Type& left, const Type& right) {
    return text::haveEqualMembers(left, right);
}

}  // namespace points

using ContestPoints = std::variant<points::Fixed, points::PerBand, points::DistanceKm, points::DistanceKmIaru,
                                   points::AdifField, points::ByRelation>;

}  // namespace tallyrig
