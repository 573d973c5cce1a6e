// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Contest/QSOValuation.h"

#include "Tallyrig/Text/Numbers.h"

#include <cmath>
#include <variant>

namespace tallyrig {

namespace {

/// From so many QSOs at one place on, the tables for its distances are worth their while.
constexpr std::size_t manyQSOs = 200;

/// The number in `value`, rounded; 0 if it is none or has no place in 64 bits.
std::int64_t roundedNumber(std::string_view value) {
    return text::wholeNumber(std::round(text::number(value).value_or(0))).value_or(0);
}

}  // namespace

struct QSOValuation::QSO {
    QSOValuation& valuation;
    const ContestFields& fields;
    const RelationRule* rule;

    std::int64_t operator()(const points::Fixed& fixed) const { return fixed.points; }
    std::int64_t operator()(const points::PerBand&) const { return valuation.bandPoints; }
    std::int64_t operator()(const points::DistanceKm&) const {
        const auto km = valuation.greatCircleKm(fields);
        return km ? std::llround(*km) : 0;
    }
    std::int64_t operator()(const points::DistanceKmIaru&) const {
        const auto km = valuation.greatCircleKm(fields);
        return km ? static_cast<std::int64_t>(*km) + 1 : 0;
    }
    std::int64_t operator()(const points::AdifField&) const {
        return roundedNumber(fields.valueOrEmpty(valuation.theirField));
    }
    std::int64_t operator()(const points::ByRelation&) const {
        if (rule == nullptr) {
            return 0;
        }
        const std::int64_t* const groupPoints = valuation.bandGroup != nullptr && rule->bandGroupPoints
                                                    ? rule->bandGroupPoints->find(*valuation.bandGroup)
                                                    : nullptr;
        return groupPoints == nullptr ? rule->points : *groupPoints;
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

void QSOValuation::turnToBand(std::string_view band) {
    bandGroup = rules.bandGroups ? rules.bandGroups->find(band) : nullptr;
    if (const auto* const perBand = std::get_if<points::PerBand>(&rules.points)) {
        const std::int64_t* const entry = perBand->table.find(band);
        bandPoints = entry == nullptr ? perBand->fallback : *entry;
    }
}

std::int64_t QSOValuation::points(const ContestFields& fields, const RelationRule* rule) {
    return std::visit(QSO{*this, fields, rule}, rules.points);
}

std::optional<double> QSOValuation::greatCircleKm(const ContestFields& fields) {
    std::string_view own = fields.valueOrEmpty(myField);
    if (own.empty()) {
        own = rules.station.gridSquare;
    }
    if (own != ownLocator) {
        // A log has one own locator or a few, so it is not read anew for each QSO.
        ownLocator = own;
        ownPlace = maidenheadToCoordinate(own);
        qsosFromThere = 0;
        distances.reset();
    }
    if (!ownPlace) {
        return std::nullopt;
    }
    const std::string_view their = fields.valueOrEmpty(theirField);
    if (++qsosFromThere < manyQSOs) {
        const auto place = maidenheadToCoordinate(their);
        return place ? std::optional(tallyrig::greatCircleKm(*ownPlace, *place)) : std::nullopt;
    }
    if (!distances) {
        distances.emplace(*ownPlace);
    }
    return distances->greatCircleKm(their);
}

}  // namespace tallyrig
