// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Sheets/CabrilloExportSheet.h"
#include "Quillon/Views/Sheets/EDIExportSheet.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include <memory>

namespace quillon {
namespace {

class ExportSheets : public testing::LogStoreTest {
  protected:
    template <typename Sheet>
    void openSheet() {
        sheet = std::make_unique<Sheet>(store);
        sheet->open();
    }
    template <typename Control>
    Control& control(const char* name) const {
        return testing::namedChild<Control>(*sheet, name);
    }
    std::string text(const char* name) const { return control<QLineEdit>(name).text().toStdString(); }
    void enter(const char* name, const char* value) {
        control<QLineEdit>(name).setText(QString::fromUtf8(value));
    }
    void choose(const char* name, int index) {
        QComboBox& picker = control<QComboBox>(name);
        picker.setCurrentIndex(index);
        emit picker.activated(index);
    }
    bool mayExport() const { return exportButton().isEnabled(); }
    /// Exports and reads what was written.
    std::string exported() {
        panels.answers = {folder.path(QStringLiteral("exported"))};
        exportButton().click();
        EXPECT_FALSE(sheet->isVisible());
        return folder.read(QStringLiteral("exported"));
    }
    QAbstractButton& exportButton() const {
        return *testing::shownButton(*sheet, QStringLiteral("Exportieren …"));
    }

    std::unique_ptr<QDialog> sheet;
};

TEST_F(ExportSheets, CabrilloBeginsWithCallAndContestOfTheLogOnly) {
    openLog({"CALL=K1XYZ STATION_CALLSIGN=dl1abc CONTEST_ID=cq-ww-cw BAND=20m MODE=CW"});
    openSheet<CabrilloExportSheet>();
    EXPECT_EQ(text("Rufzeichen (CALLSIGN)") + " " + text("Contest"), "DL1ABC CQ-WW-CW");
    EXPECT_EQ(text("Band"), "") << "what else would be suggested is the user's to choose";
    EXPECT_EQ(control<QComboBox>("Modus").currentIndex(), -1);
    EXPECT_EQ(control<QComboBox>("Operator").currentIndex(), 0);
    EXPECT_EQ(sheet->focusWidget(), &control<QLineEdit>("Rufzeichen (CALLSIGN)"));
}

TEST_F(ExportSheets, CabrilloWritesWhatWasEntered) {
    openLog({"CALL=K1XYZ FREQ=14.074"});
    openSheet<CabrilloExportSheet>();
    EXPECT_FALSE(mayExport()) << "a log without call";
    enter("Rufzeichen (CALLSIGN)", " \t");
    EXPECT_FALSE(mayExport());
    enter("Rufzeichen (CALLSIGN)", "DL0AA");
    choose("Cabrillo-Version", 1);
    choose("Leistung", 2);
    choose("Modus", 1);
    enter("E-Mail", "a@example.org");
    control<QPlainTextEdit>("Soapbox").setPlainText(QStringLiteral("Danke\nBis\u00A0bald"));
    const std::string file = exported();
    for (const char* line : {"START-OF-LOG: 2.0\r\n", "CALLSIGN: DL0AA\r\n", "CATEGORY-POWER: LOW\r\n",
                             "CATEGORY-MODE: CW\r\n", "CATEGORY-OPERATOR: \r\n", "EMAIL: a@example.org\r\n",
                             "SOAPBOX: Danke\r\nSOAPBOX: Bis\u00A0bald\r\n", "QSO: 14074 DG"}) {
        EXPECT_NE(file.find(line), std::string::npos) << line << file;
    }
}

TEST_F(ExportSheets, EDINeedsCallAndLocator) {
    openLog({"CALL=OK1ABC STATION_CALLSIGN=dl0aa QSO_DATE=20240302 BAND=2m OPERATOR=dl1abc CONTEST_ID=marz",
             "CALL=OK2ABC QSO_DATE=20240303"});
    openSheet<EDIExportSheet>();
    EXPECT_EQ(text("Contest (TName)") + text("Datum von (JJJJMMTT)") + text("bis"), "MARZ2024030220240303");
    EXPECT_EQ(text("Rufzeichen (PCall)") + text("Band (PBand)") + text("Operatoren (MOpe1)"),
              "DL0AA144 MHzDL1ABC");
    EXPECT_FALSE(mayExport());
    enter("Eigener Locator (PWWLo)", "JO62QM");
    EXPECT_TRUE(mayExport());
    enter("Rufzeichen (PCall)", " ");
    EXPECT_FALSE(mayExport());
}

TEST_F(ExportSheets, EDIOffersTheFieldOfThePointsOnlyWhereItCounts) {
    openLog({"CALL=OK1ABC MY_GRIDSQUARE=JO62 STATION_CALLSIGN=DL0AA QSO_PTS=17"});
    openSheet<EDIExportSheet>();
    const auto isFieldShown = [&] { return testing::isShown(control<QLineEdit>("ADIF-Feld"), *sheet); };
    EXPECT_FALSE(isFieldShown());
    EXPECT_EQ(text("ADIF-Feld"), "DISTANCE");
    choose("Wertung", 2);
    EXPECT_TRUE(isFieldShown());
    enter("ADIF-Feld", "QSO_PTS");
    enter("Adresse, zweite Zeile", "Hinterhaus");
    control<QPlainTextEdit>("Remarks").setPlainText(QStringLiteral("Regen"));
    const std::string file = exported();
    for (const char* line : {"CQSOP=17\r\n", "PAdr2=Hinterhaus\r\n", "[Remarks]\r\nRegen\r\n"}) {
        EXPECT_NE(file.find(line), std::string::npos) << line;
    }
}

TEST_F(ExportSheets, ShowAndExportTheFrontOfAnEndlessCall) {
    openLog({"CALL=K1XYZ STATION_CALLSIGN=" + std::string(1'000'000, 'X')});
    openSheet<CabrilloExportSheet>();
    EXPECT_EQ(text("Rufzeichen (CALLSIGN)"), std::string(1'000, 'X'));
    EXPECT_NE(testing::shownTexts(*sheet).find("höchstens 1.000 Zeichen"), std::string::npos);
    EXPECT_NE(exported().find("CALLSIGN: " + std::string(1'000, 'X') + "\r\n"), std::string::npos);
}

}  // namespace
}  // namespace quillon
