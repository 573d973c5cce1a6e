// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/RulesJson.h"

#include <nlohmann/json.hpp>

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tallyrig::tool {

namespace {

using Json = nlohmann::ordered_json;

// What a member is in JSON. Overloads for members of members are declared first.
Json jsonOf(const RelationCondition& condition);
Json jsonOf(const RelationRule& rule);
Json jsonOf(const ContestMultiplier& multiplier);

template <typename Value>
Json jsonOf(const Value& value) {
    return value;
}

Json jsonOf(const UpperText& text) {
    return text.string();
}

Json jsonOf(const TextSet& set) {
    return std::vector<std::string>(set.begin(), set.end());
}

template <typename Value>
Json jsonOf(const TextMap<Value>& map) {
    Json json = Json::object();
    for (const auto& [key, value] : map) {
        json[key] = value;
    }
    return json;
}

template <typename Value>
Json jsonOf(const UpperTextMap<Value>& map) {
    return jsonOf(static_cast<const TextMap<Value>&>(map));
}

Json jsonOf(const UpperTextSet& set) {
    return jsonOf(static_cast<const TextSet&>(set));
}

template <typename Value>
Json jsonOf(const std::vector<Value>& list) {
    Json json = Json::array();
    for (const Value& value : list) {
        json.push_back(jsonOf(value));
    }
    return json;
}

template <typename Value>
Json jsonOf(const std::optional<Value>& value) {
    return value ? jsonOf(*value) : Json();
}

/// The payload of a case: null without members, the member if there is one.
template <typename Case>
Json payloadOf(const Case& value) {
    if constexpr (requires { value.myField; }) {
        return {{"myField", value.myField}, {"theirField", value.theirField}};
    } else if constexpr (requires { value.table; }) {
        return {{"table", jsonOf(value.table)}, {"fallback", value.fallback}};
    } else {
        return std::apply(
            [](const auto&... members) {
                Json json;
                ((json = jsonOf(members)), ...);
                return json;
            },
            value.members());
    }
}

template <typename Variant>
Json caseOf(const Variant& variant) {
    return std::visit(
        [](const auto& value) {
            Json json;
            json[std::string(value.name)] = payloadOf(value);
            return json;
        },
        variant);
}

Json jsonOf(const RelationCondition& condition) {
    return caseOf(condition);
}

Json jsonOf(const RelationRule& rule) {
    return {{"condition", jsonOf(rule.condition)},
            {"points", rule.points},
            {"bandGroupPoints", jsonOf(rule.bandGroupPoints)}};
}

Json jsonOf(const ContestMultiplier& multiplier) {
    return {{"name", multiplier.name},
            {"kind", nameOf(multiplier.kind)},
            {"field", jsonOf(multiplier.field)},
            {"fallbackFields", jsonOf(multiplier.fallbackFields)},
            {"allowedValues", jsonOf(multiplier.allowedValues)},
            {"excludedValues", jsonOf(multiplier.excludedValues)},
            {"perBand", multiplier.perBand},
            {"perMode", multiplier.perMode},
            {"prefixLength", jsonOf(multiplier.prefixLength)},
            {"bandWeights", jsonOf(multiplier.bandWeights)},
            {"token", nameOf(multiplier.token)},
            {"alphabeticOnly", multiplier.alphabeticOnly},
            {"mustContainLetter", multiplier.mustContainLetter}};
}

}  // namespace

Json jsonOf(const ContestRules& rules) {
    return {{"name", rules.name},
            {"station", jsonOf(rules.station)},
            {"bands", jsonOf(rules.bands)},
            {"modes", jsonOf(rules.modes)},
            {"requiredFields", jsonOf(rules.requiredFields)},
            {"dupeFields", jsonOf(rules.dupeFields)},
            {"dupeBands", jsonOf(rules.dupeBands)},
            {"validRelation", jsonOf(rules.validRelation)},
            {"points", caseOf(rules.points)},
            {"multipliers", jsonOf(rules.multipliers)},
            {"bandGroups", jsonOf(rules.bandGroups)},
            {"scorePerBand", rules.scorePerBand}};
}

Json jsonOf(const ContestStation& station) {
    return {{"dxcc", station.dxcc},
            {"continent", station.continent},
            {"cqZone", station.cqZone},
            {"ituZone", station.ituZone},
            {"gridSquare", station.gridSquare}};
}

}  // namespace tallyrig::tool
