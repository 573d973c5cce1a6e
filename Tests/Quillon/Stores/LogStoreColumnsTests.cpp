#include "Quillon/Support/LogStoreFixture.h"

namespace quillon {
namespace {

using testing::LogStoreTest;

using Columns = LogStoreTest;
using ColumnWidths = LogStoreTest;

TEST_F(Columns, AreAddedAndMovedWithoutTouchingTheLog) {
    openLog({"CALL=A"});
    EXPECT_TRUE(store.addColumn("X"));
    EXPECT_EQ(told.sent(), "columns history");
    store.moveColumnBy("X", -1);
    store.moveColumnBefore("CALL", "X");
    EXPECT_EQ(told.sent(), "columns2");
    EXPECT_EQ(columns(), "CALL X");
    EXPECT_FALSE(store.addColumn("call"));
    store.moveColumnBy("X", 1);
    store.moveColumnBefore("X", "X");
    EXPECT_EQ(told.sent(), "");
    store.undo();
    EXPECT_EQ(columns(), "X CALL");
}

TEST_F(Columns, TakeAnotherNameEverywhere) {
    openLog({"CALL=A FREQ=1 FREQ=2", "CALL=B"});
    store.setWidth(99, "FREQ");
    store.toggleSort("freq");
    told.sent();
    EXPECT_TRUE(store.renameColumn("CALL", "call"));
    EXPECT_FALSE(store.renameColumn("CALL", "freq"));
    EXPECT_TRUE(store.renameColumn("freq", " my_freq "));
    EXPECT_EQ(told.sent(), "columnWidths columns displayedRecords document history isDirty sort windowTitle");
    EXPECT_EQ(store.sortColumn(), "MY_FREQ");
    EXPECT_EQ(cell(0, "MY_FREQ") + cell(0, "FREQ"), "12");
}

TEST_F(Columns, AreDuplicatedWithTheirData) {
    openLog({"CALL=A BAND=1"});
    store.duplicateColumn("call");
    EXPECT_EQ(columns() + " " + cell(0, "CALL_2"), "CALL CALL_2 BAND A");
    EXPECT_TRUE(store.isDirty());
}

TEST_F(Columns, TakeTheirDataWithThem) {
    openLog({"CALL=A BAND=1 CALL=B"});
    store.addColumn("X");
    store.setWidth(99, "X");
    store.toggleSort("X");
    told.sent();
    store.removeColumn("x");
    EXPECT_EQ(told.sent(), "columnWidths columns displayedRecords sort");
    EXPECT_FALSE(store.isDirty());
    store.removeColumn("CALL");
    EXPECT_TRUE(store.isDirty());
    EXPECT_EQ(store.document().records()[0].fields().size(), 1U);
    store.removeColumn("BAND");
    EXPECT_EQ(columns(), "");
    told.sent();
    store.removeColumn("BAND");
    EXPECT_EQ(told.sent(), "");
    store.undo();
    store.undo();
    EXPECT_EQ(columns() + " " + cell(0, "CALL"), "CALL BAND A");
}

TEST_F(ColumnWidths, AreFittedOnOpeningAndOnRequest) {
    openLog({"CALL=DL1ABC BAND=20m"});
    EXPECT_EQ(store.width("BAND"), store.fittingWidth("band"));
    const double fitting = store.width("CALL");
    store.setWidth(200, "BAND");
    store.setWidth(200, "CALL");
    store.autoFitColumns({});
    store.autoFitColumns({"call"});
    EXPECT_EQ(store.width("BAND"), 200);
    EXPECT_EQ(store.width("CALL"), fitting);
    store.autoFitColumns();
    EXPECT_EQ(store.width("BAND"), store.fittingWidth("BAND"));
    EXPECT_FALSE(store.canUndo() || store.isDirty());
    told.sent();
    store.setWidth(fitting, "CALL");
    EXPECT_EQ(told.sent(), "");
}

}  // namespace
}  // namespace quillon
