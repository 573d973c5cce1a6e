#include "Tallyrig/Contest/QSOValuation.h"

#include "Tallyrig/Text/Numbers.h"

#include <cmath>
#include <variant>

namespace tallyrig {

namespace {

/// The number in `value`, rounded; 0 if it is none or has no place in 64 bits.
std::int64_t roundedNumber(std::string_view value) {
    return text::wholeNumber(std::round(text::number(value).value_or(0))).value_or(0);
}

}  // namespace

struct QSOValuation::QSO {
    QSOValuation& valuation;
    const ContestFields& fields;
    std::string_view band;
    const WorkedStation& worked;

    std::int64_t operator()(const points::Fixed& fixed) const { return fixed.points; }
    std::int64_t operator()(const points::PerBand& perBand) const {
        const std::int64_t* const entry = perBand.table.find(band);
        return entry == nullptr ? perBand.fallback : *entry;
    }
    std::int64_t operator()(const points::DistanceKm&) const {
        const auto ends = valuation.ends(fields);
        return ends ? distanceKm(ends->own, ends->other) : 0;
    }
    std::int64_t operator()(const points::DistanceKmIaru&) const {
        const auto ends = valuation.ends(fields);
        return ends ? static_cast<std::int64_t>(greatCircleKm(ends->own, ends->other)) + 1 : 0;
    }
    std::int64_t operator()(const points::AdifField&) const {
        return roundedNumber(fields.valueOrEmpty(valuation.theirField));
    }
    std::int64_t operator()(const points::ByRelation& table) const {
        const ContestRules& all = valuation.rules;
        for (const RelationRule& rule : table.rules) {
            if (rule.condition.matches(worked, all.station) == RelationAnswer::holds) {
                return pointsOf(rule, all.bandGroups ? all.bandGroups->find(band) : nullptr);
            }
        }
        return 0;
    }

    static std::int64_t pointsOf(const RelationRule& rule, const std::string* group) {
        const std::int64_t* const groupPoints =
            group != nullptr && rule.bandGroupPoints ? rule.bandGroupPoints->find(*group) : nullptr;
        return groupPoints == nullptr ? rule.points : *groupPoints;
    }
};

QSOValuation::QSOValuation(const ContestRules& contestRules, ContestFields& fields) : rules(contestRules) {
    if (const auto* const km = std::get_if<points::DistanceKm>(&rules.points)) {
        myField = fields.add(km->myField);
        theirField = fields.add(km->theirField);
    } else if (const auto* const iaru = std::get_if<points::DistanceKmIaru>(&rules.points)) {
        myField = fields.add(iaru->myField);
        theirField = fields.add(iaru->theirField);
    } else if (const auto* const number = std::get_if<points::AdifField>(&rules.points)) {
        theirField = fields.add(number->field);
    }
}

std::int64_t QSOValuation::points(const ContestFields& fields, std::string_view band,
                                  const WorkedStation& worked) {
    return std::visit(QSO{*this, fields, band, worked}, rules.points);
}

std::optional<QSOValuation::Ends> QSOValuation::ends(const ContestFields& fields) {
    std::string_view own = fields.valueOrEmpty(myField);
    if (own.empty()) {
        own = rules.station.gridSquare;
    }
    if (own != ownLocator) {
        // A log has one own locator or a few, so it is not read anew for each QSO.
        ownLocator = own;
        ownPlace = maidenheadToCoordinate(own);
    }
    const auto other = ownPlace ? maidenheadToCoordinate(fields.valueOrEmpty(theirField)) : std::nullopt;
    return other ? std::optional(Ends{*ownPlace, *other}) : std::nullopt;
}

}  // namespace tallyrig
