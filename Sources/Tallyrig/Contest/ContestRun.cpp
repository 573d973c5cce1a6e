#include "Tallyrig/Contest/ContestRun.h"

#include "Tallyrig/Contest/DuplicateSearch.h"
#include "Tallyrig/Contest/Saturation.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <utility>
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

}  // namespace

ContestRun::ContestRun(const ContestRules& contestRules, const CrossCheck& findings,
                       const CrossCheckPenalties& costs)
    : rules(contestRules),
      crossCheck(findings),
      penalties(costs),
      band(fields, "BAND"),
      mode(fields, "MODE"),
      readsMode(rules.modes || std::ranges::any_of(rules.multipliers, &ContestMultiplier::perMode)),
      relations(rules, fields),
      valuation(rules, fields) {
    for (const UpperText& field : rules.requiredFields) {
        requiredFields.push_back(fields.add(field));
    }
    for (const ContestMultiplier& multiplier : rules.multipliers) {
        const auto known = std::ranges::find_if(
            tallies, [&](const Tally& tally) { return text::equal(tally.name, multiplier.name); });
        const auto tally = static_cast<std::size_t>(known - tallies.begin());
        if (known == tallies.end()) {
            tallies.push_back({multiplier.name, KeyNumbers(), 0});
        }
        multipliers.push_back({multiplier, MultiplierKey(multiplier, fields), tally});
    }
    if (rules.validRelation) {
        relationProblem = std::visit(ProblemOfRelation(), *rules.validRelation);
    }
}

ContestScore ContestRun::score(const ADIFDocument& log) {
    result.contestName = rules.name;
    result.totalQSOs = log.records().size();
    result.results.reserve(result.totalQSOs);
    DuplicateSearch duplicates(rules, log.records());
    for (const ADIFRecord& record : log.records()) {
        fields.read(record);
        ContestQSOResult& qso = result.results.emplace_back();
        qso.id = record.id();
        qso.index = result.results.size() - 1;
        // An invalid QSO is remembered too: the valid one that comes later is its duplicate.
        qso.isDupe = duplicates.isNextDuplicate();
        scoreQSO(qso);
        result.countedQSOs += qso.isCounted() ? 1 : 0;
        result.dupeQSOs += qso.isDupe ? 1 : 0;
        result.invalidQSOs += qso.problems.empty() ? 0 : 1;
    }
    for (const Tally& tally : tallies) {
        result.multiplierCount = saturatedSum(result.multiplierCount, tally.count);
    }
    result.total = total();
    for (const Multiplier& multiplier : multipliers) {
        result.multiplierBreakdown.push_back({multiplier.rule.name, tallies[multiplier.tally].count});
    }
    return std::move(result);
}

void ContestRun::scoreQSO(ContestQSOResult& qso) {
    turnToPlace();
    const RelationTable::Verdict& relation = relations.read(fields);
    findProblems(relation.validity);
    qso.problems = problems.take();
    if (!qso.problems.empty() || qso.isDupe) {
        return;
    }
    const std::int64_t points = valuation.points(fields, relation.rule);
    if (const auto removal = removalOf(qso.id)) {
        remove(qso, *removal, points);
    } else {
        count(qso, points);
    }
}

/// The band and the mode of the record at hand.
void ContestRun::turnToPlace() {
    if (band.turn(fields)) {
        if (band.isNew()) {
            bands.push_back(
                {!rules.bands || (!band.name().empty() && rules.bands->contains(band.name())), 0, 0});
        }
        valuation.turnToBand(band.key());
    }
    if (readsMode && mode.turn(fields)) {
        isModeAllowed = !rules.modes || (!mode.name().empty() && rules.modes->contains(mode.name()));
    }
}

void ContestRun::findProblems(RelationAnswer validity) {
    if (!bands[band.number()].isAllowed) {
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

std::optional<ContestRun::Removal> ContestRun::removalOf(UUID id) const {
    const auto found = crossCheck.find(id);
    if (found == crossCheck.end()) {
        return std::nullopt;
    }
    const CrossCheckStatus status = found->second;
    if (status == CrossCheckStatus::notInLog) {
        return Removal{status, penalties.nilPenaltyFactor};
    }
    if (status == CrossCheckStatus::bustedCall ||
        (status == CrossCheckStatus::bustedExchange && penalties.removeBustedExchange)) {
        return Removal{status, penalties.bustedPenaltyFactor};
    }
    return std::nullopt;
}

void ContestRun::remove(ContestQSOResult& qso, const Removal& removal, std::int64_t points) {
    const std::int64_t penalty = saturatedProduct(removal.factor, points);
    Band& gathered = bands[band.number()];
    ++result.removedQSOs;
    result.penaltyPoints = saturatedSum(result.penaltyPoints, penalty);
    result.qsoPoints = saturatedDifference(result.qsoPoints, penalty);
    gathered.points = saturatedDifference(gathered.points, penalty);
    qso.points = saturatedDifference(0, penalty);
    qso.crossCheckRemoval = removal.status;
}

void ContestRun::count(ContestQSOResult& qso, std::int64_t points) {
    Band& gathered = bands[band.number()];
    qso.points = points;
    result.qsoPoints = saturatedSum(result.qsoPoints, points);
    gathered.points = saturatedSum(gathered.points, points);
    for (Multiplier& multiplier : multipliers) {
        Tally& tally = tallies[multiplier.tally];
        if (!multiplier.key.addNew(fields, band, mode, tally.seen)) {
            continue;
        }
        const std::int64_t* const weight =
            multiplier.rule.bandWeights ? multiplier.rule.bandWeights->find(band.key()) : nullptr;
        const std::int64_t worth = weight == nullptr ? 1 : *weight;
        tally.count = saturatedSum(tally.count, worth);
        gathered.multiplierCount = saturatedSum(gathered.multiplierCount, worth);
        newMultipliers.add(multiplier.rule.name);
    }
    qso.newMultipliers = newMultipliers.take();
}

std::int64_t ContestRun::total() const {
    if (rules.multipliers.empty()) {
        return result.qsoPoints;
    }
    if (!rules.scorePerBand) {
        return saturatedProduct(result.qsoPoints, result.multiplierCount);
    }
    std::int64_t sum = 0;
    for (const Band& gathered : bands) {
        sum = saturatedSum(sum, saturatedProduct(gathered.points, gathered.multiplierCount));
    }
    return sum;
}

}  // namespace tallyrig
