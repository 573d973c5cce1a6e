// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Check/CheckResultsView.h"

#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Check/IssueListModel.h"
#include "Quillon/Views/Controls/CopyableList.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

namespace quillon {
namespace {

class CheckResults : public testing::LogStoreTest {
  protected:
    CheckResults() {
        view.resize(600, 200);
        view.show();
        QObject::connect(&view, &CheckResultsView::findingChosen,
                         [this](tallyrig::UUID record, const std::string& field, auto position) {
                             chosen += cell(*store.indexOf(record), "CALL") + " " + field + " " +
                                       (position ? std::to_string(*position) : "-") + "\n";
                         });
        QObject::connect(&view, &CheckResultsView::checkRequested, &store, &LogStore::runCheck);
        openLog({"CALL=DL1ABC QSO_DATE=2024 TIME_ON=9999 BAND=20m MODE=CW",
                 "CALL=DL2ABC QSO_DATE=20240101 TIME_ON=1200 BAND=20m MODE=CW",
                 "CALL=DL3ABC QSO_DATE=20240101 TIME_ON=1200 BAND=21m MODE=CW"});
        store.runCheck();
    }
    std::string findings() const {
        std::string texts;
        for (int row = 0; row < list().model()->rowCount(); ++row) {
            texts += list().model()->index(row, 0).data().toString().toStdString() + "\n";
        }
        return texts;
    }
    CopyableList& list() const { return *view.findChild<CopyableList*>(); }
    QAbstractButton& button(const char* text) const { return *testing::shownButton(view, text); }
    void clickRow(int row, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, keys,
                          list().visualRect(list().model()->index(row, 0)).center());
    }

    CheckResultsView view{store};
    std::string chosen;
};

TEST_F(CheckResults, AreListedByRecordFromOneUntilNothingIsFound) {
    const std::string all =
        "Zeile 1: Ungültiges Datum: 2024\n"
        "Zeile 1: Ungültige Zeit (Zeit (Anfang)): 9999\n"
        "Zeile 3: Unbekanntes Band: 21m\n";
    EXPECT_EQ(findings(), all);
    EXPECT_NE(testing::shownButton(view, "2 Fehler"), nullptr);
    type(2, "BAND", "20m");
    type(0, "QSO_DATE", "20240101");
    type(0, "TIME_ON", "1300");
    EXPECT_EQ(findings(), all) << "until the next check";
    button("Erneut prüfen").click();
    EXPECT_EQ(
        testing::shownTexts(view),
        "Keine Probleme\nKeine Probleme gefunden\nPflichtfelder, Formate und Dubletten sind in Ordnung.");
    button("Ergebnisleiste schließen").click();
    EXPECT_FALSE(store.showCheckResults());
}

TEST_F(CheckResults, LeadToTheFieldThatTheyAreAbout) {
    clickRow(2);
    EXPECT_EQ(selected(), "DL3ABC");
    QTest::keyClick(&list(), Qt::Key_Up);
    EXPECT_EQ(selected(), "DL1ABC");
    EXPECT_EQ(chosen, "DL3ABC BAND 3\nDL3ABC BAND 3\nDL1ABC TIME_ON 2\n")
        << "a click chooses and chooses again";
    store.selectRecord(1);
    clickRow(1);
    EXPECT_EQ(selected(), "DL1ABC") << "a second look at what is chosen already";
    store.runCheck();
    EXPECT_EQ(selected(), "DL1ABC") << "a check chooses nothing by itself";
}

TEST_F(CheckResults, EndASearchThatHidesTheirQSO) {
    store.setSearchText(QStringLiteral("DL2ABC"));
    clickRow(2);
    EXPECT_EQ(store.searchText(), QString());
    EXPECT_EQ(selected(), "DL3ABC");
}

TEST_F(CheckResults, AreFilteredBySeverityAndText) {
    button("2 Fehler").click();
    EXPECT_EQ(findings(), "Zeile 3: Unbekanntes Band: 21m\n");
    clickRow(0);
    EXPECT_EQ(selected(), "DL3ABC");
    button("2 Fehler").click();
    view.findChild<QLineEdit*>()->setText(QStringLiteral("UNGÜLTIGE Z"));
    EXPECT_EQ(findings(), "Zeile 1: Ungültige Zeit (Zeit (Anfang)): 9999\n");
    QApplication::setActiveWindow(&view);
    view.findChild<QLineEdit*>()->setFocus();
    QTest::keyClick(view.findChild<QLineEdit*>(), Qt::Key_Down);
    EXPECT_EQ(selected(), "DL1ABC") << "of the first finding that passes";
    view.findChild<QLineEdit*>()->setText(QStringLiteral("x"));
    EXPECT_EQ(testing::shownTexts(view), "Keine passenden Befunde\nKein Befund passt zum Filter.");
}

TEST_F(CheckResults, StayChosenWhileTheirQSOIs) {
    const auto highlighted = [this] { return list().chosenText().toStdString(); };
    const std::string third = "Zeile 3: Unbekanntes Band: 21m";
    clickRow(2);
    store.setSearchText(QStringLiteral("DL2ABC"));
    view.findChild<QLineEdit*>()->setText(QStringLiteral("Band"));
    EXPECT_EQ(highlighted(), third);
    EXPECT_NE(store.searchText(), QString()) << "it is not chosen again";
    view.findChild<QLineEdit*>()->setText(QStringLiteral("Datum"));
    EXPECT_EQ(highlighted(), "");
    view.findChild<QLineEdit*>()->clear();
    EXPECT_EQ(highlighted(), third);
    store.selectRecord(0);
    EXPECT_EQ(highlighted(), "");
    clickRow(0);
    EXPECT_EQ(highlighted(), "Zeile 1: Ungültiges Datum: 2024");
}

TEST_F(CheckResults, ArriveInBatchesWhereTheFilterHasMuchToLookAt) {
    std::vector<std::string> records(25'000, "CALL=DL1ABC QSO_DATE=2024 TIME_ON=1200 BAND=20m MODE=CW");
    records.back() = "CALL=OE1ABC QSO_DATE=1999 TIME_ON=1200 BAND=20m MODE=CW";
    openLog(records);
    store.runCheck();
    QSignalSpy filtered(view.findChild<IssueListModel*>(), &IssueListModel::filtered);
    view.findChild<QLineEdit*>()->setText(QStringLiteral("Datum: 1999"));
    EXPECT_EQ(findings(), "");
    ASSERT_TRUE(filtered.wait());
    EXPECT_EQ(findings(), "Zeile 25000: Ungültiges Datum: 1999\n");
    view.findChild<QLineEdit*>()->setText(QStringLiteral("auch in Zeile 25000"));
    ASSERT_TRUE(filtered.wait());
    EXPECT_EQ(findings(), "") << "of a large group of duplicates the first are named";
}

TEST_F(CheckResults, OfWhichSeveralAreChosenGoToTheClipboardInTheirOrder) {
    clickRow(2);
    chosen.clear();
    clickRow(0, Qt::ControlModifier);
    EXPECT_EQ(chosen, "");
    QTest::keyClick(&list(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              "Zeile 1: Ungültiges Datum: 2024\nZeile 3: Unbekanntes Band: 21m");
}

}  // namespace
}  // namespace quillon
