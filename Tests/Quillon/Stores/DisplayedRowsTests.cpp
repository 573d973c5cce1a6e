// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/DisplayedRows.h"

#include "Quillon/Support/LogText.h"

#include <gtest/gtest.h>

#include <utility>

namespace quillon {
namespace {

using tallyrig::ADIFRecordList;
using testing::recordsOf;

/// The positions in the log of the rows from the first to the last.
std::string shown(const ADIFRecordList& records, const RowOrder& order) {
    DisplayedRows rows;
    const RowsOnScreen displayed = rows.displayed(records, order);
    std::string positions;
    for (std::size_t row = 0; row < displayed.size(); ++row) {
        positions += std::to_string(displayed.index(row));
    }
    EXPECT_EQ(rows.filtered(records, order).size(), displayed.size());
    return positions;
}

TEST(Search, LooksIntoValuesAndNamesWithoutRegardToCase) {
    const ADIFRecordList records =
        recordsOf({"CALL=DL1ABC NAME=Jörg", "CALL=OH2XX QTH=Köln BAND=20m", "NAME=JO\xCC\x88RG MODE=ssb",
                   "A=12 B=34 COMMENT=\xE2\x84\xAA"
                   "elvin",
                   "NAME=cafe\xCC\x81 CITY=Łódź", "Z=Привет"});
    const std::pair<const char*, const char*> cases[] = {
        {"", "012345"}, {"DL1AB", "0"}, {"ALL", "01"},  {"jörg", "02"},  {"JÖRG", "02"},
        {"jorg", ""},   {"rg", "02"},   {"KÖLN", "1"},  {"kelvin", "3"}, {"12", "3"},
        {"23", ""},     {"1234", ""},   {"ssb", "2"},   {"2", "13"},     {"CAFE", ""},
        {"caf", "4"},   {"café", "4"},  {"ŁÓDŹ", "4"},  {"ПРИВ", "5"},   {"e", "0234"},
        {"zzz", ""},    {" ", ""},      {"lnbanD", ""}, {"z", "5"},      {"m", "01234"},
    };
    for (const auto& [text, found] : cases) {
        EXPECT_EQ(shown(records, {text, std::nullopt, true}), found) << text;
    }
}

TEST(Sort, OrdersNumbersByValueAndPutsEmptyOnesLast) {
    const ADIFRecordList records =
        recordsOf({"CALL=DL10AB", "N=2", "CALL=dl2ab", "CALL=", "CALL=DL2AB", "CALL=Ö1"});
    EXPECT_EQ(shown(records, {"", "CALL", true}), "240513");
    EXPECT_EQ(shown(records, {"", "CALL", false}), "502413");
    EXPECT_EQ(shown(records, {"2ab", "CALL", false}), "24");
}

TEST(DisplayedRows, FollowTheLog) {
    ADIFRecordList records = recordsOf({"CALL=C X=1", "CALL=B", "CALL=A X=1"});
    DisplayedRows rows;
    const RowOrder order{"1", "CALL", true};
    EXPECT_EQ(rows.displayed(records, order).rowOf(records[0].id()), 1U);
    records.modify(0, [](tallyrig::ADIFRecord& record) { record.set("CALL", "0"); });
    EXPECT_EQ(rows.displayed(records, order).rowOf(records[0].id()), 0U);
    EXPECT_EQ(rows.displayed(records, order).rowOf(records[1].id()), std::nullopt);
    EXPECT_EQ(rows.displayed(records, order).rowOf(tallyrig::UUID::fresh()), std::nullopt);
    EXPECT_EQ(rows.displayed(records, {"", "CALL", true}).size(), 3U);
    EXPECT_EQ(rows.displayed(records, {}).rowOf(records[2].id()), 2U);
}

}  // namespace
}  // namespace quillon
