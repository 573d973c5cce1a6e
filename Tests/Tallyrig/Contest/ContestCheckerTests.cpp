// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Contest/ContestChecker.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tallyrig {
namespace {

using namespace relation;
using namespace points;

constexpr auto most = std::numeric_limits<std::int64_t>::max();
constexpr auto least = std::numeric_limits<std::int64_t>::min();

ADIFDocument log(const std::vector<std::string_view>& qsos) {
    std::vector<testing::Pairs> records;
    for (const std::string_view qso : qsos) {
        records.push_back(testing::fields(qso));
    }
    return testing::document(records);
}

ContestScore score(const ContestRules& rules, const std::vector<std::string_view>& qsos) {
    return ContestChecker(rules).score(log(qsos));
}

const ContestStation swiss = {"287", "EU", "14", "28", "JN47"};

ContestRules onePoint() {
    return {.name = "Probe", .station = swiss, .dupeFields = {"call", "band"}, .points = Fixed{1}};
}

/// One point for each QSO and this multiplier.
ContestRules with(const ContestMultiplier& multiplier) {
    ContestRules rules = onePoint();
    rules.multipliers = {multiplier};
    return rules;
}

TEST(Problems, StandInTheOrderOfTheirTests) {
    ContestRules rules = onePoint();
    rules.bands = UpperTextSet{"20m", "40m"};
    rules.modes = UpperTextSet{"cw"};
    rules.requiredFields = {"srx", "cqz"};
    rules.validRelation = WorkedCountryNotIn{{"291"}};
    const std::pair<std::string_view, std::vector<std::string>> cases[] = {
        {"CALL=DL1ABC | BAND= 20m\t | MODE=cw | SRX=1 | CQZ=14", {}},
        {"CALL=XX1ABC",
         {"Band fehlt", "Modus fehlt", "SRX fehlt", "CQZ fehlt",
          "Beziehung nicht prüfbar (CONT/Zone fehlt)"}},
        {"CALL=K1ABC | BAND=2m | MODE= ssb | SRX=1 | CQZ=\u00A0",
         {"Band 2M nicht erlaubt", "Modus SSB nicht erlaubt", "CQZ fehlt",
          "Partner im ausgeschlossenen Land"}},
        {"CALL=DL2ABC | BAND=20M | MODE=CW | SRX=\n | CQZ=14", {}},
    };
    for (const auto& [qso, problems] : cases) {
        const ContestQSOResult result = score(rules, {qso}).results.front();
        EXPECT_EQ(result.problems, problems) << qso;
        EXPECT_EQ(result.points, problems.empty() ? 1 : 0) << qso;
    }
}

TEST(Problems, OfManyQSOsAreOneListInMemory) {
    ContestRules rules = onePoint();
    rules.bands = UpperTextSet{"20M"};
    rules.requiredFields = {"SRX"};
    const ContestScore result = score(rules, {"A=1", "A=2 | BAND=2M", "A=3", "A=4 | SRX=1"});
    const auto list = [&](std::size_t index) -> const std::vector<std::string>& {
        return result.results[index].problems;
    };
    EXPECT_EQ(list(0), (std::vector<std::string>{"Band fehlt", "SRX fehlt"}));
    EXPECT_EQ(list(1), (std::vector<std::string>{"Band 2M nicht erlaubt", "SRX fehlt"}));
    EXPECT_EQ(&list(2), &list(0));
    EXPECT_EQ(list(3), std::vector<std::string>{"Band fehlt"});
}

TEST(Problems, NameTheRelationThatIsMissing) {
    const std::pair<RelationCondition, std::string_view> cases[] = {
        {WorkedCountryIs{"230"}, "Partner nicht im DXCC-Gebiet 230"},
        {WorkedCountryIn{{"230"}}, "Partner nicht im geforderten Land"},
        {WorkedCountryNotIn{{"291"}}, "Partner im ausgeschlossenen Land"},
        {BothInContinent{"eu"}, "nicht beide in eu"},
        {WorkedContinentIs{"As"}, "Partner nicht in Kontinent As"},
        {And{{IsPortable{}}}, "Bedingung nicht erfüllt"},
        {SameCountry{}, "nicht im eigenen Land"},
        {SameCqZone{}, "andere Zone"},
        {SameItuZone{}, "andere Zone"},
        {SameContinent{}, "nicht im eigenen Kontinent"},
        {IsPortable{}, "keine Portabel-Station"},
    };
    ContestRules rules = onePoint();
    for (const auto& [condition, problem] : cases) {
        rules.validRelation = condition;
        EXPECT_EQ(score(rules, {"CALL=K1ABC"}).results[0].problems,
                  std::vector<std::string>{std::string(problem)});
    }
    rules.validRelation = DifferentContinent{};
    EXPECT_EQ(score(rules, {"CALL=DL1ABC"}).results[0].problems,
              std::vector<std::string>{"kein interkontinentales QSO"});
}

/// "d" for each duplicate.
std::string dupesOf(const ContestScore& score) {
    std::string dupes;
    for (const ContestQSOResult& qso : score.results) {
        dupes += qso.isDupe ? 'd' : '.';
    }
    return dupes;
}

TEST(Duplicates, AgreeInTheirFieldsWhateverElseIsWrong) {
    ContestRules rules = onePoint();
    rules.modes = UpperTextSet{"CW"};
    const std::vector<std::string_view> qsos = {
        "CALL=DL1ABC | BAND=20M | MODE=FM",  // invalid, yet remembered
        "CALL=dl1abc | BAND= 20m | MODE=CW",
        "CALL=DL1ABC | BAND=40M | MODE=CW",
        "CALL=DL1ABC | BAND=40M | MODE=FM",
        "MODE=CW",
        "CALL= | BAND=\t | MODE=CW",
        "CALL=DL1\u00C4BC | BAND=2M | MODE=CW",
        "CALL=DL1A\u0308BC | BAND=2M | MODE=CW"};
    const ContestScore byCallAndBand = score(rules, qsos);
    EXPECT_EQ(dupesOf(byCallAndBand), ".d.d.d.d");
    EXPECT_EQ(byCallAndBand.countedQSOs, 3U);
    EXPECT_EQ(byCallAndBand.invalidQSOs, 2U);
    EXPECT_EQ(byCallAndBand.dupeQSOs, 4U);
    rules.dupeBands = UpperTextSet{"20m", "80m"};
    EXPECT_EQ(dupesOf(score(rules, qsos)), ".d......");
    rules.dupeBands = std::nullopt;
    rules.dupeFields = {};
    EXPECT_EQ(dupesOf(score(rules, qsos)), "........");
    rules.dupeFields = {"CALL", "BAND", "MODE"};
    EXPECT_EQ(dupesOf(score(rules, qsos)), ".....d.d");
}

TEST(Duplicates, AreFoundThroughoutALongLog) {
    std::vector<testing::Pairs> records;
    for (const std::size_t call : {0U, 1U, 1U, 2U, 63U, 64U, 65U, 200U, 0U, 201U, 200U, 63U}) {
        while (records.size() < call) {
            records.push_back({{"CALL", std::to_string(records.size())}, {"BAND", "40M"}});
        }
        records.push_back({{"CALL", std::to_string(call)}, {"BAND", "40m"}});
    }
    std::string expected(records.size(), '.');
    for (const std::size_t index : {2U, 201U, 203U, 204U}) {
        expected[index] = 'd';
    }
    EXPECT_EQ(dupesOf(ContestChecker(onePoint()).score(testing::document(records))), expected);
}

TEST(Points, GoByTheKindOfValuation) {
    const TextMap<std::int64_t> low = {{"low", 6}};
    const ContestPoints byRelation = ByRelation{{{SameContinent{}, 3, low},
                                                 {WorkedCountryNotIn{{"291"}}, 4, low},
                                                 {IsPortable{}, 5},
                                                 {SameCountry{}, 7}}};
    const struct {
        ContestPoints points;
        std::string_view qso;
        std::int64_t expected;
    } cases[] = {
        {Fixed{-2}, "", -2},
        {PerBand{{{"80M", 4}}, 1}, "BAND=80m", 4},
        {PerBand{{{"80M", 4}}, 1}, "BAND=40m", 1},
        {DistanceKm{"MY_GRIDSQUARE", "GRIDSQUARE"}, "MY_GRIDSQUARE=JO62 | GRIDSQUARE= jo63 ", 111},
        {DistanceKm{"MY_GRIDSQUARE", "GRIDSQUARE"}, "MY_GRIDSQUARE=JO62QM | GRIDSQUARE=JO62RM", 6},
        {DistanceKm{"MY_GRIDSQUARE", "GRIDSQUARE"}, "MY_GRIDSQUARE= | GRIDSQUARE=JN47", 0},
        {DistanceKmIaru{"MY_GRIDSQUARE", "GRIDSQUARE"}, "MY_GRIDSQUARE=JO62QM | GRIDSQUARE=JO62RM", 6},
        {DistanceKmIaru{"MY_GRIDSQUARE", "GRIDSQUARE"}, "GRIDSQUARE=JN48", 112},
        {DistanceKmIaru{"MY_GRIDSQUARE", "GRIDSQUARE"}, "GRIDSQUARE=JN47", 1},
        {DistanceKmIaru{"MY_GRIDSQUARE", "GRIDSQUARE"}, "GRIDSQUARE=Bern", 0},
        {DistanceKmIaru{"MY_GRIDSQUARE", "GRIDSQUARE"}, "MY_GRIDSQUARE=\u0020 | GRIDSQUARE=JN47", 0},
        {AdifField{"distance"}, "DISTANCE= 12.5", 13},
        {AdifField{"DISTANCE"}, "DISTANCE=-0.5", -1},
        {AdifField{"DISTANCE"}, "DISTANCE=0x10", 16},
        {AdifField{"DISTANCE"}, "DISTANCE=12.5 ", 0},
        {AdifField{"DISTANCE"}, "DISTANCE=inf", 0},
        {AdifField{"DISTANCE"}, "DISTANCE=nan", 0},
        {AdifField{"DISTANCE"}, "DISTANCE=9223372036854775808", 0},
        {AdifField{"DISTANCE"}, "DISTANCE=-9223372036854775808", 0},
        {AdifField{"DISTANCE"}, "", 0},
        {AdifField{"dxcc"}, "CALL=DL1ABC", 230},
        {byRelation, "CALL=HB9ABC | BAND=80M", 6},
        {byRelation, "CALL=HB9ABC | BAND=20M", 3},
        {byRelation, "CALL=HB9ABC | BAND=2M", 3},
        {byRelation, "CALL=XX1ABC/P", 5},  // what cannot be answered does not hold
        {byRelation, "CALL=XX1ABC", 0},
        {ByRelation{}, "CALL=HB9ABC", 0},
    };
    ContestRules rules = onePoint();
    rules.bandGroups = UpperTextMap<std::string>{{"80m", "low"}, {"20m", "Low"}};
    for (const auto& [points, qso, expected] : cases) {
        rules.points = points;
        EXPECT_EQ(score(rules, {qso}).qsoPoints, expected) << points.index() << ": " << qso;
    }
}

// What comes again and again is kept.
TEST(Points, AreTheSameInALongLog) {
    ContestRules rules = {.name = "Probe", .station = swiss, .points = DistanceKm{"MY_GRIDSQUARE", "GRID"}};
    std::vector<std::string_view> qsos(300, "GRID=JN47 | MY_GRIDSQUARE=JN48");
    qsos.insert(qsos.end(), 300, "GRID=JN48");
    qsos.insert(qsos.end(), {"GRID=JN49 | MY_GRIDSQUARE=JN48", "GRID=JN49", "GRID=JN"});
    EXPECT_EQ(score(rules, qsos).qsoPoints, 600 * 111 + 111 + 222);

    rules.points = ByRelation{{{IsPortable{}, 7}, {SameCqZone{}, 5}, {SameContinent{}, 3}}};
    qsos = {"DXCC=287", "DXCC=287 | CQZ=14", "DXCC=287 | CQZ=1", "DXCC=287 | CONT=as", "DXCC=287 | CALL=A/P",
            "DXCC=2",   "DXCC=2 | CONT=EU",  "DXCC=287 | CQZ=4"};
    qsos.insert(qsos.end(), qsos.begin(), qsos.end());
    EXPECT_EQ(score(rules, qsos).qsoPoints, 2 * (3 + 5 + 3 + 0 + 7 + 0 + 3 + 3));
}

TEST(Multiplier, IsTheValueThatPassesItsTests) {
    using Values = std::vector<std::string_view>;
    const UpperTextSet cantons = {"zh", "be"};
    const struct {
        ContestMultiplier multiplier;
        Values qsos;
        std::int64_t count;
    } cases[] = {
        {{.name = "M", .field = "state"}, {"STATE=a", "STATE= A\t", "STATE=", "NAME=b"}, 1},
        // The first field with a value hides the others, though its value does not count.
        {{.name = "M", .field = "A", .fallbackFields = {"b"}, .alphabeticOnly = true}, {"A=1 | B=X"}, 0},
        {{.name = "M", .field = "A", .fallbackFields = {"b"}, .alphabeticOnly = true}, {"A= | B=X"}, 1},
        // Where values are named, a field without one does not.
        {{.name = "M", .field = "A", .fallbackFields = {"B"}, .allowedValues = cantons},
         {"A=1 | B=59 Be ZH"},
         1},
        {{.name = "M", .field = "A", .allowedValues = UpperTextSet{"a b", "b"}}, {"A=a b", "A=b"}, 2},
        {{.name = "M", .field = "A", .allowedValues = cantons, .prefixLength = 1}, {"A=ZH"}, 0},
        {{.name = "M", .field = "A", .excludedValues = cantons, .prefixLength = 2},
         {"A=zhx", "A=ax", "A=ay"},
         2},
        {{.name = "M", .field = "A", .token = MultiplierToken::last}, {"A=59 1", "A=59  1 ", "A=59\t1"}, 2},
        {{.name = "M", .field = "A", .token = MultiplierToken::first}, {"A=59 1", "A=59 2"}, 1},
        {{.name = "M", .field = "A", .token = MultiplierToken::whole}, {"A=59 1", "A=59 2"}, 2},
        {{.name = "M", .field = "A", .alphabeticOnly = true},
         {"A=Ä", "A=A\u0308", "A=A1", "A=a b", "A=Ж"},
         2},
        {{.name = "M", .field = "A", .mustContainLetter = true}, {"A=12", "A=1\u0301", "A=z2", "A=1ж"}, 2},
        {{.name = "M", .field = "A", .prefixLength = 1}, {"A=K\u0301x", "A=Kx", "A=\u212Ay"}, 2},
        {{.name = "M", .field = "A", .prefixLength = 0}, {"A=ab", "A=ac"}, 2},
        {{.name = "M", .field = "A", .prefixLength = 100}, {"A=ab", "A=ac"}, 2},
        {{.name = "M", .field = "A", .perBand = true},
         {"A=x | BAND=20m", "A=x | BAND=20M | MODE=CW", "A=x"},
         2},
        {{.name = "M", .field = "A", .perMode = true}, {"A=x | MODE=cw", "A=x | MODE= CW", "A=x"}, 2},
        {{.name = "M", .field = "A", .perBand = true, .perMode = true},
         {"A=x | MODE=1 | BAND=2", "A=x | MODE=2 | BAND=1", "A=x | BAND=1 | MODE=2"},
         2},
        {{.name = "M", .field = "A", .bandWeights = UpperTextMap<std::int64_t>{{"80m", 4}, {"2M", -1}}},
         {"A=x | BAND=80M", "A=x | BAND=40M", "A=y | BAND=40M", "A=z | BAND=2M"},
         4},
        {{.name = "M", .kind = MultiplierKind::wpxPrefix},
         {"CALL=dl1abc", "CALL=DL1X", "CALL=W1A/4", "CALL="},
         2},
        {{.name = "M", .kind = MultiplierKind::callAreaPerDxcc},
         {"CALL=SM5A", "CALL=SM5X/P", "CALL=SM", "CALL=SM0A", "CALL=OH5A", "CALL=XX5A", "CALL=SM5A | DXCC=a",
          "CALL=SM5A | DXCC=A"},
         4},
        {{.name = "M", .field = ""}, {"A=x"}, 0},
        // A value that was not allowed before leaves the next field to be asked again.
        {{.name = "M", .field = "A", .fallbackFields = {"B"}, .allowedValues = UpperTextSet{"X", "Y"}},
         {"A=q | B=x", "A=x | B=y", "A=q | B=y", "A=q | B=z"},
         2},
        {{.name = "M", .field = "A", .perBand = true, .perMode = true},
         {"A=x | BAND=2M", "A=x | BAND=2m | MODE=cw", "A=x | BAND=2M | MODE=SSB", "A=X | BAND=2M | MODE=CW",
          "A=long enough | BAND=2M", "A=Long enough | BAND=2M", "A=long enough | BAND=6M"},
         5},
    };
    for (const auto& [multiplier, qsos, count] : cases) {
        ContestRules rules = with(multiplier);
        rules.dupeFields = {};
        EXPECT_EQ(score(rules, qsos).multiplierCount, count)
            << &multiplier - &cases[0].multiplier << ": " << qsos[0];
    }
}

TEST(Multipliers, OfOneNameShareWhatTheyHaveSeen) {
    ContestRules rules = onePoint();
    rules.multipliers = {{.name = "Land", .field = "DXCC"},
                         {.name = "Ort", .field = "QTH"},
                         {.name = "Land", .field = "STATE"}};
    const ContestScore result = score(rules, {"CALL=DL1ABC | STATE=230 | QTH=230", "CALL=DL2ABC | STATE=X"});
    EXPECT_EQ(result.results[0].newMultipliers, (std::vector<std::string>{"Land", "Ort"}));
    EXPECT_EQ(result.results[1].newMultipliers, std::vector<std::string>{"Land"});
    EXPECT_EQ(result.multiplierBreakdown,
              (std::vector<ContestScore::Breakdown>{{"Land", 2}, {"Ort", 1}, {"Land", 2}}));
    EXPECT_EQ(result.multiplierCount, 3);
    EXPECT_EQ(result.total, 6);
}

TEST(Total, IsPointsTimesMultipliersInAllOrOnEachBand) {
    const std::vector<std::string_view> qsos = {"CALL=DL1A | BAND=20m", "CALL=F1A | BAND=20M",
                                                "CALL=DL1A | BAND=40M", "CALL=DL1B"};
    ContestRules rules = with({.name = "Land", .field = "DXCC", .perBand = true});
    EXPECT_EQ(score(rules, qsos).total, 4 * 4);
    rules.scorePerBand = true;
    EXPECT_EQ(score(rules, qsos).total, 2 * 2 + 1 * 1 + 1 * 1);
    rules.multipliers[0].field = "STATE";
    EXPECT_EQ(score(rules, qsos).total, 0);
    rules.multipliers = {};
    EXPECT_EQ(score(rules, qsos).total, 4);
    ContestScore nothing;
    nothing.contestName = "Probe";
    EXPECT_EQ(score(rules, {}), nothing);
}

TEST(Total, StandsAtTheLimitWhereItIsBeyond) {
    ContestRules rules = with({.name = "Land",
                               .field = "DXCC",
                               .bandWeights = UpperTextMap<std::int64_t>{{"20M", most}, {"40M", least}}});
    rules.points = AdifField{"P"};
    const std::vector<std::string_view> qsos = {"CALL=DL1A | BAND=20M | P=9e18",
                                                "CALL=F1A | BAND=20M | P=9e18"};
    EXPECT_EQ(score(rules, qsos).qsoPoints, most);
    EXPECT_EQ(score(rules, qsos).total, most);
    EXPECT_EQ(score(rules, {"CALL=DL1A | BAND=40M | P=2"}).total, least);
    EXPECT_EQ(score(rules, {"CALL=DL1A | BAND=40M | P=-2"}).total, most);
}

TEST(CrossCheck, TakesQSOsOutAndItsPenaltyWithThem) {
    using Status = CrossCheckStatus;
    ContestRules rules = with({.name = "Land", .field = "DXCC"});
    rules.points = Fixed{3};
    rules.scorePerBand = true;
    const ADIFDocument qsos = log({"CALL=DL1A | BAND=20M", "CALL=DL1B | BAND=20M", "CALL=F1A | BAND=20M",
                                   "CALL=F1B | BAND=40M", "CALL=DL1A | BAND=20M", "CALL=G1A | BAND=20M"});
    const auto checked = [&](const std::map<std::size_t, Status>& found,
                             const CrossCheckPenalties& penalties) {
        std::unordered_map<UUID, Status> byID;
        for (const auto& [index, status] : found) {
            byID[qsos.records()[index].id()] = status;
        }
        return ContestChecker(rules).score(qsos, byID, penalties);
    };
    const ContestScore claimed = ContestChecker(rules).score(qsos);
    EXPECT_EQ(claimed.total, 12 * 3 + 3 * 0);

    const ContestScore result = checked({{0, Status::notInLog},
                                         {2, Status::bustedExchange},
                                         {3, Status::bustedCall},
                                         {4, Status::notInLog},  // a duplicate is no more than that
                                         {5, Status::timeMismatch}},
                                        {true, 2, 1});
    const auto& qso = result.results;
    EXPECT_EQ(qso[0].points, -6);
    EXPECT_EQ(qso[0].crossCheckRemoval, Status::notInLog);
    EXPECT_FALSE(qso[0].isCounted());
    EXPECT_EQ(qso[1].newMultipliers, std::vector<std::string>{"Land"});  // the removed one left it
    EXPECT_EQ(qso[2].points, -3);
    EXPECT_EQ(qso[3].points, -3);
    EXPECT_EQ(qso[4].crossCheckRemoval, std::nullopt);
    EXPECT_EQ(qso[5].points, 3);
    EXPECT_EQ(result.removedQSOs, 3U);
    EXPECT_EQ(result.countedQSOs, 2U);
    EXPECT_EQ(result.penaltyPoints, 12);
    EXPECT_EQ(result.qsoPoints, 6 - 12);
    EXPECT_EQ(result.total, (6 - 9) * 2 + (0 - 3) * 0);

    EXPECT_EQ(checked({{0, Status::notInLog}}, {}).qsoPoints, 12);
    EXPECT_EQ(checked({{2, Status::bustedExchange}}, {false, 5, 5}), claimed);
    EXPECT_EQ(checked({{0, Status::notInLog}}, {true, -2, 0}).qsoPoints, 12 + 6);
    const ContestScore dear = checked({{0, Status::notInLog}, {1, Status::notInLog}}, {true, most, 0});
    EXPECT_EQ(dear.penaltyPoints, most);
    EXPECT_LT(dear.qsoPoints, -most + 10);
}

TEST(DerivedEntity, IsPutWhereTheRecordNamesNone) {
    using testing::fields;
    using testing::pairs;
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"CALL=DL1ABC", "CALL=DL1ABC | DXCC=230"},
        {"DXCC= \t | CALL=dl1abc/p", "DXCC=230 | CALL=dl1abc/p"},
        {"CALL=DL1ABC | DXCC=0", "CALL=DL1ABC | DXCC=0"},
        {"CALL=XX1ABC", "CALL=XX1ABC"},
        {"BAND=20M", "BAND=20M"},
    };
    for (const auto& [from, to] : cases) {
        const ADIFRecord record = testing::record(fields(from));
        const ADIFRecord derived = ContestChecker::withDerivedDXCC(record);
        EXPECT_EQ(pairs(derived), fields(to)) << from;
        EXPECT_EQ(derived.id(), record.id());
    }
}

TEST(OddCalls, AreScoredAsAnyOther) {
    ContestRules rules = with({.name = "Präfixe", .kind = MultiplierKind::wpxPrefix});
    rules.validRelation = And{{SameContinent{}, IsPortable{}}};
    std::vector<std::string> calls = {std::string(10'000, '/'),  "DL1" + std::string(10'000, 'X') + "/P",
                                      std::string("\0DL1/P", 6), "\xFF\xFE/P",
                                      "DL1\u0301ABC/P",          "УА3ДЛ/P"};
    std::vector<testing::Pairs> records;
    for (const std::string& call : calls) {
        records.push_back({{"CALL", call}});
    }
    const ContestScore result = ContestChecker(rules).score(testing::document(records));
    EXPECT_EQ(result.countedQSOs, 2U);
    EXPECT_EQ(result.multiplierCount, 2);
}

}  // namespace
}  // namespace tallyrig
