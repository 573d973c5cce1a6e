// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Compare/ComparedLogs.h"

#include "Quillon/Support/LogText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

using Change = ComparedLogs::Change;
using Side = ComparedLogs::Side;
using tallyrig::ADIFDocument;

class LogsSideBySide : public ::testing::Test {
  protected:
    static ADIFDocument log(const std::vector<std::string>& records) {
        return {{}, {}, testing::recordsOf(records)};
    }
    Change follow() { return logs.follow(left, right, {"CALL"}); }
    static void edit(ADIFDocument& log, std::size_t index, const char* field, const char* value) {
        log.records().modify(index, [&](tallyrig::ADIFRecord& record) { record.set(field, value); });
    }
    /// The calls of the rows with a sign for the status, such as "A= B! <C >D".
    std::string rows() const {
        std::vector<std::string> shown;
        for (std::size_t row = 0; row < logs.rowCount(); ++row) {
            const bool isLeft = logs.record(row, Side::left) != nullptr;
            const auto& record = *logs.record(row, isLeft ? Side::left : Side::right);
            const std::string call(record.valueOrEmpty("CALL"));
            const std::string texts[] = {call + "=", call + "!", "<" + call, ">" + call};
            shown.push_back(texts[static_cast<std::size_t>(logs.row(row).status())]);
        }
        return testing::joined(shown);
    }

    ADIFDocument left = log({"CALL=A RST=1", "CALL=B RST=2", "CALL=C", "CALL=D RST=4"});
    ADIFDocument right = log({"CALL=D RST=4", "CALL=B RST=5", "CALL=A RST=1", "CALL=E"});
    ComparedLogs logs;
};

TEST_F(LogsSideBySide, LookAtTheEditedRowAlone) {
    EXPECT_EQ(follow(), Change::all);
    EXPECT_EQ(rows(), "A= B! <C D= >E");
    EXPECT_EQ(follow(), Change::none);
    edit(right, 1, "RST", "2");
    EXPECT_EQ(follow(), Change::row);
    EXPECT_EQ(rows(), "A= B= <C D= >E");
    edit(left, 3, "RST", "9");
    edit(right, 0, "RST", "8");
    EXPECT_EQ(follow(), Change::all) << "two edits";
    edit(right, 3, "NOTE", "x");
    EXPECT_EQ(follow(), Change::all) << "a column more";
    EXPECT_EQ(testing::joined(logs.columns()), "CALL RST NOTE");
    edit(left, 2, "CALL", "E");
    EXPECT_EQ(follow(), Change::all) << "the key: others pair up";
    EXPECT_EQ(rows(), "A= B= E! D!");
}

TEST_F(LogsSideBySide, AreComparedAnewForAnythingElse) {
    follow();
    left.records().removeIf([](const auto& record) { return record.valueOrEmpty("CALL") == "A"; });
    EXPECT_EQ(follow(), Change::all);
    EXPECT_EQ(rows(), "B! <C D= >A >E");
    right.setHeaderFields({tallyrig::ADIFField("PROGRAMID", "x")});
    EXPECT_EQ(follow(), Change::all);
    EXPECT_EQ(logs.comparison().headerDiffs().size(), 1U);
    EXPECT_EQ(logs.follow(left, right, {"RST"}), Change::all);
    EXPECT_EQ(rows(), "<B C! D= >B >A") << "paired by other fields";
}

TEST_F(LogsSideBySide, ShowDifferencesOnlyAndKeepARowThatBecameEqual) {
    follow();
    logs.show(ComparedLogs::Shown::differences);
    EXPECT_EQ(rows(), "B! <C >E");
    edit(right, 1, "RST", "2");
    EXPECT_EQ(follow(), Change::row);
    EXPECT_EQ(rows(), "B= <C >E") << "the row that the user works on does not vanish";
    EXPECT_EQ(logs.nextDifference(0), 1U);
    edit(right, 0, "RST", "2");
    EXPECT_EQ(follow(), Change::all);
    EXPECT_EQ(rows(), "B= <C D! >E") << "one that came to differ is shown";
    logs.show(ComparedLogs::Shown::all);
    EXPECT_EQ(rows(), "A= B= <C D! >E");
}

TEST_F(LogsSideBySide, FindRowsAndDifferences) {
    follow();
    EXPECT_EQ(logs.rowOf(right.records()[0].id(), Side::right), 3U);
    EXPECT_EQ(logs.rowOf(right.records()[3].id(), Side::right), 4U);
    EXPECT_EQ(logs.rowOf(right.records()[0].id(), Side::left), std::nullopt) << "of the other log";
    EXPECT_EQ(logs.nextDifference(std::nullopt), 1U);
    EXPECT_EQ(logs.nextDifference(2), 4U);
    EXPECT_EQ(logs.nextDifference(4), std::nullopt);
    EXPECT_EQ(logs.previousDifference(std::nullopt), 4U);
    EXPECT_EQ(logs.previousDifference(1), std::nullopt);
    logs.show(ComparedLogs::Shown::differences);
    EXPECT_EQ(logs.rowOf(right.records()[0].id(), Side::right), std::nullopt) << "not on screen";
    EXPECT_EQ(logs.rowOf(right.records()[3].id(), Side::right), 2U);
}

}  // namespace
}  // namespace quillon
