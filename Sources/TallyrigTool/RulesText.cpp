// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/RulesText.h"

#include "Quillon/Catalogue/ScoreWords.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Validation/ADIFSpec317.h"
#include "TallyrigTool/Console.h"

#include <map>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

namespace tallyrig::tool {

namespace {

template <typename Texts>
std::string joined(const Texts& texts, std::string_view separator) {
    std::string result;
    for (const std::string_view text : texts) {
        result += (result.empty() ? std::string() : std::string(separator)) + std::string(text);
    }
    return result;
}

/// In the order of their frequencies, with what is no band of ADIF at the end.
std::string bandsOf(const TextSet& bands) {
    std::vector<std::string_view> names;
    for (const auto& row : ADIFSpec::bandFrequencies()) {
        if (bands.contains(row.name)) {
            names.push_back(row.name);
        }
    }
    for (const std::string& band : bands) {
        if (!ADIFSpec::bandFrequencies().contains(band)) {
            names.push_back(band);
        }
    }
    return joined(names, ", ");
}

/// What a condition asks for.
struct ConditionWords {
    std::string operator()(const relation::WorkedCountryIs& test) const { return "DXCC " + test.code; }
    std::string operator()(const relation::WorkedCountryIn& test) const {
        return "DXCC " + joined(test.codes, " oder ");
    }
    std::string operator()(const relation::WorkedCountryNotIn& test) const {
        return "nicht DXCC " + joined(test.codes, " oder ");
    }
    std::string operator()(const relation::BothInContinent& test) const {
        return "beide in " + test.continent;
    }
    std::string operator()(const relation::WorkedContinentIs& test) const {
        return "Kontinent " + test.continent;
    }
    std::string operator()(const relation::And& all) const {
        std::vector<std::string> words;
        for (const RelationCondition& condition : all.conditions) {
            words.push_back(std::visit(*this, condition));
        }
        return joined(words, " und ");
    }
    std::string operator()(const relation::SameCountry&) const { return "eigenes Land"; }
    std::string operator()(const relation::SameCqZone&) const { return "eigene CQ-Zone"; }
    std::string operator()(const relation::SameItuZone&) const { return "eigene ITU-Zone"; }
    std::string operator()(const relation::SameContinent&) const { return "eigener Kontinent"; }
    std::string operator()(const relation::DifferentContinent&) const { return "anderer Kontinent"; }
    std::string operator()(const relation::IsPortable&) const { return "portabel"; }
    std::string operator()(const relation::Any&) const { return "alle"; }
};

std::string ruleOf(const RelationRule& rule) {
    std::string line = std::visit(ConditionWords(), rule.condition) + ": " + std::to_string(rule.points);
    if (rule.bandGroupPoints) {
        for (const auto& [group, points] : *rule.bandGroupPoints) {
            line += ", " + group + " " + std::to_string(points);
        }
    }
    return line;
}

/// How QSOs are valued, a line for each case.
struct PointsWords {
    using Lines = std::vector<std::string>;

