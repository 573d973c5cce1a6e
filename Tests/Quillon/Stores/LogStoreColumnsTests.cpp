#include "Quillon/Support/LogStoreFixture.h"

namespace quillon {
namespace {

using testing::LogStoreTest;

using Columns = LogStoreTest;
using ColumnWidths = LogStoreTest;

TEST(ColumnNames, AreCleanedAndThenJudged) {
    const struct {
        const char* typed;
        const char* cleaned;
        bool isValid;
    } cases[] = {
        {"  sota_ref\n", "SOTA_REF", true},
        {"<CALL:5>", "CALL5", true},
        {"a:b<c>", "ABC", true},
        {"X_1", "X_1", true},
        {"1A", "1A", false},
        {"_A", "_A", false},
        {"", "", false},
        {" <> ", "", false},
        {"Ä", "Ä", false},
        {"ä", "Ä", false},
        {"A B", "A B", false},
        {"A-B", "A-B", false},
    };
    for (const auto& [typed, cleaned, isValid] : cases) {
        EXPECT_EQ(LogStore::cleanedFieldName(typed), cleaned) << typed;
        EXPECT_EQ(LogStore::isValidFieldName(LogStore::cleanedFieldName(typed)), isValid) << typed;
    }
    EXPECT_EQ(
        LogStore::invalidFieldNameMessage("\t 1Ä "),
        QString::fromUtf8("«1Ä» ist kein gültiger ADIF-Feldname.\nErlaubt sind A–Z, 0–9 und _, beginnend mit "
                          "einem Buchstaben (z. B. SOTA_REF)."));
}

TEST_F(Columns, AreAddedWithoutTouchingTheLog) {
    openLog({"CALL=A"});
    EXPECT_TRUE(store.addColumn(" sota_ref "));
    EXPECT_EQ(told.sent(), "columns history");
    EXPECT_EQ(columns(), "CALL SOTA_REF");
    for (const char* refused : {"call", "<Sota_Ref>", "1A", ""}) {
        EXPECT_FALSE(store.addColumn(refused)) << refused;
    }
    EXPECT_EQ(told.sent(), "");
    EXPECT_TRUE(store.columnExists("sota_ref"));
}

TEST_F(Columns, TakeAnotherNameEverywhere) {
    openLog({"CALL=A FREQ=1 FREQ=2", "CALL=B"});
    store.setWidth(99, "FREQ");
    store.toggleSort("freq");
    store.runCheck();
    told.sent();
    EXPECT_TRUE(store.renameColumn("freq", " my_freq "));
    EXPECT_EQ(told.sent(), "columnWidths columns displayedRecords document history isDirty sort windowTitle");
    EXPECT_EQ(columns(), "CALL MY_FREQ");
    EXPECT_EQ(store.sortColumn(), "MY_FREQ");
    EXPECT_EQ(store.width("MY_FREQ"), 99);
    EXPECT_EQ(store.width("FREQ"), 92);
    EXPECT_EQ(cell(0, "MY_FREQ") + cell(0, "FREQ"), "12");
    EXPECT_TRUE(store.showCheckResults());
}

TEST_F(Columns, KeepTheirNameWhereTheNewOneWillNotDo) {
    openLog({"CALL=A BAND=1"});
    EXPECT_TRUE(store.renameColumn("CALL", "call"));
    EXPECT_FALSE(store.renameColumn("MODE", "X"));
    EXPECT_FALSE(store.renameColumn("MODE", "MODE"));
    EXPECT_FALSE(store.renameColumn("CALL", "band"));
    EXPECT_FALSE(store.renameColumn("CALL", "1"));
    EXPECT_EQ(told.sent(), "");
}

TEST_F(Columns, AreDuplicatedDirectlyBehindThemselves) {
    openLog({"CALL=A BAND=1"});
    store.setWidth(99, "CALL");
    store.duplicateColumn("call");
    store.duplicateColumn("CALL");
    EXPECT_EQ(columns(), "CALL CALL_3 CALL_2 BAND");
    EXPECT_EQ(cell(0, "CALL_2") + cell(0, "CALL_3"), "AA");
    EXPECT_EQ(store.width("CALL_3"), 99);
    EXPECT_TRUE(store.isDirty());
    told.sent();
    store.duplicateColumn("MODE");
    EXPECT_EQ(told.sent(), "");
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
    EXPECT_EQ(columns(), "CALL BAND");
    EXPECT_EQ(cell(0, "CALL"), "A");
}

TEST_F(Columns, AreMovedWithoutTouchingTheLog) {
    openLog({"A=1 B=2 C=3 D=4"});
    const struct {
        const char* name;
        const char* target;  ///< Absent where `offset` counts.
        int offset;
        const char* expected;  ///< Empty where nothing happens.
    } cases[] = {
        {"a", nullptr, 1, "B A C D"},
        {"A", nullptr, 2, "C B A D"},
        {"A", nullptr, -3, ""},
        {"D", nullptr, 1, ""},
        {"X", nullptr, 1, ""},
        {"D", "a", 0, "D A B C"},
        {"A", "D", 0, "B C A D"},
        {"A", "X", 0, "B C D A"},
        {"A", "a", 0, ""},
        {"X", "A", 0, ""},
    };
    for (const auto& [name, target, offset, expected] : cases) {
        target != nullptr ? store.moveColumnBefore(name, target) : store.moveColumnBy(name, offset);
        const bool isMove = *expected != '\0';
        EXPECT_EQ(columns(), isMove ? expected : "A B C D") << name << offset;
        EXPECT_EQ(told.sent(), isMove ? "columns history" : "") << name << offset;
        if (isMove) {
            store.undo();
            told.sent();
        }
    }
}

TEST_F(ColumnWidths, ComeFromTheUserOrTheName) {
    const std::vector<std::pair<const char*, double>> cases = {
        {"qso_date_off", 100}, {"TIME_ON", 80}, {"SUBMODE", 78}, {"MY_GRIDSQUARE", 92},
        {"RST_RCVD", 70},      {"NOTES", 180},  {"CALL", 130},   {"BAND_RX", 78},
    };
    for (const auto& [name, expected] : cases) {
        EXPECT_EQ(store.width(name), expected) << name;
    }
    for (const auto& [set, stored] : {std::pair(10.0, 48.0), {47.9, 48.0}, {123.5, 123.5}, {601.0, 600.0}}) {
        store.setWidth(set, "call");
        EXPECT_EQ(store.width("CALL"), stored);
    }
    told.sent();
    store.setWidth(600, "CALL");
    EXPECT_EQ(told.sent(), "");
}

TEST_F(ColumnWidths, FitTheWidestOfContentLabelAndTag) {
    // Widths of one byte: 7.3 in cells, 6 in labels, 5 in tags; margins of 22 around the column.
    openLog({"CALL=DL1ABC/P BAND=20m QSO_DATE=20240115 TIME_ON=123456 X= COMMENT=" + std::string(99, 'c') +
             " MODE=CW LONG_NAME_OF_OURS=1 QSO_DATE_OFF=2024 BAND_RX=1234567890"});
    const std::vector<std::pair<const char*, double>> cases = {
        {"call", 94},                // "Rufzeichen": 60 + 12
        {"QSO_DATE", 95},            // "15.01.2024": 73
        {"TIME_ON", 112},            // "Zeit (Anfang)": 78 + 12
        {"BAND", 69},                // "<BAND": 25 + 22
        {"BAND_RX", 95},             // ten bytes of content: 73, no dot
        {"COMMENT", 320},            // cut
        {"X", 60},                   // "<X": 10 + 22 -> 54, the least
        {"LONG_NAME_OF_OURS", 136},  // label 102 + 12
    };
    for (const auto& [name, expected] : cases) {
        EXPECT_EQ(store.fittingWidth(name), expected) << name;
    }
}

TEST_F(ColumnWidths, LeaveRoomForTheDotOfABand) {
    openLog({"BAND=1234567890"});
    EXPECT_EQ(store.fittingWidth("BAND"), 73 + 13 + 22);
}

TEST_F(ColumnWidths, AreFittedOnOpeningAndOnRequest) {
    openLog({"CALL=DL1ABC BAND=20m"});
    EXPECT_EQ(store.width("BAND"), 69);
    store.setWidth(200, "BAND");
    store.setWidth(200, "CALL");
    store.autoFitColumns({});
    EXPECT_EQ(store.width("BAND"), 200);
    store.autoFitColumns({"band"});
    EXPECT_EQ(store.width("BAND"), 69);
    EXPECT_EQ(store.width("CALL"), 200);
    store.autoFitColumns();
    EXPECT_EQ(store.width("CALL"), 94);
    EXPECT_FALSE(store.canUndo() || store.isDirty());
}

TEST_F(ColumnWidths, MeasureASampleOfLargeLogsAndEachTextOnce) {
    std::vector<std::string> records(5999, "X=a");
    records[1] = "X=bb";
    records[2] = "Y=1";
    openLog(records);
    measurer.measuredCells.clear();
    store.fittingWidth("X");
    EXPECT_EQ(joined(measurer.measuredCells), "a bb");
    records.push_back("X=a");  // 6000 records: every second one.
    records[4] = "X=ccc";
    openLog(records);
    measurer.measuredCells.clear();
    store.fittingWidth("X");
    EXPECT_EQ(joined(measurer.measuredCells), "a ccc");
}

}  // namespace
}  // namespace quillon
