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

constexpr const char* oneEdit = "displayedRecords document history isDirty windowTitle";

TEST_F(Cells, AreWrittenOnlyWithAnotherText) {
    openLog({"CALL=A NAME=J\xC3\xB6rg"});
    type(0, "BAND", "");
    type(0, "NAME", "Jo\xCC\x88rg");  // Another spelling of the same text.
    EXPECT_EQ(told.sent(), "");
    type(0, "band", "20m");
    EXPECT_EQ(told.sent(), oneEdit);
    EXPECT_EQ(cell(0, "BAND") + " " + columns(), "20m CALL NAME");
    type(0, "CALL", "");
    EXPECT_EQ(cell(0, "CALL"), "(absent)");
}

TEST_F(Cells, MakeOneStepEachOfWhatIsTypedBeforeAndAfterASave) {
    openLog({"CALL=A", "CALL=B"});
    type(1, "BAND", "2");
    store.save();
    type(1, "band", "20m");
    type(0, "BAND", "40m");
    store.setField(id(0), 1, "80m");
    for (int steps = 0; steps < 3; ++steps) {
        ASSERT_TRUE(store.canUndo());
        store.undo();
    }
    EXPECT_FALSE(store.canUndo() || store.isDirty());
}

TEST_F(Cells, OutliveRecordAndStore) {
    auto other = std::make_unique<LogStore>(settings, panels, measurer);
    other->addRecord();
    const auto record = other->document().records()[0].id();
    const TextBinding bindings[] = {other->cellBinding(record, "CALL"), other->fieldBinding(record, 0)};
    const auto readAfterWriting = [&] {
        bindings[0].write("A");
        bindings[1].write("B");
        return bindings[0].read() + bindings[1].read();
    };
    EXPECT_EQ(readAfterWriting(), "BB");
    other->deleteSelected();
    EXPECT_EQ(readAfterWriting(), "");
    other.reset();
    EXPECT_EQ(readAfterWriting(), "");
}

TEST_F(Fields, AreReachedByTheirPlaceAndStayThereWhenEmptied) {
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
    store.removeField(id(0), 2);
    store.removeField(tallyrig::UUID::fresh(), 0);
    store.addField(tallyrig::UUID::fresh(), "X");
    EXPECT_EQ(told.sent(), "");
}

TEST_F(Fields, AreAddedWithAColumnAndRemovedWithout) {
    openLog({"CALL=A"});
    store.addField(id(0), "sota_ref");
    EXPECT_EQ(cell(0, "SOTA_REF"), "");
    EXPECT_EQ(told.sent(), std::string("columns ") + oneEdit);
    store.addField(id(0), "call");
    store.removeField(id(0), 1);
    EXPECT_EQ(columns() + cell(0, "SOTA_REF"), "CALL SOTA_REF(absent)");
}

TEST_F(Records, AreAddedAtTheEndAndSelected) {
    openLog({"CALL=A"});
    store.addRecord();
    EXPECT_EQ(told.sent(), "displayedRecords document history isDirty selection windowTitle");
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
    store.pasteRecords(store.selectionAsADIF());
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
    EXPECT_EQ(shown() + selected(), "A B C");
    EXPECT_EQ(store.changesOfLastStep().records, (std::vector{id(0), id(1)}));
}

TEST_F(BulkEdits, CountAsChangesOnlyWhereTheyChangeSomething) {
    openLog({"CALL=A BAND=20m", "CALL=B"});
    store.setColumnValue("BAND", "20m", ColumnTarget::emptyOnly);
    EXPECT_EQ(told.sent(), oneEdit);
    store.replaceInColumn("band", "0", "");
    EXPECT_EQ(told.sent(), "displayedRecords document");
    EXPECT_EQ(shown("BAND"), "2m 2m");
    store.undo();
    told.sent();
    store.replaceInColumn("BAND", "70", "x");
    store.setColumnValue("BAND", "40m", ColumnTarget::emptyOnly);
    EXPECT_EQ(told.sent(), "") << "and nothing of redo";
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
    store.undo();
    EXPECT_EQ(told.sent(), "columns history");
    EXPECT_EQ(columns(), "CALL");
}

}  // namespace
}  // namespace quillon
