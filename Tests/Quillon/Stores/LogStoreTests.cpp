// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Support/LogStoreFixture.h"

namespace quillon {
namespace {

using Displaying = testing::LogStoreTest;
using Selecting = testing::LogStoreTest;
using FittingColumns = testing::LogStoreTest;
using Checking = testing::LogStoreTest;

TEST_F(Displaying, FollowsTheSearchAndTheLog) {
    openLog({"CALL=A1", "CALL=B1", "CALL=A2"});
    store.setSearchText("A1");
    EXPECT_EQ(told.sent(), "displayedRecords searchText");
    type(1, "CALL", "A11");
    EXPECT_EQ(shown(), "A1 A11");
    EXPECT_EQ(store.firstDisplayedRow({id(2), id(1)}), 1U);
    EXPECT_EQ(store.firstDisplayedRow({id(2)}), std::nullopt);
}

TEST_F(Displaying, SortsAscendingAtFirstAndTheOtherWayAtASecondClick) {
    openLog({"CALL=B", "CALL=A", "CALL=C"});
    store.toggleSort("call");
    EXPECT_EQ(told.sent(), "displayedRecords sort");
    EXPECT_EQ(shown(), "A B C");
    store.toggleSort("CALL");
    EXPECT_EQ(shown(), "C B A");
    store.toggleSort("N");
    EXPECT_TRUE(store.sortAscending());
    store.clearSort();
    EXPECT_EQ(shown(), "B A C");
}

TEST_F(Selecting, TellsOnceAndOnlyWhatDiffers) {
    openLog({"CALL=B", "CALL=D", "CALL=A"});
    store.toggleSort("CALL");
    told.sent();
    store.selectRow(id(2), {});
    EXPECT_EQ(told.sent(), "selection");
    store.selectRow(id(2), {});
    EXPECT_EQ(told.sent(), "");
    store.selectRow(id(0), {.command = false, .shift = true});
    EXPECT_EQ(selected(), "B A") << "the range as it stands on screen";
    EXPECT_EQ(store.selectedRecord(), nullptr);
    store.setSearchText("d");
    EXPECT_EQ(store.hiddenSelectionCount(), 2U);
    store.selectAllDisplayed();
    EXPECT_EQ(selected(), "D");
}

TEST_F(Selecting, GoesByThePlaceInTheLogWhateverTheSort) {
    openLog({"CALL=B", "CALL=X", "CALL=A"});
    store.toggleSort("CALL");
    store.selectRecord(0);
    store.selectRecord(3);
    EXPECT_EQ(store.selectionAnchor(), id(0));
    EXPECT_EQ(store.selectedRecord()->valueOrEmpty("CALL"), "B");
    select({0, 2});
    EXPECT_EQ(store.selectionAsADIF(), "<CALL:1>B <EOR>\n<CALL:1>A <EOR>\n");
}

TEST_F(FittingColumns, HappensOnOpeningAndOnRequest) {
    openLog({"CALL=DL1ABC BAND=20m"});
    const double fitting = store.fittingWidth("call");
    EXPECT_EQ(store.width("CALL"), fitting);
    store.setWidth(200, "BAND");
    store.setWidth(200, "CALL");
    store.autoFitColumns({"call"});
    EXPECT_EQ(store.width("BAND"), 200);
    EXPECT_EQ(store.width("CALL"), fitting);
    store.autoFitColumns();
    EXPECT_EQ(told.sent(), "columnWidths4");
}

TEST_F(Checking, OpensThePanelEvenWithoutFindings) {
    store.runCheck();
    EXPECT_EQ(told.sent(), "showCheckResults");
    openLog({"FOO=1"});
    settings.setValue("checkRequired", false);
    store.runCheck();
    EXPECT_EQ(told.sent(), "checkResults showCheckResults");
    settings.setValue("checkUnknownFields", false);
    store.runCheck();
    EXPECT_EQ(told.sent(), "checkResults");
    EXPECT_TRUE(store.validationIssues().empty());
}

}  // namespace
}  // namespace quillon
