// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestStation.h"
#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Text/MemberEquality.h"
#include "Tallyrig/Text/TextSet.h"

#include <concepts>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <variant>
#include <vector>

namespace tallyrig {

/// Unknown means that the data does not allow an answer.
enum class RelationAnswer { doesNotHold, holds, unknown };

/// What conditions read of a QSO. The texts are referred to.
struct WorkedStation {
    std::string_view call;  ///< Trimmed, in upper case.
    std::string_view dxcc;  ///< Trimmed and empty if missing, as the zones are.
    std::string_view cqZone;
    std::string_view ituZone;
    std::optional<std::string_view> continent;  ///< In upper case.
};

struct RelationCondition;

/// The tests on the relation between the own station and the one worked. Without the worked entity or zone, a
/// test for that very one, or for the own one, does not hold; without the continent, or for the exclusion of
/// entities without the entity, the answer is unknown.
namespace relation {

struct WorkedCountryIs {
    static constexpr std::string_view name = "workedCountryIs";
    std::string code;
    auto members() const { return std::tie(code); }
};

struct WorkedCountryIn {
    static constexpr std::string_view name = "workedCountryIn";
    TextSet codes;
    auto members() const { return std::tie(codes); }
};

struct WorkedCountryNotIn {
    static constexpr std::string_view name = "workedCountryNotIn";
    TextSet codes;
    auto members() const { return std::tie(codes); }
};

struct BothInContinent {
    static constexpr std::string_view name = "bothInContinent";
    std::string continent;  ///< In any case.
    auto members() const { return std::tie(continent); }
};

struct WorkedContinentIs {
    static constexpr std::string_view name = "workedContinentIs";
    std::string continent;  ///< In any case.
    auto members() const { return std::tie(continent); }
};

/// All of the conditions. One that does not hold decides, whatever else is unknown.
struct And {
    static constexpr std::string_view name = "and";
    std::vector<RelationCondition> conditions;
    auto members() const { return std::tie(conditions); }
};

struct SameCountry {
    static constexpr std::string_view name = "sameCountry";
    auto members() const { return std::tie(); }
};

struct SameCqZone {
    static constexpr std::string_view name = "sameCqZone";
    auto members() const { return std::tie(); }
};

struct SameItuZone {
    static constexpr std::string_view name = "sameItuZone";
    auto members() const { return std::tie(); }
};

struct SameContinent {
    static constexpr std::string_view name = "sameContinent";
    auto members() const { return std::tie(); }
};

struct DifferentContinent {
    static constexpr std::string_view name = "differentContinent";
    auto members() const { return std::tie(); }
};

/// The call ends in "/P", "/M", "/MM" or "/AM".
struct IsPortable {
    static constexpr std::string_view name = "isPortable";
    auto members() const { return std::tie(); }
};

struct Any {
    static constexpr std::string_view name = "any";
    auto members() const { return std::tie(); }
};

template <typename Type>
concept Case = requires(const Type& condition) {
    { Type::name } -> std::convertible_to<std::string_view>;
    condition.members();
};

template <Case Type>
bool operator==(const Type& left, const Type& right) {
    return text::haveEqualMembers(left, right);
}

}  // namespace relation

/// A tree of tests on the relation between the own station and the one worked.
struct RelationCondition : std::variant<relation::WorkedCountryIs, relation::WorkedCountryIn,
                                        relation::WorkedCountryNotIn, relation::BothInContinent,
                                        relation::WorkedContinentIs, relation::And, relation::SameCountry,
                                        relation::SameCqZone, relation::SameItuZone, relation::SameContinent,
                                        relation::DifferentContinent, relation::IsPortable, relation::Any> {
    using variant::variant;

    RelationAnswer matches(const WorkedStation& worked, const ContestStation& own) const;
    /// The same for the station worked in `record`. Nothing is worked out from its call.
    RelationAnswer matches(const ADIFRecord& record, const ContestStation& own) const;
};

/// The name of the case, such as "sameCountry".
std::string_view nameOf(const RelationCondition& condition);

}  // namespace tallyrig
