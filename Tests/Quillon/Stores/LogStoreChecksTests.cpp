#include "Quillon/Support/LogStoreFixture.h"

namespace quillon {
namespace {

using CheckingALog = testing::LogStoreTest;

TEST_F(CheckingALog, OpensThePanelEvenWithoutFindings) {
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

TEST_F(CheckingALog, IsForgottenWhenTheRecordsChangeButNotWhenCellsDo) {
    openLog({"CALL=", "CALL=DL1ABC"});
    store.runCheck();
    type(0, "CALL", "DL1ABC");
    store.addField(id(0), "NAME");
    store.addColumn("X");
    store.renameColumn("NAME", "Y");
    EXPECT_TRUE(store.hasRecordSeverities() && store.showCheckResults());
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
