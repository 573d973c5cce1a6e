#include "Quillon/Support/LogStoreFixture.h"

namespace quillon {
namespace {

using Columns = testing::LogStoreTest;

TEST_F(Columns, AreAddedAndMovedWithoutTouchingTheLog) {
    openLog({"CALL=A"});
    EXPECT_TRUE(store.addColumn("X"));
    EXPECT_EQ(told.sent(), "columns history");
    store.moveColumnBy("X", -1);
    store.moveColumnBefore("CALL", "X");
    EXPECT_EQ(told.sent(), "columns2");
    EXPECT_FALSE(store.addColumn("call"));
    store.moveColumnBy("X", 1);
    store.moveColumnBefore("X", "X");
    EXPECT_EQ(told.sent(), "");
    store.undo();
    EXPECT_EQ(columns(), "X CALL");
}

TEST_F(Columns, TakeAnotherNameEverywhere) {
    openLog({"CALL=A FREQ=1"});
    store.setWidth(99, "FREQ");
    store.toggleSort("freq");
    told.sent();
    EXPECT_TRUE(store.renameColumn("CALL", "call"));
    EXPECT_FALSE(store.renameColumn("CALL", "freq"));
    EXPECT_TRUE(store.renameColumn("freq", " my_freq "));
    EXPECT_EQ(told.sent(), "columnWidths columns displayedRecords document history isDirty sort windowTitle");
    EXPECT_EQ(store.sortColumn(), "MY_FREQ");
    EXPECT_EQ(cell(0, "MY_FREQ"), "1");
}

TEST_F(Columns, AreDuplicatedWithTheirData) {
    openLog({"CALL=A BAND=1"});
    store.duplicateColumn("call");
    EXPECT_EQ(told.sent(), "columnWidths columns displayedRecords document history isDirty windowTitle");
    EXPECT_EQ(columns() + " " + cell(0, "CALL_2"), "CALL CALL_2 BAND A");
}

TEST_F(Columns, TakeTheirDataWithThem) {
    openLog({"CALL=A BAND=1"});
    store.addColumn("X");
    store.setWidth(99, "X");
    store.toggleSort("X");
    told.sent();
    store.removeColumn("x");
    EXPECT_EQ(told.sent(), "columnWidths columns displayedRecords sort");
    store.removeColumn("CALL");
    EXPECT_EQ(told.sent(), "columnWidths columns displayedRecords document isDirty windowTitle");
    EXPECT_EQ(columns() + " " + cell(0, "CALL"), "BAND (absent)");
    store.removeColumn("CALL");
    EXPECT_EQ(told.sent(), "");
    store.undo();
    EXPECT_EQ(columns() + " " + cell(0, "CALL"), "CALL BAND A");
}

TEST_F(Columns, AreFittedOnOpeningAndOnRequest) {
    openLog({"CALL=DL1ABC BAND=20m"});
    EXPECT_EQ(store.width("BAND"), store.fittingWidth("band"));
    const double fitting = store.width("CALL");
    store.setWidth(200, "BAND");
    store.setWidth(200, "CALL");
    store.autoFitColumns({"call"});
    EXPECT_EQ(store.width("BAND"), 200);
    EXPECT_EQ(store.width("CALL"), fitting);
    store.autoFitColumns();
    EXPECT_EQ(told.sent(), "columnWidths4");
    EXPECT_EQ(store.width("BAND"), store.fittingWidth("BAND"));
}

}  // namespace
}  // namespace quillon
