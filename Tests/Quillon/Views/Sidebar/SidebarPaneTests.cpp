// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sidebar/SidebarPane.h"

#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Stores/ValidationSettings.h"
#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Sidebar/FieldPicker.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>
#include <QTest>

#include <algorithm>
#include <memory>
#include <vector>

namespace quillon {
namespace {

class Sidebar : public testing::LogStoreTest {
  protected:
    void show() {
        pane = std::make_unique<SidebarPane>(AppStores{store, compare, contest, cross}, settings);
        QObject::connect(pane.get(), &SidebarPane::checkRequested, &store, &LogStore::runCheck);
    }
    template <typename Control>
    Control& named(const char* name) const {
        return testing::namedChild<Control>(*pane, name);
    }
    QAbstractButton& button(const char* text) const {
        return *testing::shownButton(*pane, QString::fromUtf8(text));
    }
    /// The state of the switches from top to bottom, such as "+-+".
    std::string switches() const {
        std::string states;
        for (const QCheckBox* box : pane->findChildren<QCheckBox*>()) {
            states += box->isChecked() ? '+' : '-';
        }
        return states;
    }

    CompareStore compare{settings, panels};
    ContestStore contest;
    CrossCheckStore cross{panels, fileManager};
    std::unique_ptr<SidebarPane> pane;
};

TEST_F(Sidebar, ShowsTheSettingsAsTheyAre) {
    const auto shown = [&] {
        show();
        return switches() + " " + named<QLineEdit>("ADIF-Version").text().toStdString() + " " +
               named<QComboBox>("Dublette =").currentText().toStdString();
    };
    EXPECT_EQ(shown(), "+++++ 3.1.7 Call + Band + Modus");
    settings.setValue(setting::checkFormat, false);
    settings.setValue(setting::checkDuplicates, QStringLiteral("no boolean"));
    settings.setValue(setting::adifVersion, QStringLiteral("3.1.4"));
    settings.setValue(setting::duplicateCriterion, QStringLiteral("call"));
    EXPECT_EQ(shown(), "+-+++ 3.1.4 Nur Call");
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
    QTest::keyClick(&named<QLineEdit>("ADIF-Version"), Qt::Key_Backspace);
    EXPECT_EQ(settings.value(setting::adifVersion), QVariant(QStringLiteral("3.1.")));
    QTest::keyClick(&named<QComboBox>("Dublette ="), Qt::Key_End);
    EXPECT_EQ(settings.value(setting::duplicateCriterion), QVariant(QStringLiteral("call")));
}

TEST_F(Sidebar, ChecksALogThatHasQSOs) {
    show();
    EXPECT_FALSE(button("Jetzt prüfen").isEnabled());
    openLog({"CALL=DL1ABC", "CALL=DL1ABC"});
    button("Jetzt prüfen").click();
    EXPECT_EQ(store.errorCount(), 8U);
    pane->findChildren<QCheckBox*>()[0]->click();
    button("Jetzt prüfen").click();
    EXPECT_EQ(store.errorCount(), 0U) << "by the settings of the moment";
}

TEST_F(Sidebar, OffersToAddFieldsToASingleRecordOnly) {
    openLog({"CALL=DL1ABC", "CALL=DL2ABC"});
    show();
    const auto offered = [&] {
        const bool hint = testing::shownTexts(*pane).find("Einzelnes QSO auswählen") != std::string::npos;
        EXPECT_NE(hint, testing::shownChild<FieldPicker>(*pane) != nullptr);
        return !hint;
    };
    EXPECT_FALSE(offered());
    select({0, 1});
    EXPECT_FALSE(offered());
    select({1});
    EXPECT_TRUE(offered());
}

TEST_F(Sidebar, AddsAFieldOfTheUsersOwn) {
    openLog({"CALL=DL1ABC"});
    select({0});
    show();
    const QSignalSpy added(pane.get(), &SidebarPane::fieldAdded);
    auto& name = named<QLineEdit>("Eigenes Feld");
    name.setText(QStringLiteral(" sota_ref "));
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_EQ(cell(0, "SOTA_REF") + name.text().toStdString(), "");
    EXPECT_EQ(added.size(), 1);

    name.setText(QStringLiteral("mein Feld"));
    button("Feld hinzufügen").click();
    EXPECT_EQ(added.size(), 1);
    EXPECT_EQ(error().substr(0, error().find('\n')), "«mein Feld» ist kein gültiger ADIF-Feldname.");
    EXPECT_EQ(name.text(), QStringLiteral("mein Feld"));
}

TEST_F(Sidebar, FindsAFieldOfADIFByTypingItsNameOrLabel) {
    openLog({"CALL=DL1ABC"});
    select({0});
    show();
    auto& picker = named<FieldPicker>("Standardfeld");
    QTest::keyClick(&picker, Qt::Key_Down);
    EXPECT_EQ(picker.findData(QStringLiteral("CALL")), -1) << "the record has it already";
    EXPECT_EQ(picker.findData(QStringLiteral("ADIF_VER")), -1) << "no QSO has it";
    EXPECT_EQ(columns(), "CALL") << "to open the list changes nothing";
    picker.hidePopup();
    for (const char* typed : {"tx_pwr", "freq", "locator"}) {
        QTest::keyClick(&picker, typed[0]);
        for (const char* rest = typed + 1; *rest != 0; ++rest) {
            QTest::keyClick(picker.view(), *rest);
        }
        QTest::keyClick(picker.view(), Qt::Key_Return);
    }
    EXPECT_EQ(columns(), "CALL TX_PWR FREQ GRIDSQUARE");
}

TEST_F(Sidebar, ProposesTheExtensionOfTheExport) {
    store.open(folder.write(QStringLiteral("contest.cbr"), testing::adi({"CALL=DL1ABC"})));
    show();
    panels.answers = {folder.path(QStringLiteral("copy.adi"))};
    button("ADIF (.adi) …").click();
    EXPECT_EQ(panels.proposedNames.last(), QStringLiteral("contest.adi"));
    EXPECT_EQ(title(), "copy.adi");
}

/// The sidebar as it is while the log is scored.
class ContestSidebar : public Sidebar {
  protected:
    void showFor(Contest chosen) {
        contest.setContest(chosen);
        store.setMode(AppMode::contest);
        show();
    }
    void typeInto(const char* name, const char* text) {
        auto& field = named<QLineEdit>(name);
        field.selectAll();
        QTest::keyClicks(&field, QString::fromUtf8(text));
    }
    void choose(const char* name, int index) { named<QComboBox>(name).setCurrentIndex(index); }
    bool offers(const char* text) const {
        return ("\n" + testing::shownTexts(*pane) + "\n").find("\n" + std::string(text) + "\n") !=
               std::string::npos;
    }
};

TEST_F(ContestSidebar, FindsAContestByTyping) {
    showFor(Contest::helvetia);
    auto& picker = named<QComboBox>("Contest");
    QTest::keyClick(&picker, 'w');
    QTest::keyClicks(picker.view(), QStringLiteral("px r"));
    QTest::keyClick(picker.view(), Qt::Key_Return);
    EXPECT_EQ(contest.contest(), Contest::cqWPXRtty);
    EXPECT_TRUE(offers(std::string(info(Contest::cqWPXRtty)).c_str()));
    QTest::keyClick(&picker, 'm');
    QTest::keyClicks(picker.view(), QStringLiteral("zz"));
    QTest::keyClick(picker.view(), Qt::Key_Return);
    EXPECT_EQ(contest.contest(), Contest::cqWPXRtty) << "no contest is called so";
    QTest::keyClick(&picker, 'm');
    QTest::keyClick(picker.view(), Qt::Key_Backspace);
    QTest::keyClicks(picker.view(), QStringLiteral("50"));
    QTest::keyClick(picker.view(), Qt::Key_Return);
    EXPECT_EQ(contest.contest(), Contest::mhz50);
    EXPECT_FALSE(offers("Regeln"));
}

TEST_F(ContestSidebar, TakesTheOwnStationAsTyped) {
    showFor(Contest::helvetia);
    typeInto("DXCC-Gebiet", "230");
    typeInto("Kontinent", "eu ");
    typeInto("CQ-Zone", "15");
    typeInto("ITU-Zone", "29");
    typeInto("Locator", "jo62");
    EXPECT_EQ(contest.ownStation(), (OwnStation{"230", "eu ", "15", "29", "jo62"}));
}

TEST_F(ContestSidebar, HasTheFormOfAContestOfOnesOwn) {
    showFor(Contest::generic);
    EXPECT_TRUE(offers("Regeln") && offers("Dubletten & Pflichtfelder") && offers("Multiplikator"));
    typeInto("Name", "Fuchsjagd");
    named<QSpinBox>("Punkte je QSO").setValue(101);
    choose("Punkte", 2);
    EXPECT_TRUE(offers("Punkte-Feld") && !offers("Eigenes Locator-Feld"));
    typeInto("Punkte-Feld", "SRX");
    choose("Punkte", 1);
    EXPECT_TRUE(offers("Gegen-Locator-Feld") && !offers("Punkte-Feld"));
    typeInto("Eigenes Locator-Feld", "A");
    typeInto("Gegen-Locator-Feld", "B");
    choose("Dublette =", 1);
    typeInto("Pflichtfelder (Komma)", "CALL, SRX");
    auto& prefix = named<QSpinBox>("Wie viel des Wertes zählt");
    EXPECT_EQ(prefix.text(), QStringLiteral("ganzer Wert"));
    prefix.setValue(4);
    EXPECT_EQ(prefix.text(), QStringLiteral("erste 4 Zeichen"));
    typeInto("Feld", "GRIDSQUARE");
    const GenericContest filledIn = {.contestName = "Fuchsjagd",
                                     .pointsKind = PointsKind::distance,
                                     .fixedPoints = 100,
                                     .pointsField = "SRX",
                                     .myGridField = "A",
                                     .theirGridField = "B",
                                     .dupeMode = DupeMode::callBandMode,
                                     .requiredFieldsText = "CALL, SRX",
                                     .multiplierField = "GRIDSQUARE",
                                     .multiplierPrefix = 4};
    EXPECT_EQ(contest.genericContest(), filledIn);

    pane->findChildren<QCheckBox*>()[1]->click();
    pane->findChildren<QCheckBox*>()[0]->click();
    EXPECT_FALSE(offers("Feld"));
    EXPECT_FALSE(contest.genericContest().multiplierEnabled);
    EXPECT_TRUE(contest.genericContest().multiplierPerBand);
}

TEST_F(ContestSidebar, LeadsTheTabKeyFromTopToBottomAndBack) {
    openLog({"CALL=DL1ABC"});
    select({0});
    const auto walk = [this](Qt::Key key) {
        auto& first = named<QComboBox>("Ansicht");
        first.setFocus();
        std::vector<int> tops;
        constexpr std::size_t most = 50;
        do {
            const QWidget* stop = QApplication::focusWidget();
            tops.push_back(stop->mapTo(pane->widget(), QPoint()).y());
            QTest::keyClick(QApplication::focusWidget(), key);
        } while (QApplication::focusWidget() != &first && tops.size() < most);
        return tops;
    };
    showFor(Contest::generic);
    QWidget window;
    pane->setParent(&window);
    pane->show();
    window.show();
    QApplication::setActiveWindow(&window);
    const struct {
        AppMode mode;
        ContestStore::Pane pane;
        std::size_t stops;
    } cases[] = {{AppMode::check, {}, 15},
                 {AppMode::contest, ContestStore::Pane::score, 18},
                 {AppMode::contest, ContestStore::Pane::crossCheck, 15}};
    for (const auto& shown : cases) {
        SCOPED_TRACE(shown.stops);
        contest.setPane(shown.pane);
        store.setMode(shown.mode);
        QCoreApplication::processEvents();
        const auto down = walk(Qt::Key_Tab);
        EXPECT_TRUE(std::ranges::is_sorted(down));
        EXPECT_EQ(down.size(), shown.stops);
        EXPECT_EQ(walk(Qt::Key_Backtab).size(), down.size());
    }
    pane->setParent(nullptr);
}

TEST_F(ContestSidebar, HasAFieldForTheOwnerAndAButtonToRemoveInTheRowOfEachLog) {
    const auto log = [this](const char* name, const std::string& fields) {
        return folder.write(QString::fromUtf8(name), testing::adi({"CALL=X " + fields}));
    };
    showFor(Contest::helvetia);
    choose("Contest-Ansicht", 1);
    cross.add({log("a.adi", "STATION_CALLSIGN=DL5A"), log("b.adi", "")}, std::nullopt);
    auto& list = named<QTableView>("Logs");
    const auto rows = [&list] {
        std::string texts;
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            texts += (row == list.currentIndex().row() ? ">" : "") +
                     list.model()->index(row, 0).data().toString().toStdString() + " " +
                     list.model()->index(row, 1).data().toString().toStdString() + "\n";
        }
        return texts;
    };
    const auto type = [&list](const char* text) {
        QTest::keyClick(&list, Qt::Key_F2);
        QTest::keyClicks(list.findChild<QLineEdit*>(), QString::fromUtf8(text));
    };
    EXPECT_EQ(rows(), "unbekannt b.adi\nDL5A a.adi\n");
    list.setCurrentIndex(list.model()->index(0, 0));
    type("dl2b");
    cross.add({log("c.adi", "STATION_CALLSIGN=DL1C"), log("d.adi", "STATION_CALLSIGN=DL9D")}, std::nullopt);
    EXPECT_EQ(rows(), ">DL2B b.adi\nDL1C c.adi\nDL5A a.adi\nDL9D d.adi\n") << "what was being typed counts";
    cross.add({log("e.adi", "STATION_CALLSIGN=DL0E")}, std::nullopt);
    EXPECT_EQ(rows(), "DL0E e.adi\nDL1C c.adi\n>DL2B b.adi\nDL5A a.adi\nDL9D d.adi\n");

