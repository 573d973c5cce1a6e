#include "Quillon/Support/LogStoreFixture.h"

#include <memory>

namespace quillon {
namespace {

using tallyrig::ColumnTarget;
using testing::LogStoreTest;

using Cells = LogStoreTest;
using Fields = LogStoreTest;
using Records = LogStoreTest;
using BulkEdits = LogStoreTest;
using Undo = LogStoreTest;

TEST_F(Cells, AreWrittenAndTold) {
    openLog({"CALL=A", "CALL=B"});
    type(1, "band", "20m");
    EXPECT_EQ(told.sent(), "displayedRecords document history isDirty windowTitle");
    EXPECT_EQ(cell(1, "BAND") + " " + columns(), "20m CALL");
    type(1, "BAND", "40m");
    EXPECT_EQ(told.sent(), "displayedRecords document") << "one step with the letters before";
    type(0, "BAND", "40m");
    store.setField(id(0), 1, "40");
    for (int steps = 0; steps < 3; ++steps) {
        ASSERT_TRUE(store.canUndo());
        store.undo();
    }
    EXPECT_FALSE(store.canUndo() || store.isDirty());
}

TEST_F(Cells, StayUntouchedByTheValueTheyHave) {
    openLog({"CALL=A NAME=J\xC3\xB6rg"});
    type(0, "BAND", "");
    type(0, "NAME", "Jo\xCC\x88rg");  // Another spelling of the same text.
    EXPECT_EQ(told.sent(), "");
}

TEST_F(Cells, DropTheFieldWhenEmptied) {
    openLog({"CALL=A X=1 CALL=B"});
    type(0, "CALL", "");
    EXPECT_EQ(store.document().records()[0].fields().size(), 1U);
}

TEST_F(Cells, OutliveRecordAndStore) {
    auto other = std::make_unique<LogStore>(settings, panels, measurer);
    other->addRecord();
    const auto record = other->document().records()[0].id();
    const TextBinding byColumn = other->cellBinding(record, "CALL");
    const TextBinding byPosition = other->fieldBinding(record, 0);
    byColumn.write("DL1ABC");
    EXPECT_EQ(byPosition.read(), "DL1ABC");
    const auto expectDead = [&] {
        for (const TextBinding& binding : {byColumn, byPosition}) {
            binding.write("OH2XX");
            EXPECT_EQ(binding.read(), "");
        }
    };
    other->deleteSelected();
    expectDead();
    other.reset();
    expectDead();
}

TEST_F(Fields, StayInPlaceWhenEmptied) {
    openLog({"CALL=A CALL=B"});
    store.setField(id(0), 1, "C");
    EXPECT_EQ(cell(0, "CALL"), "A");
    EXPECT_EQ(store.field(id(0), 1), "C");
    store.setField(id(0), 1, "");
    EXPECT_EQ(store.document().records()[0].fields().size(), 2U);
    told.sent();
    store.setField(id(0), 1, "");
    store.setField(id(0), 2, "x");
    EXPECT_EQ(store.field(id(0), 2), "");
    EXPECT_EQ(told.sent(), "");
}

TEST_F(Fields, AreAddedWithAColumnAndRemovedWithout) {
    openLog({"CALL=A"});
    store.addField(id(0), "sota_ref");
    EXPECT_EQ(cell(0, "SOTA_REF"), "");
    EXPECT_EQ(told.sent(), "columns displayedRecords document history isDirty windowTitle");
    store.addField(id(0), "call");
    store.removeField(id(0), 1);
    EXPECT_EQ(columns(), "CALL SOTA_REF");
    EXPECT_EQ(cell(0, "SOTA_REF"), "(absent)");
    told.sent();
    store.removeField(id(0), 2);
    store.removeField(tallyrig::UUID::fresh(), 0);
    store.addField(tallyrig::UUID::fresh(), "X");
    EXPECT_EQ(told.sent(), "");
}

TEST_F(Records, AreAddedAtTheEndAndSelected) {
    openLog({"CALL=A"});
    store.runCheck();
    told.sent();
    store.addRecord();
    EXPECT_EQ(
        told.sent(),
        "checkResults displayedRecords document history isDirty selection showCheckResults windowTitle");
    EXPECT_EQ(store.selection(), LogStore::Selection{id(1)});
    EXPECT_EQ(cell(1, "CALL"), "");
}

TEST_F(Records, ArePastedBehindTheOthersInOneStep) {
    openLog({"CALL=A"});
    EXPECT_EQ(store.pasteRecords("no <b>log</b> <eor>"), 0U);
    EXPECT_EQ(told.sent(), "");
    EXPECT_EQ(store.pasteRecords("<call:1>B<eor> <eor> <call:1>A<band:3>20m<eor>"), 2U);
    EXPECT_EQ(told.sent(), "columns displayedRecords document history isDirty selection windowTitle");
    EXPECT_EQ(shown() + ", " + selected() + ", " + columns(), "A B A, B A, CALL BAND");
    select({2});
    EXPECT_EQ(store.pasteRecords(store.selectionAsADIF()), 1U);
    EXPECT_EQ(store.selection(), LogStore::Selection{id(3)});
    store.undo();
    store.undo();
    EXPECT_EQ(shown() + ", " + columns(), "A, CALL");
}

TEST_F(Records, AreDeletedEvenWhereTheSearchHidesThem) {
    openLog({"CALL=A", "CALL=B", "CALL=C"});
    select({0, 1});
    store.setSearchText("b");
    store.deleteSelected();
    store.setSearchText("");
    EXPECT_EQ(shown(), "C");
    told.sent();
    store.deleteSelected();
    EXPECT_EQ(told.sent(), "");
    store.undo();
    EXPECT_EQ(shown(), "A B C");
    EXPECT_TRUE(store.selection().empty());
    EXPECT_EQ(store.changesOfLastStep().records, (std::vector{id(0), id(1)}));
    store.addColumn("X");
    EXPECT_TRUE(store.changesOfLastStep().records.empty());
}

TEST_F(BulkEdits, CountAsChangesOnlyWhereTheyChangeSomething) {
    openLog({"CALL=A BAND=20m", "CALL=B", "CALL=C BAND=20m"});
    store.setColumnValue("BAND", "20m", ColumnTarget::emptyOnly);
    EXPECT_EQ(told.sent(), "displayedRecords document history isDirty windowTitle");
    EXPECT_EQ(shown("BAND"), "20m 20m 20m");
    store.replaceInColumn("band", "0", "");
    EXPECT_EQ(shown("BAND"), "2m 2m 2m");
    store.setColumnValue("BAND", "", ColumnTarget::allRecords);
    EXPECT_EQ(shown("BAND") + columns(), "- - -CALL BAND");
    store.undo();
    store.undo();
    told.sent();
    store.replaceInColumn("BAND", "70", "x");
    store.setColumnValue("BAND", "40m", ColumnTarget::emptyOnly);
    EXPECT_EQ(told.sent(), "");
    EXPECT_TRUE(store.canRedo());
}

TEST_F(Undo, JoinsTypingBeforeAndAfterASave) {
    openLog({"CALL=A"});
    type(0, "CALL", "B");
    store.save();
    type(0, "CALL", "BC");
    store.undo();
    EXPECT_FALSE(store.isDirty() || store.canUndo());
}

TEST_F(Undo, BringsBackTheFlagOfThatMoment) {
    openLog({"CALL=A"});
    type(0, "CALL", "B");
    store.addColumn("X");
    store.save();
    store.undo();
    EXPECT_EQ(title(), "log.adi — bearbeitet");
    store.redo();
    EXPECT_EQ(title(), "log.adi");
}

TEST_F(Undo, RestoresColumnsAndClearsWhatNoLongerFits) {
    openLog({"CALL=A", "CALL=B"});
    store.addColumn("X");
    store.addRecord();
    store.runCheck();
    store.setSelection({id(0), id(2)}, id(2));
    told.sent();
    store.undo();
    EXPECT_EQ(
        told.sent(),
        "checkResults displayedRecords document history isDirty selection showCheckResults windowTitle");
    EXPECT_EQ(selected(), "A");
    EXPECT_EQ(store.selectionAnchor(), std::nullopt);
    store.undo();
    EXPECT_EQ(told.sent(), "columns history");
    EXPECT_EQ(columns(), "CALL");
}

}  // namespace
}  // namespace quillon
