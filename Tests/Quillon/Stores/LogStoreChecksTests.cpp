#include "Quillon/Support/LogStoreFixture.h"

namespace quillon {
namespace {

using testing::LogStoreTest;

using CheckingALog = LogStoreTest;

TEST_F(CheckingALog, OpensThePanelEvenWithoutFindings) {
    store.runCheck();
    EXPECT_EQ(told.sent(), "showCheckResults");
    store.setShowCheckResults(false);
    EXPECT_EQ(told.sent(), "showCheckResults");
    openLog({"CALL="});
    store.runCheck();
    EXPECT_EQ(told.sent(), "checkResults showCheckResults");
}

TEST_F(CheckingALog, FollowsTheSettings) {
    openLog({"CALL=DL1ABC BAND=20m MODE=CW FOO=1", "CALL=DL1ABC BAND=20m MODE=SSB QSO_DATE=x"});
    const auto count = [&] {
        store.runCheck();
        return store.validationIssues().size();
    };
    EXPECT_EQ(count(), 5U);  // A date and two times missing, a bad date, an unknown field.
    settings.setValue("duplicateCriterion", "call_band");
    EXPECT_EQ(count(), 7U);
    for (const char* key : {"checkRequired", "checkFormat", "checkDuplicates", "checkUnknownFields"}) {
        settings.setValue(key, false);
    }
    EXPECT_EQ(count(), 0U);
}

TEST_F(CheckingALog, IsForgottenWhenTheRecordsChangeButNotWhenCellsDo) {
    openLog({"CALL=", "CALL=DL1ABC"});
    store.runCheck();
    type(0, "CALL", "DL1ABC");
    store.addField(id(0), "NAME");
    store.addColumn("X");
    store.renameColumn("NAME", "Y");
    EXPECT_TRUE(store.hasRecordSeverities());
    EXPECT_TRUE(store.showCheckResults());
    void (*const forgetting[])(LogStore&) = {
        [](LogStore& log) { log.addRecord(); },
        [](LogStore& log) { log.pasteRecords("<X:1>0<EOR>"); },
        [](LogStore& log) { log.replaceInColumn("X", "0", "2"); },
        [](LogStore& log) { log.undo(); },
        [](LogStore& log) { log.deleteSelected(); },
        [](LogStore& log) { log.newLog(); },
    };
    for (const auto forget : forgetting) {
        store.runCheck();
        ASSERT_TRUE(store.hasRecordSeverities());
        forget(store);
        EXPECT_FALSE(store.showCheckResults() || store.hasRecordSeverities());
    }
}

}  // namespace
}  // namespace quillon
