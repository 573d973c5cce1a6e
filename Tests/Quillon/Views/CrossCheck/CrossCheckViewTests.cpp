// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/CrossCheck/CrossCheckView.h"

#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Controls/FindingList.h"
#include "Quillon/Views/Controls/TabOrder.h"
#include "Quillon/Views/CrossCheck/CrossCheckRunner.h"
#include "Quillon/Views/CrossCheck/RankingTable.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <thread>

namespace quillon {
namespace {

/// Three stations: A and B have logs that hold each other, A copied B's second number wrong; C has a log of
/// its own.
class CrossChecking : public testing::LogStoreTest {
  protected:
    void SetUp() override {
        contest.setContest(Contest::generic);
        openLog({qso("DL1A", "DL2B", "1200", "001", "001"), qso("DL1A", "DL2B", "1300", "002", "009"),
                 qso("DL1A", "DL9X", "1400", "003", "001")});
        b = write("b.adi",
                  {qso("DL2B", "DL1A", "1200", "001", "001"), qso("DL2B", "DL1A", "1300", "002", "002")});
        c = write("c.adi", {qso("DL3C", "DL9X", "1500", "001", "002")});
        view = std::make_unique<CrossCheckView>(store, cross, runner, 2);
        view->resize(1000, 700);
        view->show();
    }
    /// On another band at 13:00.
    static std::string qso(const std::string& own, const std::string& call, const std::string& time,
                           const std::string& sent, const std::string& received) {
        return "STATION_CALLSIGN=" + own + " CALL=" + call + " BAND=" + (time == "1300" ? "70CM" : "2M") +
               " MODE=CW QSO_DATE=20240302 TIME_ON=" + time + " STX=" + sent + " SRX=" + received;
    }
    QString write(const char* name, const std::vector<std::string>& records) {
        return folder.write(QString::fromUtf8(name), testing::adi(records));
    }
    /// Until nothing runs and nothing is due.
    void settle() {
        QSignalSpy changed(&runner, &CrossCheckRunner::changed);
        while (!cross.evaluation() || runner.isRunning() ||
               !cross.evaluation()->input.isSameAs(
                   cross.input(store.document(), store.fileURL(),
                               {contest.contest(), contest.genericContest(), contest.station()}))) {
            ASSERT_TRUE(changed.wait());
        }
    }
    void add(const QStringList& paths) {
        runner.addLogs(paths);
        QSignalSpy added(&cross, &CrossCheckStore::entriesChanged);
        ASSERT_TRUE(added.wait());
        settle();
    }
    std::string texts() const { return testing::shownTexts(*view); }
    QAbstractItemView& table() const { return *view->findChild<RankingTable*>(); }
    std::string ranked(int row) const {
        std::string cells;
        for (int column = 0; column < table().model()->columnCount(); ++column) {
            cells += (column == 0 ? "" : "|") +
                     table().model()->index(row, column).data().toString().toStdString();
        }
        return cells;
    }
    std::string finding(int row) const {
        return view->findChild<FindingList*>()->model()->index(row, 0).data().toString().toStdString();
    }

    ContestStore contest;
    CrossCheckStore cross{panels, fileManager};
    CrossCheckRunner runner{store, contest, cross};
    std::unique_ptr<CrossCheckView> view;
    QString b;
    QString c;
};

TEST_F(CrossChecking, WantsTwoLogs) {
    settle();
    EXPECT_EQ(texts().substr(0, texts().find('\n')), "Mindestens zwei Logs nötig");
    EXPECT_NE(testing::shownButton(*view, QStringLiteral("Logs hinzufügen …")), nullptr);
}

TEST_F(CrossChecking, RanksTheLogsAndListsTheFindingsOfTheFirst) {
    add({b, c});
    EXPECT_EQ(texts().substr(0, 62), "3\nLogs\n6\nQSOs gesamt\n1\nFehler (NIL/Busted)\n75,0 %\nQuote gesamt");
    EXPECT_EQ(ranked(0), "1.|DL1A|3|50,0 %|3|2|1|0|0|1|0|0|1");
    EXPECT_EQ(ranked(1), "2.|DL2B|2|100,0 %|2|2|2|0|0|0|0|0|0");
    EXPECT_NE(texts().find("Befunde log.adi"), std::string::npos);
    EXPECT_EQ(finding(0),
              "#2\t13:00\tDL2B\t70CM\tBusted Exchange\tNummer: empfangen 009, gesendet 002\tb.adi #2");
    EXPECT_EQ(finding(1), "#3\t14:00\tDL9X\t2M\tnicht prüfbar\tin 1 weiteren Log(s)");

    cross.setFindingFilter(FindingFilter::all());
    EXPECT_NE(texts().find("3 von 3"), std::string::npos);
    EXPECT_NE(texts().find("1 weitere"), std::string::npos) << texts();
    EXPECT_EQ(view->findChild<QComboBox*>()->itemText(2), QStringLiteral("bestätigt (1)"));
}

TEST_F(CrossChecking, FollowsOptionsAndKeepsTheChosenLog) {
    add({b, c});
    const QPoint first = table().visualRect(table().model()->index(0, 1)).center();
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, first);
    EXPECT_EQ(cross.selectedLogID(), CrossCheckStore::currentLogID()) << "chosen, also where it was shown";
    table().setCurrentIndex(table().model()->index(1, 1));
    EXPECT_EQ(cross.selectedLogID(), cross.entries()[0].id);
    cross.setScoringEnabled(false);
    settle();
    EXPECT_EQ(ranked(1), "DL2B|2|100,0 %|2|0|0|0|0|0|0") << "in the order of the logs";
    EXPECT_NE(texts().find("Übersicht je Log"), std::string::npos);
    EXPECT_EQ(table().currentIndex().row(), 1);
    EXPECT_NE(texts().find("Keine Auffälligkeiten – alle prüfbaren QSOs bestätigt."), std::string::npos);