    QTest::keyClick(&list, Qt::Key_Right);
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(rows(), "DL0E e.adi\nDL1C c.adi\n>DL5A a.adi\nDL9D d.adi\n");
    QTest::keyClick(&list, Qt::Key_End);
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(rows(), "DL0E e.adi\nDL1C c.adi\n>DL5A a.adi\n");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualRect(list.model()->index(0, 2)).center());
    EXPECT_EQ(rows(), ">DL1C c.adi\nDL5A a.adi\n");
}

TEST_F(ContestSidebar, SetsUpTheCheckOfManyLogs) {
    const QString a = folder.write(QStringLiteral("a.adi"), testing::adi({"CALL=X STATION_CALLSIGN=DL1A"}));
    const QString b = folder.write(QStringLiteral("b.adi"), testing::adi({"CALL=X"}));
    showFor(Contest::helvetia);
    choose("Contest-Ansicht", 1);
    EXPECT_EQ(contest.pane(), ContestStore::Pane::crossCheck);
    EXPECT_FALSE(offers("Mein Standort"));
    cross.add({a, b, folder.write(QStringLiteral("c.txt"), "no log")}, std::nullopt);
    EXPECT_TRUE(offers("2 Log(s) geladen, 1 übersprungen (keine QSOs): c.txt"));

    button("Alle entfernen").click();
    EXPECT_TRUE(cross.entries().empty());

    typeInto("Inhaber aktuelles Log", "dl3c");
    named<QSpinBox>("Zeittoleranz").setValue(31);
    choose("Strafe je NIL", 2);
    choose("Strafe je Busted", 3);
    typeInto("Auswerter", "HB9A");
    EXPECT_EQ(cross.currentOwnerOverride() + " " + cross.evaluator(), "dl3c HB9A");
    EXPECT_EQ(cross.toleranceMinutes(), 30);
    EXPECT_EQ(cross.penalties(), (tallyrig::CrossCheckPenalties{true, 2, 3}));
    for (QCheckBox* box : pane->findChildren<QCheckBox*>()) {
        if (testing::isShown(*box, *pane) && box->text() != QStringLiteral("Punkte berechnen")) {
            box->click();
        }
    }
    EXPECT_FALSE(cross.includeCurrentLog() || cross.compareMode() || cross.checkExchange());
    EXPECT_TRUE(cross.checkRST() && !cross.removeBustedExchange());
}

