// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADIFRecord.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace tallyrig {
namespace {

using testing::fields;
using testing::pairs;
using testing::recordOf;

std::vector<UUID> fieldIDs(const ADIFRecord& record) {
    std::vector<UUID> ids;
    for (const ADIFFieldView& field : record.fields()) {
        ids.push_back(field.id);
    }
    return ids;
}

TEST(Field, StoresItsNameInUpperCaseAndAllElseAsGiven) {
    const ADIFField field("my_straße", " v ", "s");
    EXPECT_EQ(field.name, "MY_STRASSE");
    EXPECT_EQ(field.value, " v ");
    EXPECT_EQ(field.type, "s");
    EXPECT_EQ(ADIFField("a", "b"), ADIFField("A", "b")) << "ids take no part";
    EXPECT_NE(ADIFField("a", "b"), ADIFField("a", "b", "")) << "an empty type is a type";
    EXPECT_EQ(ADIFField("n", "o\u0308"), ADIFField("n", "\u00F6"));
}

TEST(Lookup, FindsTheFirstFieldOfANameInAnyCase) {
    const ADIFRecord twice = recordOf("CALL=DL1AB | CALL=DL2CD | NOTES=");
    for (const char* name : {"call", "CALL", "Call"}) {
        EXPECT_EQ(twice[name], "DL1AB") << name;
    }
    EXPECT_EQ(twice["notes"], "");
    EXPECT_EQ(twice["BAND"], std::nullopt);
    EXPECT_TRUE(twice.has("notes"));
    EXPECT_FALSE(twice.has(""));
    EXPECT_EQ(recordOf("stra\u00DFe=x")["STRASSE"], "x");
    EXPECT_EQ(recordOf("o\u0308=x")["\u00F6"], "x") << "canonically equivalent names are one name";
    EXPECT_EQ(recordOf("K_INDEX=3")["\u212A_INDEX"], "3") << "and so is the kelvin sign a K";
}

TEST(Writing, ChangesTheFirstFieldAndKeepsItsPlace) {
    ADIFRecord changed(
        {{ADIFField("CALL", "DL1AB", "S"), ADIFField("BAND", "20m"), ADIFField("CALL", "DL2CD")}});
    const std::vector<UUID> before = fieldIDs(changed);
    changed.set("call", "OE1XYZ");
    EXPECT_EQ(pairs(changed), fields("CALL=OE1XYZ | BAND=20m | CALL=DL2CD"));
    EXPECT_EQ(changed.fields()[0].type, "S");
    EXPECT_EQ(fieldIDs(changed), before);

    changed.set("mode", "CW");
    EXPECT_EQ(pairs(changed).back(), (std::pair<std::string, std::string>{"MODE", "CW"}));
    EXPECT_EQ(changed.fields()[3].type, std::nullopt);
    EXPECT_NE(changed.fields()[3].id, changed.fields()[2].id);

    changed.set("Call", std::nullopt);
    EXPECT_EQ(pairs(changed), fields("BAND=20m | MODE=CW"));
    EXPECT_EQ(changed.fields()[0].id, before[1]) << "the others keep their identity";
}

TEST(Renaming, TakesTheFirstFieldOnlyAndAsksNotWhetherTheNameExists) {
    ADIFRecord renamed = recordOf("A=1 | B=2 | A=3");
    const std::vector<UUID> before = fieldIDs(renamed);
    renamed.renameField("a", "b");
    EXPECT_EQ(pairs(renamed), fields("B=1 | B=2 | A=3"));
    EXPECT_EQ(fieldIDs(renamed), before);

    const ADIFRecord same = renamed;
    renamed.renameField("B", "b");
    renamed.renameField("C", "D");
    EXPECT_TRUE(renamed.isSameAs(same));
}

TEST(Duplicating, PutsTheCopyBehindItsSource) {
    ADIFRecord record({{ADIFField("CALL", "DL1AB", "S"), ADIFField("BAND", "20m")}});
    record.duplicateField("call", "call_2");
    ASSERT_EQ(pairs(record), fields("CALL=DL1AB | CALL_2=DL1AB | BAND=20m"));
    EXPECT_EQ(record.fields()[1].type, "S");
    EXPECT_EQ(std::set<UUID>({record.fields()[0].id, record.fields()[1].id, record.fields()[2].id}).size(),
              3U);
    const ADIFRecord before = record;
    record.duplicateField("NOTHING", "X");
    EXPECT_TRUE(record.isSameAs(before));
}

TEST(Positions, ReachFieldsThatNamesCannot) {
    ADIFRecord changed = recordOf("CALL=DL1AB | CALL=DL2CD");
    changed.setValue(1, "");
    EXPECT_EQ(pairs(changed), fields("CALL=DL1AB | CALL="));
    changed.appendField(ADIFField("x", "y", "N"));
    changed.removeFieldAt(0);
    EXPECT_EQ(pairs(changed), fields("CALL= | X=y"));
    EXPECT_EQ(changed.fields()[1].type, "N");
}

TEST(RecordCopies, AreIndependentAndKeepTheirIdentity) {
    const ADIFRecord original = recordOf("CALL=DL1AB");
    ADIFRecord copy = original;
    copy.set("CALL", "DL9ZZ");
    copy.set("QTH", "Köln");
    EXPECT_EQ(pairs(original), fields("CALL=DL1AB"));
    EXPECT_EQ(copy.id(), original.id());
}

TEST(RecordEquality, LooksAtFieldsInTheirOrderAndNotAtIds) {
    EXPECT_EQ(recordOf("A=1 | B=2"), recordOf("a=1 | b=2"));
    EXPECT_NE(recordOf("A=1 | B=2"), recordOf("B=2 | A=1"));
    EXPECT_NE(recordOf("A=1"), recordOf("A=1 | B="));
    EXPECT_NE(ADIFRecord({{ADIFField("A", "1", "S")}}), recordOf("A=1"));
    EXPECT_EQ(ADIFRecord({{ADIFField("A", "o\u0308", "o\u0308")}}),
              ADIFRecord({{ADIFField("A", "\u00F6", "\u00F6")}}));
}

TEST(FieldIds, GivenByTheCallerComeBack) {
    // Ids that do not follow on each other or on the record's have to be kept one by one.
    const std::vector<UUID> ids = {{7, 7}, {7, 8}, {1, ~std::uint64_t{0}}, {2, 0}, {5, 5}};
    std::vector<ADIFField> given;
    for (const UUID& id : ids) {
        given.emplace_back("N", "v", std::nullopt, id);
    }
    EXPECT_EQ(fieldIDs(ADIFRecord(given, UUID{7, 6})), ids);
    EXPECT_EQ(fieldIDs(ADIFRecord(given)), ids);
}

TEST(UUIDs, AreFreshAscendAndHaveTheUsualForm) {
    const UUID first = UUID::fresh();
    const UUID second = UUID::fresh();
    EXPECT_LT(first, second);
    EXPECT_EQ((UUID{0x0123456789AB4CDE, 0x8F00000000000001}.text()), "01234567-89AB-4CDE-8F00-000000000001");
    EXPECT_EQ(first.text()[14], '4');
    EXPECT_NE(std::string("89AB").find(first.text()[19]), std::string::npos);
}

}  // namespace
}  // namespace tallyrig