    Lines operator()(const points::Fixed& fixed) const {
        return {quillon::ScoreWords::number(fixed.points) + " je QSO"};
    }
    Lines operator()(const points::PerBand& perBand) const {
        Lines lines;
        for (const auto& [band, points] : perBand.table) {
            lines.push_back(band + ": " + std::to_string(points));
        }
        lines.push_back("sonst: " + std::to_string(perBand.fallback));
        return lines;
    }
    Lines operator()(const points::DistanceKm& distance) const {
        return {"Kilometer von " + distance.myField + " nach " + distance.theirField};
    }
    Lines operator()(const points::DistanceKmIaru& distance) const {
        return {"angefangene Kilometer von " + distance.myField + " nach " + distance.theirField};
    }
    Lines operator()(const points::AdifField& number) const { return {"der Wert von " + number.field}; }
    Lines operator()(const points::ByRelation& table) const {
        Lines lines;
        for (const RelationRule& rule : table.rules) {
            lines.push_back(ruleOf(rule));
        }
        return lines;
    }
};

std::string sourceOf(const ContestMultiplier& multiplier) {
    switch (multiplier.kind) {
        case MultiplierKind::field: {
            std::vector<std::string_view> fields = {multiplier.field};
            fields.insert(fields.end(), multiplier.fallbackFields.begin(), multiplier.fallbackFields.end());
            return joined(fields, ", sonst ");
        }
        case MultiplierKind::wpxPrefix:
            return "WPX-Präfix";
        case MultiplierKind::callAreaPerDxcc:
            return "Rufgebiet je DXCC-Gebiet";
    }
    return {};
}

std::string multiplierOf(const ContestMultiplier& multiplier) {
    std::string line = multiplier.name + ": " + sourceOf(multiplier);
    if (multiplier.prefixLength && *multiplier.prefixLength > 0) {
        line += ", die ersten " + std::to_string(*multiplier.prefixLength) + " Zeichen";
    }
    if (multiplier.token != MultiplierToken::whole && !multiplier.allowedValues) {
        line += multiplier.token == MultiplierToken::last ? ", das letzte Wort" : ", das erste Wort";
    }
    if (multiplier.allowedValues) {
        line += ", nur " + joined(*multiplier.allowedValues, " ");
    }
    if (multiplier.excludedValues) {
        line += ", ohne " + joined(*multiplier.excludedValues, " ");
    }
    line += multiplier.alphabeticOnly      ? ", nur aus Buchstaben"
            : multiplier.mustContainLetter ? ", mit einem Buchstaben"
                                           : "";
    line += multiplier.perBand && multiplier.perMode ? ", je Band und Betriebsart"
            : multiplier.perBand                     ? ", je Band"
            : multiplier.perMode                     ? ", je Betriebsart"
                                                     : "";
    if (multiplier.bandWeights) {
        for (const auto& [band, weight] : *multiplier.bandWeights) {
            line += ", " + band + " ×" + std::to_string(weight);
        }
    }
    return line;
}

std::vector<std::string> multipliersOf(const ContestRules& rules) {
    std::vector<std::string> lines;
    for (const ContestMultiplier& multiplier : rules.multipliers) {
        lines.push_back(multiplierOf(multiplier));
    }
    return lines.empty() ? std::vector<std::string>{"keine"} : lines;
}

std::string stationOf(const ContestStation& station) {
    return "DXCC " + station.dxcc + ", " + station.continent + ", CQ-Zone " + station.cqZone + ", ITU-Zone " +
           station.ituZone + ", " + station.gridSquare;
}

/// The bands of each group that points are given by.
std::vector<std::string> bandGroupsOf(const ContestRules& rules) {
    std::map<std::string, std::vector<std::string_view>> groups;
    if (rules.bandGroups) {
        for (const auto& [band, group] : *rules.bandGroups) {
            groups[group].push_back(band);
        }
    }
    std::vector<std::string> lines;
    for (const auto& [group, bands] : groups) {
        lines.push_back(group + ": " + bandsOf(TextSet(bands)));
    }
    return lines;
}

std::string totalOf(const ContestRules& rules) {
    if (rules.multipliers.empty()) {
        return "QSO-Punkte";
    }
    return rules.scorePerBand ? "Summe der Bänder, je QSO-Punkte × Multiplikatoren"
                              : "QSO-Punkte × Multiplikatoren";
}

/// The lines under one another, with the heading beside the first.
std::string section(const std::string& heading, const std::vector<std::string>& lines) {
    constexpr std::size_t indent = 18;
    std::string text;
    for (const std::string& line : lines) {
        const std::string front = text.empty() ? heading : std::string();
        text += front + std::string(indent - text::characterCount(front), ' ') + visible(line) + "\n";
    }
    return text;
}

}  // namespace

std::string textOf(const ContestRules& rules, std::string_view note) {
    const std::string duplicates =
        rules.dupeFields.empty() ? "keine"
                                 : joined(rules.dupeFields, " + ") +
                                       (rules.dupeBands ? ", nur auf " + bandsOf(*rules.dupeBands) : "");
    return visible(rules.name) + "\n" + visible(note) + "\n\n" +
           section("Eigener Standort", {stationOf(rules.station)}) +
           section("Bänder", {rules.bands ? bandsOf(*rules.bands) : "alle"}) +
           section("Bandgruppen", bandGroupsOf(rules)) +
           section("Betriebsarten", {rules.modes ? joined(*rules.modes, ", ") : "alle"}) +
           section("Pflichtfelder", {joined(rules.requiredFields, ", ")}) +
           section("Dubletten", {duplicates}) +
           section("Gültige Partner",
                   {rules.validRelation ? std::visit(ConditionWords(), *rules.validRelation) : "alle"}) +
           section("Punkte", std::visit(PointsWords(), rules.points)) +
           section("Multiplikatoren", multipliersOf(rules)) + section("Ergebnis", {totalOf(rules)});
}

}  // namespace tallyrig::tool