TEST_F(Sidebar, LoadsAndSavesTheSidesOfAComparison) {
    store.setMode(AppMode::compare);
    show();
    const QString path = folder.write("left.adi", testing::adi({"CALL=A"}));
    EXPECT_NE(testing::shownTexts(*pane).find("CALL + QSO_DATE + TIME_ON + BAND + MODE"), std::string::npos);
    EXPECT_FALSE(named<QPushButton>("Links speichern").isEnabled());
    EXPECT_FALSE(named<QPushButton>("Rechts speichern").isEnabled());
    panels.answers = {path};
    named<QPushButton>("Links laden").click();
    EXPECT_NE(testing::shownTexts(*pane).find("Links:\nleft.adi\nRechts:\n—"), std::string::npos)
        << testing::shownTexts(*pane);
    compare.leftBinding(compare.leftFile()->document.records()[0].id(), "CALL").write("B");
    named<QPushButton>("Links speichern").click();
    EXPECT_NE(folder.read("left.adi").find("<CALL:1>B"), std::string::npos);
    named<QPushButton>("Aktuelles Log links").click();
    EXPECT_EQ(compare.leftFile(), nullptr);
    EXPECT_FALSE(named<QPushButton>("Aktuelles Log links").isEnabled());
    panels.answers = {path};
    named<QPushButton>("Rechts laden").click();
    EXPECT_TRUE(named<QPushButton>("Rechts speichern").isEnabled());
}

