// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Support/LogStoreFixture.h"

#include <functional>
#include <memory>

namespace quillon {
namespace {

using tallyrig::ColumnTarget;
using tallyrig::UUID;

class EditingALog : public testing::LogStoreTest {
  protected:
    /// The columns, and the fields of each record as for `adi`.
    std::string log() const {
        std::string text = columns();
        for (const tallyrig::ADIFRecord& record : store.document().records()) {
            text += ",";
            for (const tallyrig::ADIFFieldView field : record.fields()) {
                text += " " + std::string(field.name) + "=" + std::string(field.value);
            }
        }
        return text;
    }
};

TEST_F(EditingALog, IsToldAndUndone) {
    const std::string edited = "displayedRecords document history isDirty windowTitle";
    const std::string recordsEdited =
        "checkResults displayedRecords document history isDirty selection showCheckResults windowTitle";
    const std::string columnEdited =
        "checkResults displayedRecords document history isDirty showCheckResults windowTitle";
    struct Edit {
        std::function<void()> act;
        std::string log;
        std::string told;
    };
    const Edit edits[] = {
        {[&] { type(0, "band", "2"); }, "CALL X, CALL=A X=1 BAND=2, CALL=B", edited},
        {[&] { type(0, "x", ""); }, "CALL X, CALL=A, CALL=B", edited},
        {[&] { store.setField(id(0), 1, "2"); }, "CALL X, CALL=A X=2, CALL=B", edited},
        {[&] { store.setField(id(0), 1, ""); }, "CALL X, CALL=A X=, CALL=B", edited},
        {[&] { store.removeField(id(0), 1); }, "CALL X, CALL=A, CALL=B", edited},
        {[&] { store.addField(id(1), "x"); }, "CALL X, CALL=A X=1, CALL=B X=", edited},
        {[&] { store.addField(id(1), "y"); }, "CALL X Y, CALL=A X=1, CALL=B Y=", "columns " + edited},
        {[&] { store.addRecord(); }, "CALL X, CALL=A X=1, CALL=B, CALL=", recordsEdited},
        {[&] { store.pasteRecords("<y:1>2<eor> <eor> <x:1>3<eor>"); },
         "CALL X Y, CALL=A X=1, CALL=B, Y=2, X=3",
         "checkResults columns displayedRecords document history isDirty selection showCheckResults "
         "windowTitle"},
        {[&] { store.deleteSelected(); }, "CALL X, CALL=B", recordsEdited},
        {[&] { store.setColumnValue("X", "2", ColumnTarget::emptyOnly); }, "CALL X, CALL=A X=1, CALL=B X=2",
         columnEdited},
        {[&] { store.replaceInColumn("x", "1", ""); }, "CALL X, CALL=A X=, CALL=B", columnEdited},
        {[&] { store.addColumn("y"); }, "CALL X Y, CALL=A X=1, CALL=B", "columns history"},
        {[&] { store.moveColumnBy("x", -1); }, "X CALL, CALL=A X=1, CALL=B", "columns history"},
        {[&] { store.moveColumnBefore("CALL", "Y"); }, "X CALL, CALL=A X=1, CALL=B", "columns history"},
        {[&] { store.renameColumn("x", " y "); }, "CALL Y, CALL=A Y=1, CALL=B",
         "columnWidths columns " + edited},
        {[&] { store.duplicateColumn("x"); }, "CALL X X_2, CALL=A X=1 X_2=1, CALL=B",
         "columnWidths columns " + edited},
        {[&] { store.removeColumn("x"); }, "CALL, CALL=A, CALL=B", "columnWidths columns " + edited},
    };
    for (const Edit& edit : edits) {
        openLog({"CALL=A X=1", "CALL=B"});
        const std::string before = log();
        store.runCheck();
        select({0});
        edit.act();
        EXPECT_EQ(told.sent(), edit.told) << edit.log;
        EXPECT_EQ(log(), edit.log);
        store.undo();
        EXPECT_EQ(log(), before) << edit.log;
        EXPECT_FALSE(store.isDirty() || store.canUndo() || store.showCheckResults()) << edit.log;
        store.redo();
        EXPECT_EQ(log(), edit.log);
    }
}

TEST_F(EditingALog, IsNoneWhereNothingChanges) {
    openLog({"CALL=A NAME=J\xC3\xB6rg"});
    type(0, "BAND", "");
    type(0, "NAME", "Jo\xCC\x88rg");  // Another spelling of the same text.
    store.setField(id(0), 0, "A");
    store.setField(id(0), 2, "x");
    store.removeField(id(0), 2);
    store.removeField(UUID::fresh(), 0);
    store.addField(UUID::fresh(), "X");
    EXPECT_EQ(store.pasteRecords("no <b>log</b> <eor>"), 0U);
    store.deleteSelected();
    store.setColumnValue("CALL", "B", ColumnTarget::emptyOnly);
    store.replaceInColumn("CALL", "B", "C");
    store.moveColumnBy("CALL", -1);
    store.moveColumnBefore("CALL", "CALL");
    store.duplicateColumn("X");
    store.removeColumn("X");
    EXPECT_FALSE(store.addColumn("call"));
    EXPECT_FALSE(store.renameColumn("CALL", "name"));
    EXPECT_TRUE(store.renameColumn("CALL", "call"));
    EXPECT_EQ(told.sent(), "");
    EXPECT_EQ(store.field(id(0), 2), "");
}

TEST_F(EditingALog, JoinsWhatIsTypedIntoOneCellBeforeAndAfterASave) {
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

TEST_F(EditingALog, BringsBackTheFlagOfThatMomentAndTheSelectionThatFits) {
    openLog({"CALL=A"});
    store.addRecord();
    store.setSelection({id(0), id(1)}, id(1));
    store.addColumn("X");
    store.save();
    store.undo();
    EXPECT_EQ(title(), "log.adi — bearbeitet");
    EXPECT_TRUE(store.changesOfLastStep().records.empty());
    store.undo();
    EXPECT_EQ(store.selection(), LogStore::Selection{id(0)});
    store.redo();
    EXPECT_EQ(store.changesOfLastStep().records, std::vector{id(1)});
    store.redo();
    EXPECT_EQ(title(), "log.adi");
}

TEST_F(EditingALog, SelectsTheNewRecordsAndDeletesWhatTheSearchHides) {
    openLog({"CALL=A", "CALL=B"});
    store.addRecord();
    EXPECT_EQ(store.selection(), LogStore::Selection{id(2)});
    select({1});
    EXPECT_EQ(store.pasteRecords(store.selectionAsADIF() + "<call:1>C<eor>"), 2U);
    EXPECT_EQ(store.selection(), (LogStore::Selection{id(3), id(4)}));
    store.setSearchText("b");
    store.deleteSelected();
    EXPECT_EQ(log(), "CALL, CALL=A, CALL=B, CALL=");
}

TEST_F(EditingALog, KeepsASortByTheColumnThatIsRenamedAndNotByOneRemoved) {
    openLog({"CALL=A FREQ=1"});
    store.setWidth(99, "FREQ");
    store.toggleSort("freq");
    store.renameColumn("freq", "my_freq");
    EXPECT_EQ(store.sortColumn(), "MY_FREQ");
    EXPECT_EQ(store.width("MY_FREQ"), 99);
    store.removeColumn("my_freq");
    EXPECT_EQ(store.sortColumn(), std::nullopt);
    store.save();
    store.addColumn("X");
    store.removeColumn("X");
    EXPECT_FALSE(store.isDirty()) << "columns are none of the file";
}

TEST_F(EditingALog, IsBoundForLongerThanRecordAndStoreMayLast) {
    auto other = std::make_unique<LogStore>(settings, panels, measurer, fileManager);
    other->addRecord();
    const UUID record = other->document().records()[0].id();
    const TextBinding bindings[] = {other->cellBinding(record, "CALL"), other->fieldBinding(record, 0)};
    const auto readAfterWriting = [&] {
        bindings[0].write("A");
        const std::string first = bindings[1].read();
        bindings[1].write("B");
        return first + bindings[0].read();
    };
    EXPECT_EQ(readAfterWriting(), "AB");
    other->deleteSelected();
    EXPECT_EQ(readAfterWriting(), "");
    other.reset();
    EXPECT_EQ(readAfterWriting(), "");
}

}  // namespace
}  // namespace quillon
