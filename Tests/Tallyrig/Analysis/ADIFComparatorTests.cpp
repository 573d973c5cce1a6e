// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Analysis/ADIFComparator.h"

#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyrig {
namespace {

using testing::logOf;
using Names = std::vector<std::string>;

/// A comparison as text: the rows as "left=right", "left!right NAME NAME" or the one position beside "-".
std::string rowsOf(const ADIFComparison& comparison) {
    std::string text;
    for (std::size_t index = 0; index < comparison.rowCount(); ++index) {
        const ADIFComparison::Row row = comparison.row(index);
        text += index == 0 ? "" : ", ";
        text += row.left() ? std::to_string(*row.left()) : "-";
        text += row.status() == ADIFComparison::Status::differs ? "!" : "=";
        text += row.right() ? std::to_string(*row.right()) : "-";
        for (const std::string_view name : row.differingFields()) {
            text.append(" ").append(name);
        }
    }
    return text;
}

std::string joined(const Names& names) {
    std::string text;
    for (const std::string& name : names) {
        text += name + ' ';
    }
    return text;
}

/// All that there is to a comparison.
std::string allOf(const ADIFComparison& comparison) {
    std::string text = joined(comparison.columns()) + ": " + rowsOf(comparison) + " :";
    for (const std::uint32_t row : comparison.differences()) {
        text += ' ' + std::to_string(row);
    }
    const ADIFComparison::Counts& counts = comparison.counts();
    for (const std::size_t count : {counts.equal, counts.differs, counts.onlyLeft, counts.onlyRight}) {
        text += " /" + std::to_string(count);
    }
    return text;
}

TEST(Comparison, PairsRecordsByKey) {
    const std::string longText(100, 'x');
    const struct {
        const char* what;
        Names key;
        ADIFDocument left;
        ADIFDocument right;
        const char* rows;
    } cases[] = {
        {"nothing with nothing", {"CALL"}, {}, {}, ""},
        {"in another order", {"call"}, logOf({"CALL=A", "CALL=B"}), logOf({"CALL=B", "CALL=A"}), "0=1, 1=0"},
        {"left over on both sides",
         {"CALL"},
         logOf({"CALL=A", "CALL=B"}),
         logOf({"CALL=C", "CALL=B", "CALL=D"}),
         "0=-, 1=1, -=0, -=2"},
        {"three of a key with one, and one with two",
         {"CALL"},
         logOf({"CALL=A | N=1", "CALL=A | N=2", "CALL=A", "CALL=B"}),
         logOf({"CALL=B", "CALL=A | N=1", "CALL=B"}),
         "0=1, 1=-, 2=-, 3=0, -=2"},
        {"no key field", {}, logOf({"CALL=A", "CALL=B"}), logOf({"CALL=A"}), "0=0, 1=-"},
        {"a key field that no record has",
         {"X"},
         logOf({"CALL=A"}),
         logOf({"CALL=B", "CALL=C"}),
         "0!0 CALL, -=1"},
        {"another case and blanks", {"CALL"}, logOf({"CALL= dl1abc\t"}), logOf({"CALL=DL1ABC"}), "0!0 CALL"},
        {"a line end is no blank", {"CALL"}, logOf({"CALL=A\n"}), logOf({"CALL=A"}), "0=-, -=0"},
        {"the missing and the empty", {"CALL", "BAND"}, logOf({"CALL=A"}), logOf({"CALL=A | BAND= "}), "0=0"},
        {"which part is whose", {"A", "B"}, logOf({"A=1 | B="}), logOf({"A= | B=1"}), "0=-, -=0"},
        {"spellings of a letter",
         {"QTH"},
         logOf({"QTH=M\u00FCnchen"}),
         logOf({"QTH=mU\u0308nchen"}),
         "0!0 QTH"},
        {"letters that grow in upper case",
         {"QTH"},
         logOf({"QTH=ßßßßßßßßßßßßßßßßßßßßßßßßßßßßßßßßßßßß"}),
         logOf({"QTH=SSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSS"}),
         "0!0 QTH"},
        {"a long value with the separator of values in it",
         {"A", "B"},
         logOf({"A=" + longText + "\x1Fy | B=", "A=" + longText + "z"}),
         logOf({"A=" + longText + "z", "A=" + longText + " | B=y\x1F"}),
         "0!1 A B, 1=0"},
        {"the first of two fields of a name",
         {"CALL"},
         logOf({"CALL=A | CALL=B | N=1 | N=2"}),
         logOf({"CALL=A | N=1 | CALL=C"}),
         "0=0"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(rowsOf(ADIFComparator(each.key).compare(each.left, each.right)), each.rows) << each.what;
    }
}

TEST(Comparison, NamesTheFieldsThatDifferBeyondBlanks) {
    const ADIFDocument left = logOf({"CALL=A | NAME=Ute | QTH= Kiel | MODE=cw | RIG= | APP_X=1"});
    const ADIFDocument right = logOf({"MODE=CW | CALL=A | COMMENT=\t | QTH=Kiel | BAND=20M | NAME=Ute\n"});
    const ADIFComparison comparison = ADIFComparator({"CALL"}).compare(left, right);
    EXPECT_EQ(rowsOf(comparison), "0!0 APP_X BAND MODE NAME");
    EXPECT_TRUE(comparison.row(0).differingFields().contains("MODE"));
    EXPECT_FALSE(comparison.row(0).differingFields().contains("QTH"));
}

TEST(Comparison, FindsWhatDiffersInLogsThatKeepTheirValuesInDifferentWays) {
    const ADIFDocument read =
        ADIFParser::parse("<CALL:1>A<QTH:1>B<eor><CALL:1>C<QTH:2>D <eor><CALL:1>E<eor>");
    const std::string longText(5000, 'x');
    ADIFDocument filled = read;
    filled.setColumn("COMMENT", longText, ColumnTarget::allRecords);
    ADIFDocument filledAnew = read;
    filledAnew.setColumn("COMMENT", longText, ColumnTarget::allRecords);
    filledAnew.records().modify(1, [](ADIFRecord& record) { record.set("COMMENT", "other"); });
    const ADIFComparator comparator({"CALL"});
    EXPECT_EQ(rowsOf(comparator.compare(read, filled)), "0!0 COMMENT, 1!1 COMMENT, 2!2 COMMENT");
    EXPECT_EQ(rowsOf(comparator.compare(filled, filledAnew)), "0=0, 1!1 COMMENT, 2=2");
    EXPECT_EQ(rowsOf(ADIFComparator({"COMMENT", "CALL"}).compare(filled, filledAnew)), "0=0, 1=-, 2=2, -=1");
}

TEST(Comparison, ShowsKeyFieldsThatOccurThenTheOthersAsTheyAppear) {
    const ADIFDocument left = logOf({"QTH=x | CALL=A", "NAME=y"});
    const ADIFDocument right = logOf({"BAND=20M | QTH=z | APP_\u00DC=1 | RIG=r"});
    EXPECT_EQ(
        joined(
            ADIFComparator({"MODE", "band", "CALL", "BAND", "APP_U\u0308"}).compare(left, right).columns()),
        "BAND CALL APP_U\u0308 QTH NAME RIG ");
}

TEST(Comparison, ListsTheHeaderFieldsThatDiffer) {
    const auto logWith = [](std::string_view header) {
        std::vector<ADIFField> fields;
        for (const auto& [name, value] : testing::fields(header)) {
            fields.emplace_back(name, value);
        }
        return ADIFDocument("", fields, {});
    };
    const ADIFDocument left = logWith("ADIF_VER=3.1.4 | A=1 | EMPTY= | PROGRAMID=x | ADIF_VER=9");
    const ADIFDocument right = logWith("B=2 | PROGRAMID=X | ADIF_VER=3.1.4 | ADIF_VER=8 | NOTHING= | A=1 ");
    const ADIFComparison comparison = ADIFComparator({}).compare(left, right);
    std::string text;
    for (const ADIFComparison::HeaderDiff& diff : comparison.headerDiffs()) {
        text += diff.field + ": " + diff.left.value_or("-") + '|' + diff.right.value_or("-") + '\n';
    }
    EXPECT_EQ(text, "A: 1|1 \nPROGRAMID: x|X\nB: -|2\n");
}

TEST(Comparison, LeadsFromOneDifferenceToTheNext) {
    const ADIFComparison comparison =
        ADIFComparator({"CALL"}).compare(logOf({"CALL=A", "CALL=B | N=1", "CALL=C", "CALL=D"}),
                                         logOf({"CALL=A", "CALL=B", "CALL=C", "CALL=E"}));
    EXPECT_EQ(allOf(comparison), "CALL N : 0=0, 1!1 N, 2=2, 3=-, -=3 : 1 3 4 /2 /1 /1 /1");
    EXPECT_EQ(comparison.nextDifference(0), 1U);
    EXPECT_EQ(comparison.nextDifference(1), 3U);
    EXPECT_EQ(comparison.nextDifference(4), std::nullopt);
    EXPECT_EQ(comparison.previousDifference(1), std::nullopt);
    EXPECT_EQ(comparison.previousDifference(3), 1U);
    EXPECT_EQ(comparison.previousDifference(99), 4U);
}

TEST(Comparison, MakesAKeyOfTheValuesInUpperCase) {
    EXPECT_EQ(ADIFComparator({"call", "BAND", "MODE"}).key(testing::recordOf("MODE= ssb\t | CALL=dl1abc")),
              "DL1ABC\x1F\x1FSSB");
    EXPECT_EQ(ADIFComparator({}).key(testing::recordOf("CALL=A")), "");
}

/// Edits of a small log with few names, values and keys, so that fields come and go, columns with them, and
/// rows turn equal and unequal again.
TEST(Comparison, IsBroughtUpToDateAfterAnEditAsIfMadeAnew) {
    const ADIFComparator comparator({"CALL", "BAND"});
    std::mt19937 random(7);
    const auto below = [&](std::size_t end) {
        return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
    };
    const std::vector<std::string> names = {"CALL", "BAND", "A", "B", "C", "D", "E"};
    const std::vector<std::string> values = {"", "x", " x", "X", "y"};
    int refreshed = 0;
    int refused = 0;
    for (int round = 0; round < 15; ++round) {
        std::pair<ADIFDocument, ADIFDocument> logs = {
            logOf({"CALL=1 | A=x", "CALL=2 | B=x", "CALL=2 | A=y", "CALL=5"}),
            logOf({"CALL=2 | A=x", "CALL=1 | C=y", "CALL=3 | BAND=x", "CALL=4"})};
        ADIFComparison comparison = comparator.compare(logs.first, logs.second);
        for (int step = 0; step < 50; ++step) {
            const std::size_t index = below(comparison.rowCount());
            const ADIFComparison::Row row = comparison.row(index);
            const bool isLeft = row.left() && (!row.right() || below(2) == 0);
            ADIFRecordList& records = (isLeft ? logs.first : logs.second).records();
            const std::size_t position = isLeft ? *row.left() : *row.right();
            const ADIFRecord before = records[position];
            const std::string& name = names[below(names.size())];
            records.modify(position, [&](ADIFRecord& record) {
                switch (below(4)) {
                    case 0:
                        record.removeField(name);
                        break;
                    case 1:
                        record.renameField(name, names[below(names.size())]);
                        break;
                    default:
                        record.set(name, values[below(values.size())]);
                }
            });
            const ADIFComparison anew = comparator.compare(logs.first, logs.second);
            const std::string old = allOf(comparison);
            if (comparator.refresh(
                    comparison, logs.first, logs.second,
                    {index, isLeft ? ADIFComparison::Side::left : ADIFComparison::Side::right, before})) {
                ASSERT_EQ(allOf(comparison), allOf(anew));
                ++refreshed;
            } else {
                ASSERT_EQ(allOf(comparison), old);
                ASSERT_NE(comparator.key(before), comparator.key(records[position]));
                comparison = anew;
                ++refused;
            }
        }
    }
    EXPECT_GT(refreshed, 300);
    EXPECT_GT(refused, 100);
}

}  // namespace
}  // namespace tallyrig