class OutdoorSidebar : public Sidebar {
  protected:
    void showOutdoor() {
        store.setMode(AppMode::outdoor);
        show();
        pane->show();
    }
    /// The choices at which Tab stops.
    std::string stops() const {
        std::string texts;
        for (const QRadioButton* choice : pane->findChildren<QRadioButton*>()) {
            if (testing::isShown(*choice, *pane) && (choice->focusPolicy() & Qt::TabFocus) != 0) {
                texts += choice->text().toStdString() + (choice->isChecked() ? "! " : " ");
            }
        }
        return texts;
    }
};

TEST_F(OutdoorSidebar, TakesTheProgramByMouseAndByArrowKeys) {
    showOutdoor();
    pane->resize(250, 600);
    EXPECT_EQ(stops(), "POTA! ");
    QApplication::setActiveWindow(pane.get());
    QApplication::processEvents();
    ASSERT_GT(button("GMA").y(), button("POTA").y()) << "in two rows";
    button("POTA").setFocus();
    std::string met;
    for (std::size_t step = 1; step < tallyrig::outdoorPrograms.size(); ++step) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
        met += std::string(rawValue(store.outdoorProgram())) + ' ';
    }
    EXPECT_EQ(met, "SOTA BOTA WWFF LLOTA WCA GMA ");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    EXPECT_EQ(stops(), "WCA! ");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
    EXPECT_EQ(stops(), "POTA! ");
    QTest::mouseClick(&button("SOTA"), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(stops(), "SOTA! Activator! ");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &button("Activator"));
    button("Chaser").click();
    EXPECT_EQ(store.sotaRole(), tallyrig::SOTARole::chaser);
    store.setOutdoorProgram(tallyrig::OutdoorProgram::gma);
    EXPECT_EQ(stops(), "GMA! ") << "whoever chose it";
}

