#include "Quillon/Views/Sidebar/SidebarPane.h"

#include "Quillon/Catalogue/DuplicateCriterion.h"
#include "Quillon/Stores/ValidationSettings.h"
#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Sidebar/FieldPicker.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace quillon {
namespace {

class Sidebar : public testing::LogStoreTest {
  protected:
    void show() { pane = std::make_unique<SidebarPane>(store, settings); }
    template <typename Control>
    Control& named(const QString& accessibleName) const {
        for (Control* control : pane->findChildren<Control*>()) {
            if (control->accessibleName() == accessibleName) {
                return *control;
            }
        }
        throw std::runtime_error("no control " + accessibleName.toStdString());
    }
    std::string switches() const {
        std::string texts;
        for (const QCheckBox* box : pane->findChildren<QCheckBox*>()) {
            texts += (box->isChecked() ? "+" : "-") + box->text().toStdString() + "\n";
        }
        return texts;
    }

    std::unique_ptr<SidebarPane> pane;
};

TEST_F(Sidebar, ShowsTheSettingsAsTheyAre) {
    show();
    EXPECT_EQ(switches(),
              "+Pflichtfelder\n+Formate (Datum, Band, Locator …)\n+Unbekannte Felder melden\n+Dubletten\n"
              "+ADIF-Header schreiben\n");
    EXPECT_EQ(named<QLineEdit>(QStringLiteral("ADIF-Version")).text(), QStringLiteral("3.1.7"));
    EXPECT_EQ(named<QComboBox>(QStringLiteral("Dublette =")).currentText(),
              QStringLiteral("Call + Band + Modus"));

    settings.setValue(setting::checkFormat, false);
    settings.setValue(setting::checkDuplicates, QStringLiteral("no boolean"));
    settings.setValue(setting::writeHeaderOnSave, false);
    settings.setValue(setting::adifVersion, QStringLiteral("3.1.4"));
    settings.setValue(setting::duplicateCriterion, QStringLiteral("call"));
    show();
    EXPECT_EQ(switches(),
              "+Pflichtfelder\n-Formate (Datum, Band, Locator …)\n+Unbekannte Felder melden\n+Dubletten\n"
              "-ADIF-Header schreiben\n");
    EXPECT_EQ(named<QLineEdit>(QStringLiteral("ADIF-Version")).text(), QStringLiteral("3.1.4"));
    EXPECT_EQ(named<QComboBox>(QStringLiteral("Dublette =")).currentText(), QStringLiteral("Nur Call"));
}

TEST_F(Sidebar, WritesEachSettingWhenItChanges) {
    show();
    const QString keys[] = {setting::checkRequired, setting::checkFormat, setting::checkUnknownFields,
                            setting::checkDuplicates, setting::writeHeaderOnSave};
    const QList<QCheckBox*> boxes = pane->findChildren<QCheckBox*>();
    for (int box = 0; box < boxes.size(); ++box) {
        SCOPED_TRACE(boxes[box]->text().toStdString());
        EXPECT_FALSE(settings.value(keys[box]).isValid());
        boxes[box]->click();
        EXPECT_EQ(settings.value(keys[box]), QVariant(false));
        boxes[box]->click();
        EXPECT_EQ(settings.value(keys[box]), QVariant(true));
    }
    QLineEdit& version = named<QLineEdit>(QStringLiteral("ADIF-Version"));
    QTest::keyClick(&version, Qt::Key_Backspace);
    EXPECT_EQ(settings.value(setting::adifVersion), QVariant(QStringLiteral("3.1.")));
    QComboBox& criterion = named<QComboBox>(QStringLiteral("Dublette ="));
    QTest::keyClick(&criterion, Qt::Key_End);
    EXPECT_EQ(settings.value(setting::duplicateCriterion), QVariant(QStringLiteral("call")));
}

TEST_F(Sidebar, ChecksWithTheSettingsOfTheMoment) {
    openLog({"CALL=DL1ABC", "CALL=DL1ABC"});
    show();
    testing::shownButton(*pane, QStringLiteral("Jetzt prüfen"))->click();
    EXPECT_EQ(store.errorCount(), 8U);
    EXPECT_EQ(store.warningCount(), 0U);
    pane->findChildren<QCheckBox*>()[0]->click();
    QTest::keyClick(&named<QComboBox>(QStringLiteral("Dublette =")), Qt::Key_End);
    testing::shownButton(*pane, QStringLiteral("Jetzt prüfen"))->click();
    EXPECT_EQ(store.errorCount(), 0U);
    EXPECT_EQ(store.warningCount(), 2U);
}

TEST_F(Sidebar, OffersToAddFieldsToASingleRecordOnly) {
    openLog({"CALL=DL1ABC", "CALL=DL2ABC"});
    show();
    const std::string hint = "Einzelnes QSO auswählen, um Felder hinzuzufügen.";
    EXPECT_NE(testing::shownTexts(*pane).find(hint), std::string::npos);
    EXPECT_EQ(testing::shownChild<FieldPicker>(*pane), nullptr);
    select({0, 1});
    EXPECT_EQ(testing::shownChild<FieldPicker>(*pane), nullptr);
    select({1});
    EXPECT_EQ(testing::shownTexts(*pane).find(hint), std::string::npos);
    EXPECT_NE(testing::shownChild<FieldPicker>(*pane), nullptr);
}

TEST_F(Sidebar, AddsAFieldOfTheUsersOwn) {
    openLog({"CALL=DL1ABC"});
    select({0});
    show();
    const QSignalSpy added(pane.get(), &SidebarPane::fieldAdded);
    QLineEdit& name = named<QLineEdit>(QStringLiteral("Eigenes Feld"));
    name.setText(QStringLiteral(" sota_ref "));
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_EQ(cell(0, "SOTA_REF"), "");
    EXPECT_EQ(name.text(), QString());
    EXPECT_EQ(added.size(), 1);

    name.setText(QStringLiteral("mein Feld"));
    testing::shownButton(*pane, QStringLiteral("Feld hinzufügen"))->click();
    EXPECT_EQ(store.document().records()[0].fields().size(), 2U);
    EXPECT_EQ(error().substr(0, error().find('\n')), "«mein Feld» ist kein gültiger ADIF-Feldname.");
    EXPECT_EQ(name.text(), QStringLiteral("mein Feld"));
}

TEST_F(Sidebar, AddsAFieldOfADIF) {
    openLog({"CALL=DL1ABC"});
    select({0});
    show();
    auto* picker = testing::shownChild<FieldPicker>(*pane);
    picker->showPopup();
    EXPECT_EQ(picker->findData(QStringLiteral("CALL")), -1) << "the record has it already";
    EXPECT_EQ(picker->findData(QStringLiteral("ADIF_VER")), -1) << "no QSO has it";
    const int band = picker->findData(QStringLiteral("BAND"));
    EXPECT_EQ(picker->itemText(band), QStringLiteral("Band (BAND)"));
    picker->hidePopup();
    emit picker->activated(band);
    EXPECT_EQ(cell(0, "BAND"), "");
    EXPECT_EQ(columns(), "CALL BAND");
}

TEST_F(Sidebar, ExportsAsADIF) {
    openLog({"CALL=DL1ABC"});
    show();
    panels.answers = {folder.path(QStringLiteral("copy.adi"))};
    testing::shownButton(*pane, QStringLiteral("ADIF (.adi) …"))->click();
    EXPECT_EQ(title(), "copy.adi");
}

}  // namespace
}  // namespace quillon
