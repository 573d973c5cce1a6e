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
    EXPECT_EQ(cell(1, "BAND"), "20m");
    EXPECT_EQ(columns(), "CALL");
    type(1, "BAND", "40m");
    EXPECT_EQ(told.sent(), "displayedRecords document");
}

TEST_F(Cells, StayUntouchedByTheValueTheyHave) {
    openLog({"CALL=A NAME=J\xC3\xB6rg"});
    type(0, "CALL", "A");
    type(0, "BAND", "");
    type(0, "NAME", "Jo\xCC\x88rg");  // Another spelling of the same text.
    EXPECT_EQ(told.sent(), "");
    EXPECT_FALSE(store.isDirty());
}

TEST_F(Cells, DropTheFieldWhenEmptied) {
    openLog({"CALL=A X=1 CALL=B"});
    type(0, "CALL", "");
    EXPECT_EQ(store.document().records()[0].fields().size(), 1U);
    store.addRecord();
    type(1, "CALL", "");
    type(1, "CALL", "D");
    type(1, "CALL", "");
    EXPECT_EQ(store.document().records()[1].fields().size(), 0U);
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
    EXPECT_EQ(columns(), "CALL SOTA_REF");
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
    ASSERT_NE(store.selectedRecord(), nullptr);
    EXPECT_EQ(store.selectedRecord()->id(), id(1));
    EXPECT_EQ(cell(1, "CALL"), "");
}

TEST_F(Records, ArePastedBehindTheOthersInOneStep) {
    openLog({"CALL=A"});
    EXPECT_EQ(store.pasteRecords("no <b>log</b> <eor>"), 0U);
    EXPECT_EQ(told.sent(), "");
    EXPECT_EQ(store.pasteRecords("<call:1>B<eor> <eor> <call:1>A<band:3>20m<eor>"), 2U);
    EXPECT_EQ(told.sent(), "columns displayedRecords document history isDirty selection windowTitle");
    EXPECT_EQ(shown(), "A B A");
    EXPECT_EQ(selected(), "B A");
    EXPECT_EQ(columns(), "CALL BAND");
    select({2});
    EXPECT_EQ(store.pasteRecords(store.selectionAsADIF()), 1U);
    EXPECT_EQ(store.selection(), LogStore::Selection{id(3)});
    store.undo();
    store.undo();
    EXPECT_EQ(shown() + columns(), "ACALL");
}

TEST_F(Records, AreDeletedEvenWhereTheSearchHidesThem) {
    openLog({"CALL=A", "CALL=B", "CALL=C"});
    select({0, 1});
    EXPECT_EQ(store.hiddenSelectionCount(), 0U);
    store.setSearchText("b");
    EXPECT_EQ(store.hiddenSelectionCount(), 1U);
    store.deleteSelected();
    EXPECT_EQ(shown(), "");
    store.setSearchText("");
    EXPECT_EQ(shown(), "C");
    told.sent();
    store.deleteSelected();
    EXPECT_EQ(told.sent(), "");
    store.undo();
    EXPECT_EQ(shown(), "A B C");
    EXPECT_TRUE(store.selection().empty());
}

TEST_F(BulkEdits, CountAsChangesOnlyWhereTheyChangeSomething) {
    openLog({"CALL=A BAND=20m", "CALL=B", "CALL=C BAND=20m"});
    store.runCheck();
    told.sent();
    store.setColumnValue("BAND", "20m", ColumnTarget::emptyOnly);
    EXPECT_EQ(told.sent(),
              "checkResults displayedRecords document history isDirty showCheckResults windowTitle");
    EXPECT_EQ(shown("BAND"), "20m 20m 20m");
    store.replaceInColumn("band", "0", "");
    EXPECT_EQ(shown("BAND"), "2m 2m 2m");
    store.setColumnValue("BAND", "", ColumnTarget::allRecords);
    EXPECT_EQ(shown("BAND"), "- - -");
    EXPECT_EQ(columns(), "CALL BAND");
    store.undo();
    store.undo();
    store.undo();
    EXPECT_EQ(shown("BAND"), "20m - 20m");
    EXPECT_FALSE(store.isDirty() || store.canUndo());
    told.sent();
    store.setColumnValue("BAND", "", ColumnTarget::emptyOnly);
    store.setColumnValue("BAND", "40m", ColumnTarget::emptyOnly);
    store.undo();
    told.sent();
    store.replaceInColumn("BAND", "70", "x");
    store.replaceInColumn("BAND", "", "x");
    EXPECT_EQ(told.sent(), "");
    EXPECT_TRUE(store.canRedo());
}