TEST_F(OutdoorSidebar, SaysWhatTheProgramAsksFor) {
    showOutdoor();
    const auto says = [&](const char* text) {
        EXPECT_NE(testing::shownTexts(*pane).find(text), std::string::npos) << testing::shownTexts(*pane);
    };
    says("(z. B. K-1234) wird, falls vorhanden");
    says("Eine Datei pro Referenz (<Call>@<Ref> Datum.adi).");
    EXPECT_TRUE(button("POTA-ADIF exportieren …").isEnabled());
    store.setOutdoorProgram(tallyrig::OutdoorProgram::sota);
    says("Jäger: QSOs mit SOTA_REF");
    says("Datei <Call>@<Gipfel> Datum.csv.");
    store.setSotaRole(tallyrig::SOTARole::chaser);
    says("Datei <Call> chaser Datum.csv.");
}

TEST_F(OutdoorSidebar, ChecksAndExportsForTheProgram) {
    showOutdoor();
    EXPECT_FALSE(button("Konformität prüfen").isEnabled());
    openLog({"CALL=DL1ABC MY_SOTA_REF=DM/BW-001"});
    store.setOutdoorProgram(tallyrig::OutdoorProgram::sota);
    button("Konformität prüfen").click();
    EXPECT_EQ(store.errorCount(), 5U);
    panels.answers = {folder.path(".")};
    button("SOTA-CSV exportieren …").click();
    EXPECT_TRUE(folder.read("UNKNOWN@DM_BW-001 .csv").starts_with("V2,UNKNOWN,DM/BW-001,"));
}

}  // namespace
}  // namespace quillon
