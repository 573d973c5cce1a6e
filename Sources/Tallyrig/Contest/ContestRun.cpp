// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Contest/ContestRun.h"

#include "Tallyrig/Contest/DuplicateSearch.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>
#include <variant>

namespace tallyrig {

namespace {

/// What is said of a QSO for which the condition does not hold.
struct ProblemOfRelation {
    std::string operator()(const relation::WorkedCountryIs& test) const {
        return "Partner nicht im DXCC-Gebiet " + test.code;
    }
    std::string operator()(const relation::WorkedCountryIn&) const {
        return "Partner nicht im geforderten Land";
    }
    std::string operator()(const relation::WorkedCountryNotIn&) const {
        return "Partner im ausgeschlossenen Land";
    }
    std::string operator()(const relation::BothInContinent& test) const {
        return "nicht beide in " + test.continent;
    }
    std::string operator()(const relation::WorkedContinentIs& test) const {
        return "Partner nicht in Kontinent " + test.continent;
    }
    std::string operator()(const relation::And&) const { return "Bedingung nicht erfüllt"; }
    std::string operator()(const relation::SameCountry&) const { return "nicht im eigenen Land"; }
    std::string operator()(const relation::SameCqZone&) const { return "andere Zone"; }
    std::string operator()(const relation::SameItuZone&) const { return "andere Zone"; }
    std::string operator()(const relation::SameContinent&) const { return "nicht im eigenen Kontinent"; }
    std::string operator()(const relation::DifferentContinent&) const {
        return "kein interkontinentales QSO";
    }
    std::string operator()(const relation::IsPortable&) const { return "keine Portabel-Station"; }
    std::string operator()(const relation::Any&) const { return "ungültig"; }
};

/// What the findings remove the QSO by, if they do.
std::optional<ContestLedger::Removal> removalOf(UUID id, const Adjudication& adjudication) {
    const auto& [statuses, penalties] = adjudication;
    const auto found = statuses.find(id);
    if (found == statuses.end()) {
        return std::nullopt;
    }
    const CrossCheckStatus status = found->second;
    if (status == CrossCheckStatus::notInLog) {
        return ContestLedger::Removal{status, penalties.nilPenaltyFactor};
    }
    if (status == CrossCheckStatus::bustedCall ||
        (status == CrossCheckStatus::bustedExchange && penalties.removeBustedExchange)) {
        return ContestLedger::Removal{status, penalties.bustedPenaltyFactor};
    }
    return std::nullopt;
}

}  // namespace

ContestRun::ContestRun(const ContestRules& contestRules, std::span<const Adjudication> allAdjudications)
    : rules(contestRules),
      adjudications(allAdjudications),
      band(fields, "BAND"),
      mode(fields, "MODE"),
      readsMode(rules.modes || std::ranges::any_of(rules.multipliers, &ContestMultiplier::perMode)),
      relations(rules, fields),
      valuation(rules, fields) {
    for (const UpperText& field : rules.requiredFields) {
        requiredFields.push_back(fields.add(field));
    }
    for (std::size_t count = adjudications.size(); count > 0; --count) {
        ledgers.emplace_back(rules, fields);
    }
    if (rules.validRelation) {
        relationProblem = std::visit(ProblemOfRelation(), *rules.validRelation);
    }
}

std::vector<ContestScore> ContestRun::scores(const ADIFDocument& log) {
    for (ContestLedger& ledger : ledgers) {
        ledger.reserve(log.records().size());
    }
    DuplicateSearch duplicates(rules, log.records());
    ContestQSOResult qso;
    for (const ADIFRecord& record : log.records()) {
        fields.read(record);
        qso.id = record.id();
        // An invalid QSO is remembered too: the valid one that comes later is its duplicate.
        qso.isDupe = duplicates.isNextDuplicate();
        scoreQSO(qso);
        ++qso.index;
    }
    std::vector<ContestScore> scores;
    std::ranges::transform(ledgers, std::back_inserter(scores), &ContestLedger::take);
    return scores;
}

void ContestRun::scoreQSO(ContestQSOResult& qso) {
    turnToPlace();
    const RelationTable::Verdict& relation = relations.read(fields);
    findProblems(relation.validity);
    qso.problems = problems.take();
    for (ContestLedger& ledger : ledgers) {
        ledger.add(qso);
    }
    if (qso.isFlagged()) {
        return;
    }
    const std::int64_t points = valuation.points(fields, relation.rule);
    for (std::size_t number = 0; number < ledgers.size(); ++number) {
        if (const auto removal = removalOf(qso.id, adjudications[number])) {
            ledgers[number].remove(*removal, points, band);
        } else {
            ledgers[number].count(points, fields, band, mode);
        }
    }
}

/// The band and the mode of the record at hand.
void ContestRun::turnToPlace() {
    if (band.turn(fields)) {
        if (band.isNew()) {
            isBandAllowed.push_back(!rules.bands ||
                                    (!band.name().empty() && rules.bands->contains(band.name())));
        }
        valuation.turnToBand(band.key());
    }
    if (readsMode && mode.turn(fields)) {
        isModeAllowed = !rules.modes || (!mode.name().empty() && rules.modes->contains(mode.name()));
    }
}

void ContestRun::findProblems(RelationAnswer validity) {
    if (!isBandAllowed[band.number()]) {
        addProblemOf("Band", band.name());
    }
    if (!isModeAllowed) {
        addProblemOf("Modus", mode.name());
    }
    for (std::size_t index = 0; index < requiredFields.size(); ++index) {
        if (fields.isBlank(requiredFields[index])) {
            problems.add(rules.requiredFields[index].string(), " fehlt");
        }
    }
    if (validity == RelationAnswer::unknown) {
        problems.add("Beziehung nicht prüfbar (CONT/Zone fehlt)");
    } else if (validity == RelationAnswer::doesNotHold) {
        problems.add(relationProblem);
    }
}

/// The band or mode of this name is missing or not allowed.
void ContestRun::addProblemOf(const char* kind, const std::string& name) {
    if (name.empty()) {
        problems.add(kind, " fehlt");
    } else {
        problems.add(kind, " ", name, " nicht erlaubt");
    }
}

}  // namespace tallyrig