    cross.remove(cross.entries()[0].id);
    settle();
    EXPECT_EQ(table().currentIndex().row(), 0);
}

TEST_F(CrossChecking, LeadsToAQSOOfTheOpenLogAlone) {
    add({b});
    const QSignalSpy wanted(view.get(), &CrossCheckView::qsoWanted);
    auto& list = *view->findChild<FindingList*>();
    const auto press = [&list] {
        list.setCurrentIndex(list.model()->index(0, 0));
        QTest::keyClick(&list, Qt::Key_Return);
    };
    press();
    EXPECT_EQ(wanted.size(), 1);
    EXPECT_EQ(store.selection(), LogStore::Selection{id(1)});
    select({0});
    store.deleteSelected();
    press();
    EXPECT_EQ(store.selection(), LogStore::Selection{id(0)})
        << "the QSO that the row is about, now the first";
    EXPECT_EQ(wanted.size(), 2);
    settle();
    cross.setSelectedLogID(cross.entries()[0].id);
    cross.setFindingFilter(FindingFilter::all());
    press();
    EXPECT_EQ(wanted.size(), 2) << "the log of another is not open";
}

TEST_F(CrossChecking, TakesTheKeyboardAndLetsTabLeave) {
    QWidget window;
    auto* before = new QLineEdit(&window);
    view->setParent(&window);
    auto* behind = new QLineEdit(&window);
    putIntoTabOrder(*before, *view);
    window.resize(1000, 700);
    window.show();
    view->show();
    QApplication::setActiveWindow(&window);
    view->setFocus();
    EXPECT_EQ(QApplication::focusWidget(), testing::shownButton(*view, QStringLiteral("Logs hinzufügen …")));
    add({b});
    EXPECT_EQ(QApplication::focusWidget(), &table()) << "where the result is now";
    for (int stop = 0; stop < 3; ++stop) {
        EXPECT_TRUE(view->isAncestorOf(QApplication::focusWidget()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(QApplication::focusWidget(), behind);
    QTest::keyClick(behind, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), before);
    QTest::keyClick(before, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &table());
    view->setParent(nullptr);
}

TEST_F(CrossChecking, BringsTheChosenLogIntoViewWhereverItsRowIs) {
    QStringList logs;
    for (int log = 0; log < 60; ++log) {
        const std::string call = "DL" + std::to_string(log) + "Z";
        logs.append(write((call + ".adi").c_str(), {qso(call, "DL8X", "1500", "001", "001"),
                                                    qso(call, "DL9X", "1500", "002", "001")}));
    }
    add({b, c});
    table().setCurrentIndex(table().model()->index(2, 1));
    add(logs);
    EXPECT_GT(table().currentIndex().row(), 2);
    EXPECT_TRUE(table().viewport()->rect().contains(table().visualRect(table().currentIndex())));
}

TEST_F(CrossChecking, TellsOfReportsThatWereWrittenWhenTheUserGaveUp) {
    add({b});
    panels.answers = QStringList{folder.path(".")};
    runner.exportReportsWithPanel();
    EXPECT_TRUE(runner.canExport()) << "the button for it keeps the keyboard";
    while (runner.progress() < 1) {
        std::this_thread::yield();
    }
    runner.cancel();
    QSignalSpy changed(&runner, &CrossCheckRunner::changed);
    while (runner.isRunning()) {
        ASSERT_TRUE(changed.wait());
    }
    const auto folders = QDir(folder.path(".")).entryList({QStringLiteral("Cross-Check *")}, QDir::Dirs);
    EXPECT_EQ(folders.size(), fileManager.shown.size()) << "either told of or removed";
    EXPECT_EQ(folders.isEmpty(), !cross.exportMessage().has_value());
}

TEST_F(CrossChecking, KeepsWhatWasThereWhenTheUserGivesUp) {
    add({b});
    const auto before = cross.evaluation();
    {
        QObject once;
        QObject::connect(&runner, &CrossCheckRunner::changed, &once, [this] { runner.cancel(); });
        cross.setCheckExchange(false);
        QSignalSpy changed(&runner, &CrossCheckRunner::changed);
        while (!runner.isGivenUp() || runner.isBusy()) {
            ASSERT_TRUE(changed.wait());
        }
    }
    EXPECT_EQ(cross.evaluation(), before);
    EXPECT_FALSE(runner.canExport()) << "it is not what the options say";
    EXPECT_EQ(texts().substr(0, texts().find('\n')), "Abgebrochen: Das Ergebnis ist noch das vorige.");
    testing::shownButton(*view, QStringLiteral("Neu auswerten"))->click();
    settle();
    EXPECT_NE(cross.evaluation(), before);
    EXPECT_TRUE(runner.canExport());
}

}  // namespace
}  // namespace quillon
