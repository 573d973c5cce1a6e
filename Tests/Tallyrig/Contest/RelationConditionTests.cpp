// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Contest/RelationCondition.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <string_view>

namespace tallyrig {
namespace {

using namespace relation;
using testing::fields;
using testing::record;

constexpr auto holds = RelationAnswer::holds;
constexpr auto doesNotHold = RelationAnswer::doesNotHold;
constexpr auto unknown = RelationAnswer::unknown;

const ContestStation swiss = {"287", "EU", "14", "28", "JN47"};

TEST(Condition, HoldsOrNotOrCannotBeAnswered) {
    const ContestStation nobody;
    const ContestStation lowerCase = {"291", "na", "5", "8", ""};
    const struct {
        RelationCondition condition;
        std::string_view qso;
        ContestStation own;
        RelationAnswer answer;
    } cases[] = {
        // Without the worked entity or zone, a test for that one or the own one does not hold.
        {WorkedCountryIs{"287"}, "DXCC= 287\t", nobody, holds},
        {WorkedCountryIs{"287"}, "DXCC=230", nobody, doesNotHold},
        {WorkedCountryIs{""}, "DXCC= ", nobody, doesNotHold},
        {WorkedCountryIn{{"227", "214"}}, "DXCC=214", nobody, holds},
        {WorkedCountryIn{{"227", "214"}}, "DXCC=230", nobody, doesNotHold},
        {WorkedCountryIn{{""}}, "CALL=F1ABC", nobody, doesNotHold},
        {SameCountry{}, "DXCC=287", swiss, holds},
        {SameCountry{}, "DXCC=230", swiss, doesNotHold},
        {SameCountry{}, "CALL=HB9ABC", swiss, doesNotHold},
        {SameCountry{}, "CALL=HB9ABC", nobody, doesNotHold},
        {SameCqZone{}, "CQZ=14 ", swiss, holds},
        {SameCqZone{}, "CQZ=014", swiss, doesNotHold},
        {SameCqZone{}, "CQZ= ", nobody, doesNotHold},
        {SameItuZone{}, "ITUZ=28", swiss, holds},
        {SameItuZone{}, "ITUZ=27 | CQZ=28", swiss, doesNotHold},
        // The exclusion of entities and all tests for continents need to know them.
        {WorkedCountryNotIn{{"291", "1"}}, "DXCC=230", nobody, holds},
        {WorkedCountryNotIn{{"291", "1"}}, "DXCC=1", nobody, doesNotHold},
        {WorkedCountryNotIn{{"291", "1"}}, "DXCC= ", nobody, unknown},
        {SameContinent{}, "DXCC=230", swiss, holds},
        {SameContinent{}, "DXCC=291", swiss, doesNotHold},
        {SameContinent{}, "DXCC=7", swiss, unknown},
        {SameContinent{}, "DXCC=230", nobody, unknown},
        {DifferentContinent{}, "CONT=na ", swiss, holds},
        {DifferentContinent{}, "CONT=eu", swiss, doesNotHold},
        {DifferentContinent{}, "CALL=K1ABC", swiss, unknown},
        {DifferentContinent{}, "CONT=NA", nobody, unknown},
        {WorkedContinentIs{"as"}, "DXCC=339", nobody, holds},
        {WorkedContinentIs{"AS"}, "DXCC=230", nobody, doesNotHold},
        {WorkedContinentIs{"AS"}, "DXCC=502", nobody, unknown},
        {BothInContinent{"eu"}, "CONT=EU", swiss, holds},
        {BothInContinent{"EU"}, "CONT=NA", swiss, doesNotHold},
        {BothInContinent{"NA"}, "CONT=NA", swiss, doesNotHold},
        {BothInContinent{"na"}, "CONT=NA", lowerCase, doesNotHold},
        {SameContinent{}, "CONT=na", lowerCase, doesNotHold},
        {BothInContinent{"EU"}, "CALL=DL1ABC", swiss, unknown},
        {BothInContinent{"EU"}, "CONT=EU", nobody, unknown},
        {IsPortable{}, "CALL= dl1abc/p ", nobody, holds},
        {IsPortable{}, "CALL=DL1ABC/MM", nobody, holds},
        {IsPortable{}, "CALL=P", nobody, doesNotHold},
        {IsPortable{}, "CALL=DL1ABC/QRP", nobody, doesNotHold},
        {IsPortable{}, "CALL=DL1ABC/\u0301P", nobody, doesNotHold},
        {IsPortable{}, "CALL=DL1ABC/P\u0301", nobody, doesNotHold},
        {IsPortable{}, "CALL=DL1ABC\u0600/P", nobody, doesNotHold},  // a sign that joins what follows
        {IsPortable{}, "CALL=УА3ДЛ/M", nobody, holds},
        {IsPortable{}, "DXCC=287", nobody, doesNotHold},
        {Any{}, "", nobody, holds},
    };
    for (const auto& [condition, qso, own, answer] : cases) {
        EXPECT_EQ(condition.matches(record(fields(qso)), own), answer) << nameOf(condition) << ": " << qso;
    }
}

TEST(Conditions, HoldTogetherUnlessOneDoesNot) {
    const RelationCondition yes = Any{};
    const RelationCondition no = IsPortable{};
    const RelationCondition open = SameContinent{};
    const struct {
        And all;
        RelationAnswer answer;
    } cases[] = {
        {{{}}, holds},
        {{{yes, yes}}, holds},
        {{{open, no}}, doesNotHold},
        {{{no, open}}, doesNotHold},
        {{{open, yes}}, unknown},
        {{{yes, And{{open}}}}, unknown},
        {{{open, And{{yes, no}}}}, doesNotHold},
    };
    for (const auto& [all, answer] : cases) {
        EXPECT_EQ(RelationCondition(all).matches(record({}), swiss), answer) << &all - &cases[0].all;
    }
}

TEST(Conditions, AreEqualAsTextIs) {
    EXPECT_EQ(RelationCondition(WorkedCountryIs{"\u00C4"}), RelationCondition(WorkedCountryIs{"A\u0308"}));
    EXPECT_EQ(RelationCondition(WorkedCountryIn{{"b", "a"}}), RelationCondition(WorkedCountryIn{{"a", "b"}}));
    EXPECT_NE(RelationCondition(And{{Any{}}}), RelationCondition(And{{SameCountry{}}}));
    EXPECT_NE(RelationCondition(WorkedContinentIs{"EU"}), RelationCondition(BothInContinent{"EU"}));
}

}  // namespace
}  // namespace tallyrig