TEST_F(Undo, MakesOneStepOfTypingInOneCell) {
    openLog({"CALL=A NAME=N"});
    const auto steps = [&] {
        int count = 0;
        for (; store.canUndo(); ++count) {
            store.undo();
        }
        EXPECT_EQ(cell(0, "CALL") + cell(0, "NAME"), "AN");
        EXPECT_FALSE(store.isDirty());
        return count;
    };
    type(0, "CALL", "D");
    type(0, "call", "DL");
    type(0, "CALL", "DL1");
    EXPECT_EQ(steps(), 1);

    type(0, "CALL", "D");
    type(0, "NAME", "D");
    type(0, "CALL", "DL");
    EXPECT_EQ(steps(), 3);

    type(0, "CALL", "D");
    store.undo();
    type(0, "CALL", "D");
    EXPECT_FALSE(store.canRedo());
    EXPECT_EQ(steps(), 1);

    type(0, "CALL", "D");
    store.addColumn("X");
    type(0, "CALL", "DL");
    EXPECT_EQ(steps(), 3);

    store.setField(id(0), 0, "D");
    store.setField(id(0), 0, "DL");
    type(0, "CALL", "DL1");  // The same text, reached in another way.
    EXPECT_EQ(steps(), 2);
}

TEST_F(Undo, JoinsTypingBeforeAndAfterASave) {
    openLog({"CALL=A"});
    type(0, "CALL", "B");
    store.save();
    type(0, "CALL", "BC");
    EXPECT_TRUE(store.isDirty());
    store.undo();
    EXPECT_EQ(cell(0, "CALL"), "A");
    EXPECT_FALSE(store.isDirty());
    EXPECT_FALSE(store.canUndo());
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

TEST_F(Undo, ReachesBackAHundredStepsAndForwardAgain) {
    openLog({"CALL=0"});
    for (int count = 1; count <= 101; ++count) {
        type(0, "CALL", std::to_string(count));
        store.moveColumnBy("CALL", 0);  // A step of its own, which ends the typing.
    }
    const auto call = cell(0, "CALL");
    int undone = 0;
    for (; store.canUndo(); ++undone) {
        store.undo();
    }
    EXPECT_EQ(undone, 100);
    EXPECT_EQ(cell(0, "CALL"), "51");
    EXPECT_TRUE(store.isDirty());
    for (; store.canRedo(); --undone) {
        store.redo();
    }
    EXPECT_EQ(undone, 0);
    EXPECT_EQ(cell(0, "CALL"), call);
    told.sent();
    store.redo();
    EXPECT_EQ(told.sent(), "");
}

TEST_F(Undo, RestoresColumnsAndClearsWhatNoLongerFits) {
    openLog({"CALL=A", "CALL=B"});
    store.addColumn("X");
    EXPECT_EQ(told.sent(), "columns history");
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
    EXPECT_EQ(selected(), "A");
}

TEST_F(Undo, TellsWhatItBroughtAbout) {
    openLog({"CALL=A", "CALL=B BAND=1 X=1", "CALL=C"});
    const auto changed = [this] {
        const RecordChanges changes = store.changesOfLastStep();
        std::string text;
        for (const tallyrig::UUID record : changes.records) {
            text += store.cell(record, "CALL");
        }
        return text + ":" + changes.fieldName;
    };
    type(1, "BAND", "2");
    EXPECT_EQ(changed(), ":");
    store.undo();
    EXPECT_EQ(changed(), "B:BAND");
    store.redo();
    EXPECT_EQ(changed(), "B:BAND");
    type(1, "BAND", "");
    store.undo();
    EXPECT_EQ(changed(), "B:BAND");
    select({0, 2});
    store.deleteSelected();
    EXPECT_EQ(changed(), ":");
    store.undo();
    EXPECT_EQ(changed(), "AC:");
    store.redo();
    EXPECT_EQ(changed(), ":");
    store.addColumn("Y");
    store.undo();
    EXPECT_EQ(changed(), ":");
}

TEST_F(Undo, KeepsSelectedWhatIsStillThere) {
    for (const std::size_t size : {2U, 100U}) {
        openLog(std::vector<std::string>(size, "CALL=A"));
        store.addRecord();
        store.setSelection({id(1), id(size)}, std::nullopt);
        store.undo();
        EXPECT_EQ(store.selection(), LogStore::Selection{id(1)}) << size;
    }
}

}  // namespace
}  // namespace quillon
