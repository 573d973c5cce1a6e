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
        for (Control* candidate : sheet->template findChildren<Control*>()) {
            if (candidate->accessibleName() == QString::fromUtf8(name)) {
                return *candidate;
            }
        }
        qFatal("no control %s", name);
    }
    std::string text(const char* name) const { return control<QLineEdit>(name).text().toStdString(); }
    void enter(const char* name, const char* value) {
        control<QLineEdit>(name).setText(QString::fromUtf8(value));
    }
    std::string choices(const char* name) const {
        QStringList all;
        const QComboBox& picker = control<QComboBox>(name);
        for (int index = 0; index < picker.count(); ++index) {
            all.append(picker.itemText(index));
        }
        return all.join(QLatin1Char('|')).toStdString();
    }
    void choose(const char* name, int index) {
        QComboBox& picker = control<QComboBox>(name);
        picker.setCurrentIndex(index);
        emit picker.activated(index);
    }
    QPushButton& exportButton() const {
        return *static_cast<QPushButton*>(testing::shownButton(*sheet, QStringLiteral("Exportieren …")));
    }
    std::string exported(const char* name) {
        panels.answers = {folder.path(QString::fromUtf8(name))};
        exportButton().click();
        return folder.read(QString::fromUtf8(name));
    }

    std::unique_ptr<QDialog> sheet;
};

TEST_F(ExportSheets, CabrilloBeginsWithCallAndContestOfTheLogOnly) {
    openLog({"CALL=K1XYZ STATION_CALLSIGN=dl1abc CONTEST_ID=cq-ww-cw"});
    openSheet<CabrilloExportSheet>();
    EXPECT_EQ(text("Rufzeichen (CALLSIGN)"), "DL1ABC");
    EXPECT_EQ(text("Contest"), "CQ-WW-CW");
    EXPECT_EQ(text("Band"), "") << "what else would be suggested is the user's to choose";
    EXPECT_EQ(control<QComboBox>("Cabrillo-Version").currentText(), QStringLiteral("3.0"));
    EXPECT_EQ(control<QComboBox>("Modus").currentIndex(), -1);
    EXPECT_EQ(control<QComboBox>("Operator").currentIndex(), 0);
    EXPECT_TRUE(exportButton().isDefault());
    EXPECT_EQ(sheet->focusWidget(), &control<QLineEdit>("Rufzeichen (CALLSIGN)"));

    EXPECT_EQ(choices("Cabrillo-Version"), "3.0|2.0");
    EXPECT_EQ(choices("Operator"), "|SINGLE-OP|MULTI-OP|CHECKLOG");
    EXPECT_EQ(choices("Leistung"), "|HIGH|LOW|QRP");
    EXPECT_EQ(choices("Modus"), "MIXED|CW|SSB|RTTY|DIGI|FM");
    EXPECT_EQ(choices("Assisted"), "|NON-ASSISTED|ASSISTED");
    EXPECT_EQ(choices("Sender (TX)"), "|ONE|TWO|LIMITED|UNLIMITED|SWL");
}

TEST_F(ExportSheets, CabrilloWritesWhatWasEntered) {
    openLog({"CALL=K1XYZ FREQ=14.074"});
    openSheet<CabrilloExportSheet>();
    EXPECT_FALSE(exportButton().isEnabled()) << "a log without call";
    enter("Rufzeichen (CALLSIGN)", " \t");
    EXPECT_FALSE(exportButton().isEnabled());
    enter("Rufzeichen (CALLSIGN)", "DL0AA");
    EXPECT_TRUE(exportButton().isEnabled());
    choose("Cabrillo-Version", 1);
    choose("Leistung", 2);
    choose("Modus", 1);
    enter("E-Mail", "a@example.org");
    control<QPlainTextEdit>("Soapbox").setPlainText(QStringLiteral("Danke\nBis\u00A0bald"));
    const std::string file = exported("a.cbr");
    for (const char* line : {"START-OF-LOG: 2.0\r\n", "CALLSIGN: DL0AA\r\n", "CATEGORY-POWER: LOW\r\n",
                             "CATEGORY-MODE: CW\r\n", "CATEGORY-OPERATOR: \r\n", "EMAIL: a@example.org\r\n",
                             "SOAPBOX: Danke\r\nSOAPBOX: Bis\u00A0bald\r\n", "QSO: 14074 DG"}) {
        EXPECT_NE(file.find(line), std::string::npos) << line;
    }
    EXPECT_FALSE(sheet->isVisible());
}

TEST_F(ExportSheets, EDINeedsCallAndLocator) {
    openLog({"CALL=OK1ABC STATION_CALLSIGN=dl0aa QSO_DATE=20240302 BAND=2m OPERATOR=dl1abc CONTEST_ID=marz",
             "CALL=OK2ABC QSO_DATE=20240303"});
    openSheet<EDIExportSheet>();
    EXPECT_EQ(text("Contest (TName)"), "MARZ");
    EXPECT_EQ(text("Datum von (JJJJMMTT)") + text("bis"), "2024030220240303");
    EXPECT_EQ(text("Rufzeichen (PCall)"), "DL0AA");
    EXPECT_EQ(text("Band (PBand)"), "144 MHz");
    EXPECT_EQ(text("Operatoren (MOpe1)"), "DL1ABC");
    EXPECT_EQ(text("Eigener Locator (PWWLo)"), "");
    EXPECT_FALSE(exportButton().isEnabled());
    enter("Eigener Locator (PWWLo)", "JO62QM");
    EXPECT_TRUE(exportButton().isEnabled());
    enter("Rufzeichen (PCall)", " ");
    EXPECT_FALSE(exportButton().isEnabled());
}

TEST_F(ExportSheets, EDIOffersTheFieldOfThePointsOnlyWhereItCounts) {
    openLog({"CALL=OK1ABC MY_GRIDSQUARE=JO62 STATION_CALLSIGN=DL0AA QSO_PTS=17"});
    openSheet<EDIExportSheet>();
    EXPECT_EQ(choices("Wertung"), "Distanz aus Locatoren (km)|Leer lassen (Auswerter rechnet)|Aus ADIF-Feld");
    const auto isFieldShown = [&] { return testing::isShown(control<QLineEdit>("ADIF-Feld"), *sheet); };
    EXPECT_FALSE(isFieldShown());
    EXPECT_EQ(text("ADIF-Feld"), "DISTANCE");
    choose("Wertung", 2);
    EXPECT_TRUE(isFieldShown());
    enter("ADIF-Feld", "QSO_PTS");
    enter("Adresse, zweite Zeile", "Hinterhaus");
    control<QPlainTextEdit>("Remarks").setPlainText(QStringLiteral("Regen"));
    const std::string file = exported("a.edi");
    for (const char* line : {"CQSOP=17\r\n", "PAdr2=Hinterhaus\r\n", "[Remarks]\r\nRegen\r\n"}) {
        EXPECT_NE(file.find(line), std::string::npos) << line;
    }
}

}  // namespace
}  // namespace quillon
