#include "Tallyrig/Contest/ContestRun.h"

#include "Tallyrig/Contest/Saturation.h"
#include "Tallyrig/Geography/DXCCInfo.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace tallyrig {

namespace {

constexpr char separator = '\x1F';

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
      bandField(fields.add("BAND")),
      modeField(fields.add("MODE")),
      callField(fields.add("CALL")),
      readsStation(rules.validRelation || std::holds_alternative<points::ByRelation>(rules.points)),
      valuation(rules, fields) {
    for (const UpperText& field : rules.requiredFields) {
        requiredFields.push_back(fields.add(field));
    }
    for (const UpperText& field : rules.dupeFields) {
        dupeFields.push_back(fields.add(field));
    }
    if (readsStation) {
        dxccField = fields.add("DXCC");
        cqZoneField = fields.add("CQZ");
        ituZoneField = fields.add("ITUZ");
        continentField = fields.add("CONT");
    }
    for (const ContestMultiplier& multiplier : rules.multipliers) {
        readsMode = readsMode || multiplier.perMode;
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
    dupeKeys = KeyNumbers(dupeFields.empty() ? 0 : result.totalQSOs);
    for (const ADIFRecord& record : log.records()) {
        fields.read(record);
        ContestQSOResult& qso = result.results.emplace_back();
        qso.id = record.id();
        qso.index = result.results.size() - 1;
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
    turnToBand();
    if (readsStation) {
        readStation();
    }
    findProblems(qso.problems);
    // An invalid QSO is remembered too: the valid one that comes later is its duplicate.
    qso.isDupe = isDuplicate();
    if (!qso.problems.empty() || qso.isDupe) {
        return;
    }
    if (const auto removal = removalOf(qso.id)) {
        remove(qso, *removal);
    } else {
        count(qso);
    }
}

void ContestRun::turnToBand() {
    bandName = fields.upper(bandField);
    // Most QSOs are on the band of the one before.
    if (!bands.empty() && bandName == lastBandName) {
        return;
    }
    lastBandName = bandName;
    const KeyNumbers::Entry entry =
        text::isASCII(bandName) ? bandNumbers.add(bandName) : bandNumbers.add(text::canonicalKey(bandName));
    bandNumber = entry.number;
    if (entry.isNew) {
        bands.push_back({!rules.bands || (!bandName.empty() && rules.bands->contains(bandName)),
                         !rules.dupeBands || rules.dupeBands->contains(bandName), 0, 0});
    }
}

void ContestRun::readStation() {
    const std::string_view continent = fields.upper(continentField);
    worked.call = fields.upper(callField);
    worked.dxcc = fields.trimmed(dxccField);
    worked.cqZone = fields.trimmed(cqZoneField);
    worked.ituZone = fields.trimmed(ituZoneField);
    worked.continent = continent.empty() ? DXCCInfo::continentOfEntity(worked.dxcc) : continent;
}

void ContestRun::findProblems(std::vector<std::string>& problems) {
    if (!bands[bandNumber].isAllowed) {
        problems.push_back(bandName.empty() ? "Band fehlt"
                                            : "Band " + std::string(bandName) + " nicht erlaubt");
    }
    if (rules.modes) {
        const std::string_view mode = fields.upper(modeField);
        if (mode.empty()) {
            problems.emplace_back("Modus fehlt");
        } else if (!rules.modes->contains(mode)) {
            problems.push_back("Modus " + std::string(mode) + " nicht erlaubt");
        }
    }
    for (std::size_t index = 0; index < requiredFields.size(); ++index) {
        if (fields.trimmed(requiredFields[index]).empty()) {
            problems.push_back(rules.requiredFields[index].string() + " fehlt");
        }
    }
    if (rules.validRelation) {
        const RelationAnswer answer = rules.validRelation->matches(worked, rules.station);
        if (answer == RelationAnswer::unknown) {
            problems.emplace_back("Beziehung nicht prüfbar (CONT/Zone fehlt)");
        } else if (answer == RelationAnswer::doesNotHold) {
            problems.push_back(relationProblem);
        }
    }
}

bool ContestRun::isDuplicate() {
    if (dupeFields.empty() || !bands[bandNumber].hasDuplicates) {
        return false;
    }
    dupeKey.clear();
    for (const std::size_t field : dupeFields) {
        dupeKey.append(fields.upper(field)) += separator;
    }
    return !(text::isASCII(dupeKey) ? dupeKeys.add(dupeKey) : dupeKeys.add(text::canonicalKey(dupeKey)))
                .isNew;
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

void ContestRun::remove(ContestQSOResult& qso, const Removal& removal) {
    const std::int64_t penalty = saturatedProduct(removal.factor, valuation.points(fields, bandName, worked));
    Band& band = bands[bandNumber];
    ++result.removedQSOs;
    result.penaltyPoints = saturatedSum(result.penaltyPoints, penalty);
    result.qsoPoints = saturatedDifference(result.qsoPoints, penalty);
    band.points = saturatedDifference(band.points, penalty);
    qso.points = saturatedDifference(0, penalty);
    qso.crossCheckRemoval = removal.status;
}

void ContestRun::count(ContestQSOResult& qso) {
    Band& band = bands[bandNumber];
    qso.points = valuation.points(fields, bandName, worked);
    result.qsoPoints = saturatedSum(result.qsoPoints, qso.points);
    band.points = saturatedSum(band.points, qso.points);
    const std::string_view mode = readsMode ? fields.upper(modeField) : std::string_view();
    for (Multiplier& multiplier : multipliers) {
        Tally& tally = tallies[multiplier.tally];
        const std::string_view key = multiplier.key.read(fields, bandName, mode);
        if (key.empty() || !tally.seen.add(key).isNew) {
            continue;
        }
        const std::int64_t* const weight =
            multiplier.rule.bandWeights ? multiplier.rule.bandWeights->find(bandName) : nullptr;
        const std::int64_t worth = weight == nullptr ? 1 : *weight;
        tally.count = saturatedSum(tally.count, worth);
        band.multiplierCount = saturatedSum(band.multiplierCount, worth);
        qso.newMultipliers.push_back(multiplier.rule.name);
    }
}

std::int64_t ContestRun::total() const {
    if (rules.multipliers.empty()) {
        return result.qsoPoints;
    }
    if (!rules.scorePerBand) {
        return saturatedProduct(result.qsoPoints, result.multiplierCount);
    }
    std::int64_t sum = 0;
    for (const Band& band : bands) {
        sum = saturatedSum(sum, saturatedProduct(band.points, band.multiplierCount));
    }
    return sum;
}

}  // namespace tallyrig
