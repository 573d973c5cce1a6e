#include "Quillon/Views/Check/CheckResultsView.h"

#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"

#include <gtest/gtest.h>

#include <QListView>
#include <QSignalSpy>
#include <QTest>

namespace quillon {
namespace {

class CheckResults : public testing::LogStoreTest {
  protected:
    CheckResults() {
        view.resize(600, 200);
        view.show();
    }
    QListView& list() const { return *view.findChild<QListView*>(); }
    std::string findings() const {
        std::string texts;
        for (int row = 0; row < list().model()->rowCount(); ++row) {
            texts += list().model()->index(row, 0).data().toString().toStdString() + "\n";
        }
        return texts;
    }
    void clickRow(int row) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualRect(list().model()->index(row, 0)).center());
    }
    std::string chosen() {
        std::string calls;
        for (const QList<QVariant>& arguments : choices) {
            const auto index = store.indexOf(arguments[0].value<tallyrig::UUID>());
            calls += cell(*index, "CALL") + " ";
        }
        choices.clear();
        return calls;
    }

    /// Two errors in the first record, one finding in the third.
    const std::vector<std::string> faultyLog = {
        "CALL=DL1ABC QSO_DATE=2024 TIME_ON=9999 BAND=20m MODE=CW",
        "CALL=DL2ABC QSO_DATE=20240101 TIME_ON=1200 BAND=20m MODE=CW",
        "CALL=DL3ABC QSO_DATE=20240101 TIME_ON=1200 BAND=21m MODE=CW"};
    CheckResultsView view{store};
    QSignalSpy choices{&view, &CheckResultsView::recordChosen};
};

TEST_F(CheckResults, SayWhenNothingWasFound) {
    openLog({faultyLog[1]});
    store.runCheck();
    EXPECT_EQ(
        testing::shownTexts(view),
        "Keine Probleme\nKeine Probleme gefunden\nPflichtfelder, Formate und Dubletten sind in Ordnung.");
}

TEST_F(CheckResults, ListTheFindingsByRecordFromOne) {
    openLog(faultyLog);
    store.runCheck();
    EXPECT_EQ(testing::shownTexts(view), "2 Fehler\n1 Warnungen");
    EXPECT_EQ(findings(),
              "Zeile 1: Ungültiges Datum: 2024\n"
              "Zeile 1: Ungültige Zeit (Zeit (Anfang)): 9999\n"
              "Zeile 3: Unbekanntes Band: 21m\n");
    openLog({faultyLog[2]});
    store.runCheck();
    EXPECT_EQ(testing::shownTexts(view), "1 Warnungen");
    EXPECT_EQ(findings(), "Zeile 1: Unbekanntes Band: 21m\n");
}

TEST_F(CheckResults, SelectTheRecordOfAFinding) {
    openLog(faultyLog);
    store.runCheck();
    clickRow(2);
    EXPECT_EQ(selected(), "DL3ABC");
    QTest::keyClick(&list(), Qt::Key_Up);
    EXPECT_EQ(selected(), "DL1ABC");
    EXPECT_EQ(store.selectionAnchor(), id(0));
    // A second look at the finding that is chosen already.
    store.selectRecord(1);
    chosen();
    clickRow(1);
    EXPECT_EQ(selected(), "DL1ABC");
    EXPECT_EQ(chosen(), "DL1ABC ");
}

TEST_F(CheckResults, ChooseNothingByThemselves) {
    openLog(faultyLog);
    store.runCheck();
    list().setFocus();
    EXPECT_EQ(selected(), "");
    store.runCheck();
    EXPECT_EQ(selected(), "");
}

TEST_F(CheckResults, AreRenewedAndClosedFromTheHead) {
    openLog(faultyLog);
    store.runCheck();
    type(2, "BAND", "20m");
    EXPECT_EQ(testing::shownTexts(view), "2 Fehler\n1 Warnungen");
    testing::shownButton(view, QStringLiteral("Erneut prüfen"))->click();
    EXPECT_EQ(testing::shownTexts(view), "2 Fehler");
    testing::shownButton(view, QStringLiteral("Ergebnisleiste schließen"))->click();
    EXPECT_FALSE(store.showCheckResults());
}

}  // namespace
}  // namespace quillon
