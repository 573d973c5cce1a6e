#include "Quillon/Support/LogStoreFixture.h"

namespace quillon {
namespace {

using tallyrig::ValidationSeverity;
using testing::LogStoreTest;

using CheckingALog = LogStoreTest;

const std::string good = "CALL=DL1ABC QSO_DATE=20240115 TIME_ON=1200 BAND=20m MODE=CW";

TEST_F(CheckingALog, KeepsTheWorstSeverityAndAllMessagesOfARecord) {
    openLog({good, "CALL=OH2XX QSO_DATE=20240115 TIME_ON=2500 BAND=20_m MODE=CW",
             "CALL=OH3XX QSO_DATE=20240115 TIME_ON=1200 BAND=20_m MODE=CW"});
    store.runCheck();
    EXPECT_EQ(told.sent(), "checkResults showCheckResults");
    EXPECT_EQ(store.errorCount(), 1U);
    EXPECT_EQ(store.warningCount(), 2U);
    EXPECT_EQ(store.recordSeverities(), (LogStore::Severities{{id(1), ValidationSeverity::error},
                                                              {id(2), ValidationSeverity::warning}}));
    EXPECT_EQ(store.recordIssueMessages(id(1)),
              (std::vector<std::string>{"Ungültige Zeit (Zeit (Anfang)): 2500", "Unbekanntes Band: 20 m"}));
    EXPECT_EQ(store.recordIssueMessages(id(0)).size(), 0U);
    EXPECT_EQ(store.recordIssueMessages(tallyrig::UUID::fresh()).size(), 0U);
    EXPECT_EQ(store.validationIssues()[0].recordIndex, 1U);
}

TEST_F(CheckingALog, OpensThePanelEvenWithoutFindings) {
    store.runCheck();
    EXPECT_EQ(told.sent(), "showCheckResults");
    store.setShowCheckResults(false);
    EXPECT_EQ(told.sent(), "showCheckResults");
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
    EXPECT_TRUE(store.showCheckResults());
}

TEST_F(CheckingALog, IsForgottenWhenTheRecordsChangeButNotWhenCellsDo) {
    openLog({"CALL=", good});
    store.runCheck();
    type(0, "CALL", "DL1ABC");
    store.addField(id(0), "NAME");
    store.addColumn("X");
    EXPECT_EQ(store.recordSeverities().size(), 1U);
    EXPECT_EQ(store.recordIssueMessages(id(0)).size(), 5U);
    EXPECT_TRUE(store.showCheckResults());
    const std::vector<void (*)(LogStore&)> forgetting = {
        [](LogStore& log) { log.addRecord(); },
        [](LogStore& log) { log.deleteSelected(); },
        [](LogStore& log) { log.setColumnValue("X", "1", tallyrig::ColumnTarget::allRecords); },
        [](LogStore& log) { log.replaceInColumn("X", "1", "2"); },
        [](LogStore& log) { log.undo(); },
        [](LogStore& log) { log.redo(); },
        [](LogStore& log) { log.newLog(); },
    };
    for (std::size_t step = 0; step < forgetting.size(); ++step) {
        store.runCheck();
        ASSERT_FALSE(store.validationIssues().empty());
        forgetting[step](store);
        EXPECT_FALSE(store.showCheckResults()) << step;
        EXPECT_EQ(store.validationIssues().size() + store.recordSeverities().size() + store.errorCount(), 0U)
            << step;
    }
}

}  // namespace
}  // namespace quillon
