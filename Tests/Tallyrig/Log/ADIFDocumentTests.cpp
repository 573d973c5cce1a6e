// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADIFDocument.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallyrig {
namespace {

using testing::fields;
using testing::logOf;
using testing::pairs;
using testing::recordOf;

TEST(DocumentEquality, IgnoresIdsAndNothingElse) {
    const auto make = [](const std::string& comment, const std::string& header, const std::string& qso) {
        return ADIFDocument(comment, {ADIFField("PROGRAMID", header)}, ADIFRecordList({recordOf(qso)}));
    };
    EXPECT_EQ(make("c", "h", "A=1 | B=2"), make("c", "h", "A=1 | B=2"));
    EXPECT_NE(make("c", "h", "A=1 | B=2"), make("d", "h", "A=1 | B=2"));
    EXPECT_NE(make("c", "h", "A=1 | B=2"), make("c", "i", "A=1 | B=2"));
    EXPECT_NE(make("c", "h", "A=1 | B=2"), make("c", "h", "B=2 | A=1"));
}

TEST(DocumentCopies, AreIndependent) {
    const ADIFDocument original("c", {ADIFField("PROGRAMID", "x")}, ADIFRecordList({recordOf("CALL=DL1AB")}));
    ADIFDocument copy = original;
    EXPECT_TRUE(copy.isSameAs(original));
    copy.setHeaderComment("d");
    copy.setHeaderFields({});
    copy.records().modify(0, [](ADIFRecord& record) { record.set("CALL", "DL9ZZ"); });
    EXPECT_FALSE(copy.isSameAs(original));
    EXPECT_EQ(original.headerComment(), "c");
    EXPECT_EQ(original.headerFields().size(), 1U);
    EXPECT_EQ(original.records()[0]["CALL"], "DL1AB");
}

TEST(FieldNames, StandInOrderOfFirstAppearance) {
    EXPECT_EQ(logOf({"A= | B=", "B= | C=", ""}).fieldNames(), (std::vector<std::string>{"A", "B", "C"}));
    EXPECT_TRUE(ADIFDocument("", {ADIFField("ADIF_VER", "3.1.7")}, {}).fieldNames().empty());
    // One name with two types is one column.
    ADIFRecord typed({{ADIFField("A", "1", "N"), ADIFField("A", "1")}});
    EXPECT_EQ(ADIFDocument("", {}, ADIFRecordList({typed})).fieldNames(), (std::vector<std::string>{"A"}));
}

TEST(Columns, AreRenamedDuplicatedAndRemovedInEveryRecord) {
    ADIFDocument log = logOf({"A=1 | B=2", "B=3", "A=4 | A=5"});
    const ADIFDocument before = log;
    log.renameColumn("a", "A");
    EXPECT_TRUE(log.isSameAs(before)) << "the same name in another case changes nothing";

    log.renameColumn("a", "x");
    EXPECT_EQ(pairs(log.records()[0]), fields("X=1 | B=2"));
    EXPECT_TRUE(log.records()[1].isSameAs(before.records()[1]));
    EXPECT_EQ(pairs(log.records()[2]), fields("X=4 | A=5"));
    EXPECT_EQ(log.records()[0].id(), before.records()[0].id());

    log.duplicateColumn("b", "B_2");
    EXPECT_EQ(pairs(log.records()[0]), fields("X=1 | B=2 | B_2=2"));
    log.removeColumn("B");
    EXPECT_EQ(pairs(log.records()[0]), fields("X=1 | B_2=2"));
    EXPECT_EQ(pairs(before.records()[0]), fields("A=1 | B=2"));
}

TEST(SettingAColumn, CountsTheRecordsThatItChanges) {
    const ADIFDocument log = logOf({"MODE=CW", "MODE=", "CALL=DL1AB", "MODE=SSB"});

    EXPECT_EQ(log.countWithoutValue("mode"), 2U) << "what a value for the empty ones will touch";

    ADIFDocument all = log;
    EXPECT_EQ(all.setColumn("mode", "SSB", ColumnTarget::allRecords), 3U);
    EXPECT_EQ(pairs(all.records()[2]), fields("CALL=DL1AB | MODE=SSB"));

    ADIFDocument empty = log;
    EXPECT_EQ(empty.setColumn("MODE", "FT8", ColumnTarget::emptyOnly), 2U);
    EXPECT_EQ(empty.records()[0]["MODE"], "CW");
    EXPECT_EQ(empty.records()[1]["MODE"], "FT8");

    ADIFDocument removed = log;
    EXPECT_EQ(removed.setColumn("MODE", "", ColumnTarget::allRecords), 2U);
    EXPECT_FALSE(removed.records()[0].has("MODE"));
    EXPECT_TRUE(removed.records()[1].has("MODE")) << "a field that is there and empty stays";

    ADIFDocument nothing = log;
    EXPECT_EQ(nothing.setColumn("MODE", "", ColumnTarget::emptyOnly), 0U);
    EXPECT_TRUE(nothing.isSameAs(log));

    ADIFDocument umlaut = logOf({"NAME=Jo\u0308rg"});
    EXPECT_EQ(umlaut.setColumn("NAME", "J\u00F6rg", ColumnTarget::allRecords), 0U)
        << "an equal value is no change";
}

TEST(ReplacingInAColumn, IsLiteralAndKeepsEmptiedFields) {
    ADIFDocument log = logOf({"QTH=Ulm Ulm", "QTH=ulm", "CALL=Ulm", "QTH=Ulm"});
    EXPECT_EQ(log.replaceInColumn("qth", "", "x"), 0U);
    EXPECT_EQ(log.countContaining("qth", ""), 0U);
    EXPECT_EQ(log.countContaining("qth", "Ulm"), 2U);
    EXPECT_EQ(log.replaceInColumn("qth", "Ulm", ""), 2U);
    EXPECT_EQ(log.records()[0]["QTH"], " ");
    EXPECT_EQ(log.records()[1]["QTH"], "ulm");
    EXPECT_EQ(log.records()[3]["QTH"], "");
    EXPECT_TRUE(log.records()[3].has("QTH"));
    EXPECT_EQ(log.replaceInColumn("QTH", "ulm", "ulmulm"), 1U) << "what was put in is not searched again";
    EXPECT_EQ(log.records()[1]["QTH"], "ulmulm");
}

}  // namespace
}  // namespace tallyrig
