// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/TableViewFixture.h"

#include "Quillon/Views/Table/ColumnCommands.h"
#include "Quillon/Views/Table/ColumnToolbar.h"

namespace quillon {
namespace {

using testing::TableViewTest;

class RenamingAColumn : public TableViewTest {};
class AddingAColumn : public TableViewTest {};

TEST_F(RenamingAColumn, ChecksTheNameAndAsksForOfficialFields) {
    struct Case {
        const char* column;
        const char* draft;
        bool consents;
        const char* columnsAfter;
        const char* asked;
        const char* error;
    };
    const char* const invalid =
        " ist kein gültiger ADIF-Feldname.\nErlaubt sind A–Z, 0–9 und _, beginnend mit einem Buchstaben (z. "
        "B. "
        "SOTA_REF).";
    const std::string invalidStart = std::string("«1A»") + invalid;
    const std::string invalidSign = std::string("«<MINE»") + invalid;
    const Case cases[] = {
        {"FREQ", "QRG", false, "CALL FREQ MINE", "FREQ>QRG (1)", "(none)"},
        {"FREQ", "\tqrg ", true, "CALL QRG MINE", "FREQ>QRG (1)", "(none)"},
        {"MINE", "YOURS", false, "CALL FREQ YOURS", "", "(none)"},
        {"FREQ", "", true, "CALL FREQ MINE", "", "(none)"},
        {"FREQ", " freq ", true, "CALL FREQ MINE", "", "(none)"},
        {"FREQ", "call", true, "CALL FREQ MINE", "", "Die Spalte CALL gibt es bereits."},
        {"FREQ", "1a", true, "CALL FREQ MINE", "", invalidStart.c_str()},
        {"FREQ", "<mine", true, "CALL FREQ MINE", "", invalidSign.c_str()},
    };
    for (const Case& c : cases) {
        openLog({"CALL=DL1A FREQ=14.1 MINE=x", "CALL=DL2A"});
        questions.consents = c.consents;
        questions.asked.clear();
        store.setErrorMessage(std::nullopt);
        commitRename(store, questions, c.column, c.draft);
        EXPECT_EQ(columns(), c.columnsAfter) << c.draft;
        EXPECT_EQ(questions.asked, c.asked) << c.draft;
        EXPECT_EQ(error(), c.error) << c.draft;
    }
}

TEST_F(AddingAColumn, OffersTheUsualFieldsThatAreNoColumnsYet) {
    openLog(
        {"CALL=DL1A BAND=20m MODE=CW FREQ=14 QSO_DATE=1 TIME_ON=1 TIME_OFF=1 SUBMODE=1 RST_SENT=1 RST_RCVD=1 "
         "GRIDSQUARE=1 NAME=1 COMMENT=1 TX_PWR=1 OPERATOR=1 STATION_CALLSIGN=1 MY_GRIDSQUARE=1 DXCC=1 CONT=1 "
         "CQZ=1 STATE=1 QSL_SENT=1 QSL_RCVD=1"});
    ColumnToolbar& toolbar = view.columnToolbar();
    EXPECT_EQ(titles(toolbar.addMenu()),
              "QTH  (QTH)\nLand  (COUNTRY)\nITU-Zone  (ITUZ)\n-\nEigenes Feld …\n");
    toolbar.addMenu().actions().at(1)->trigger();
    EXPECT_TRUE(store.columnExists("COUNTRY"));
    EXPECT_EQ(titles(toolbar.addMenu()), "QTH  (QTH)\nITU-Zone  (ITUZ)\n-\nEigenes Feld …\n");
}

TEST_F(AddingAColumn, TakesAnyValidNameAndComplainsOfOthers) {
    struct Case {
        std::optional<const char*> name;
        const char* columnsAfter;
        bool complains;
    };
    const Case cases[] = {
        {" sota_ref ", "CALL SOTA_REF", false},
        {"call", "CALL", false},
        {" <call> ", "CALL", false},
        {"  ", "CALL", false},
        {"1A", "CALL", true},
        {"Ä", "CALL", true},
        {std::nullopt, "CALL", false},
    };
    for (const Case& c : cases) {
        openLog({"CALL=DL1A"});
        store.setErrorMessage(std::nullopt);
        questions.newName = c.name ? std::optional(QString::fromUtf8(*c.name)) : std::nullopt;
        view.columnToolbar().addMenu().actions().last()->trigger();
        EXPECT_EQ(columns(), c.columnsAfter) << c.name.value_or("(cancelled)");
        EXPECT_EQ(store.errorMessage().has_value(), c.complains) << c.name.value_or("(cancelled)");
    }
    questions.newName = QStringLiteral("1\u202EA");
    view.columnToolbar().addMenu().actions().last()->trigger();
    EXPECT_TRUE(error().starts_with("«1⟨RLO⟩A»")) << error();
    questions.newName.reset();
    questions.asked.clear();
    store.setErrorMessage(std::nullopt);
    QApplication::processEvents();
    EXPECT_EQ(questions.asked, "[1\u202EA]") << "what was typed can be mended";
}

}  // namespace
}  // namespace quillon
