#include "Quillon/Support/LogStoreFixture.h"

namespace quillon {
namespace {

using testing::LogStoreTest;

using Searching = LogStoreTest;
using Sorting = LogStoreTest;
using Selecting = LogStoreTest;

TEST_F(Searching, LooksIntoValuesAndNamesWithoutRegardToCase) {
    openLog({"CALL=DL1ABC NAME=Jörg", "CALL=OH2XX QTH=Köln BAND=20m", "NAME=JO\xCC\x88RG MODE=ssb",
             "A=12 B=34 COMMENT=\xE2\x84\xAA"
             "elvin",
             "NAME=caf"
             "e\xCC\x81 CITY=Łódź",
             "Z=Привет"});
    const struct {
        const char* text;
        const char* found;  ///< Positions in the log.
    } cases[] = {
        {"", "012345"},
        {"dl1", "0"},
        {"DL1AB", "0"},
        {"call", "01"},
        {"ALL", "01"},
        {"jörg", "02"},
        {"JÖRG", "02"},
        {"jorg", ""},
        {"rg", "02"},
        {"KÖLN", "1"},
        {"kelvin", "3"},
        {"12", "3"},
        {"23", ""},
        {"1234", ""},
        {"ssb", "2"},
        {"2", "13"},
        {"CAFE", ""},
        {"caf", "4"},
        {"café", "4"},
        {"ŁÓDŹ", "4"},
        {"ПРИВ", "5"},
        {"e", "0234"},
        {"zzz", ""},
        {" ", ""},
        {"lnbanD", ""},
        {"z", "5"},
        {"m",
         "0123"
         "4"},
    };
    for (const auto& [text, found] : cases) {
        store.setSearchText(QString::fromUtf8(text));
        std::string rows;
        for (std::size_t row = 0; row < store.displayedCount(); ++row) {
            rows += std::to_string(store.displayedIndex(row));
        }
        EXPECT_EQ(rows, found) << text;
        EXPECT_EQ(store.filteredCount(), rows.size());
    }
}

TEST_F(Searching, FollowsTheLogAsItIsEdited) {
    openLog({"CALL=A1", "CALL=B1", "CALL=A2"});
    store.setSearchText("a");
    EXPECT_EQ(told.sent(), "displayedRecords searchText");
    store.setSearchText("A1");
    EXPECT_EQ(shown(), "A1");
    type(1, "CALL", "A11");
    EXPECT_EQ(shown(), "A1 A11");
    type(0, "CALL", "X");
    EXPECT_EQ(shown(), "A11");
    store.undo();
    store.undo();
    EXPECT_EQ(shown(), "A1");
    told.sent();
    store.setSearchText("A1");
    EXPECT_EQ(told.sent(), "");
}

TEST_F(Sorting, OrdersNumbersByValueAndPutsEmptyOnesLast) {
    openLog({"N=1 CALL=DL10AB", "N=2", "N=3 CALL=dl2ab", "N=4 CALL=", "N=5 CALL=DL2AB", "N=6 CALL=Ö1"});
    EXPECT_EQ(shown("N"), "1 2 3 4 5 6");
    store.toggleSort("call");
    EXPECT_EQ(told.sent(), "displayedRecords sort");
    EXPECT_EQ(shown("N"), "3 5 1 6 2 4");
    store.toggleSort("CALL");
    EXPECT_EQ(shown("N"), "6 1 3 5 2 4");
    EXPECT_EQ(told.sent(), "displayedRecords sort");
    store.toggleSort("N");
    EXPECT_TRUE(store.sortAscending());
    store.clearSort();
    EXPECT_EQ(shown("N"), "1 2 3 4 5 6");
    EXPECT_EQ(cell(0, "N"), "1");
}

TEST_F(Sorting, FollowsTheLogAndKeepsToTheSearch) {
    openLog({"CALL=C X=1", "CALL=B", "CALL=A X=1"});
    store.toggleSort("CALL");
    EXPECT_EQ(shown(), "A B C");
    store.setSearchText("1");
    EXPECT_EQ(shown(), "A C");
    type(0, "CALL", "0");
    EXPECT_EQ(shown(), "0 A");
    EXPECT_EQ(store.displayedRow(id(0)), 0U);
    EXPECT_EQ(store.displayedRow(id(1)), std::nullopt);
    EXPECT_EQ(store.displayedRow(tallyrig::UUID::fresh()), std::nullopt);
    store.setSearchText("");
    EXPECT_EQ(shown(), "0 A B");
    EXPECT_EQ(store.displayedIndex(0), 0U);
}

TEST_F(Selecting, FollowsTheKeysHeldDown) {
    constexpr ClickModifiers plain = {};
    constexpr ClickModifiers command = {.command = true, .shift = false};
    constexpr ClickModifiers shift = {.command = false, .shift = true};
    constexpr ClickModifiers both = {.command = true, .shift = true};
    openLog({"CALL=D", "CALL=C", "CALL=B", "CALL=A"});
    const struct {
        std::size_t record;
        ClickModifiers keys;
        const char* selected;
        std::size_t anchor;
    } clicks[] = {
        {1, shift, "C", 1},                                // without an anchor, as a plain click
        {3, shift, "C B A", 1},                            // the anchor stays
        {0, shift, "D C", 1},                              // to the other side; what was selected is not kept
        {3, command, "D C A", 3}, {0, command, "C A", 0},  // taken out, and yet the anchor
        {2, both, "D C B", 0},    {1, plain, "C", 1},
    };
    for (const auto& click : clicks) {
        store.selectRow(id(click.record), click.keys);
        EXPECT_EQ(selected(), click.selected);
        EXPECT_EQ(store.selectionAnchor(), id(click.anchor)) << click.selected;
        EXPECT_EQ(told.sent(), "selection") << click.selected;
    }
    store.selectRow(id(1), plain);
    EXPECT_EQ(told.sent(), "");
    store.selectRow(id(1), command);
    store.setSearchText("d");
    store.selectRow(id(0), both);  // The anchor is hidden now: as with command alone.
    EXPECT_EQ(selected(), "D");
    EXPECT_EQ(store.selectionAnchor(), id(0));
}

TEST_F(Selecting, TakesRangesAsTheyStandOnScreen) {
    openLog({"CALL=B", "CALL=D", "CALL=A", "CALL=C"});
    store.toggleSort("CALL");
    store.selectRow(id(2), {});
    store.selectRow(id(3), {.command = false, .shift = true});
    EXPECT_EQ(selected(), "B A C");
    store.setSearchText("d");
    store.selectAllDisplayed();
    EXPECT_EQ(selected(), "D");
}

TEST_F(Selecting, TakesARecordByItsPlaceInTheLog) {
    openLog({"CALL=B", "CALL=A"});
    store.toggleSort("CALL");
    store.selectRecord(0);
    EXPECT_EQ(selected(), "B");
    EXPECT_EQ(store.selectionAnchor(), id(0));
    EXPECT_EQ(store.selectedRecord()->valueOrEmpty("CALL"), "B");
    told.sent();
    store.selectRecord(2);
    EXPECT_EQ(told.sent(), "");
    select({0, 1});
    EXPECT_EQ(store.selectedRecord(), nullptr);
}

TEST_F(Selecting, GivesTheClipboardRecordsInTheOrderOfTheLog) {
    openLog({"CALL=B", "CALL=X", "CALL=A NAME=Jörg"});
    EXPECT_EQ(store.selectionAsADIF().find("CALL"), std::string::npos);
    store.toggleSort("CALL");
    select({0, 2});
    const std::string text = store.selectionAsADIF();
    EXPECT_EQ(text.find("EOH"), std::string::npos);
    EXPECT_LT(text.find("<CALL:1>B"), text.find("<CALL:1>A"));
    EXPECT_NE(text.find("<NAME:5>Jörg"), std::string::npos) << text;
    EXPECT_EQ(text.find("<CALL:1>X"), std::string::npos);
}

}  // namespace
}  // namespace quillon
