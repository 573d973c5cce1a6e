// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Contest/ContestView.h"

#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Controls/FindingList.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace quillon {
namespace {

/// The view of a log that is scored by a contest of one's own: a point for each QSO, duplicates by call and
/// band, entities as multipliers.
class Scoring : public testing::LogStoreTest {
  protected:
    void show(std::size_t mostIssues = 100) {
        contest.setContest(Contest::generic);
        view = std::make_unique<ContestView>(store, contest, mostIssues);
        view->resize(900, 700);
        view->show();
    }
    void change(const std::function<void(GenericContest&)>& edit) {
        GenericContest form = contest.genericContest();
        edit(form);
        contest.setGenericContest(form);
    }
    std::string texts() const { return testing::shownTexts(*view); }
    QAbstractItemModel& rows() const { return *view->findChild<FindingList*>()->model(); }
    std::string row(int index) const { return rows().index(index, 0).data().toString().toStdString(); }

    ContestStore contest;
    std::unique_ptr<ContestView> view;
};

TEST_F(Scoring, ShowsTotalFiguresAndMultipliers) {
    openLog({"CALL=DL1ABC BAND=2M", "CALL=HB9ABC BAND=2M", "CALL=DL1ABC BAND=2M", "BAND=2M"});
    change([](GenericContest& form) { form.fixedPoints = 700; });
    show();
    EXPECT_EQ(
        texts(),
        "Mein Contest\n2.800\nPunkte\n1.400 QSO-Punkte × 2 Multiplikatoren\n"
        "4\nQSOs gesamt\n2\ngewertet\n1\nDubletten\n1\nungültig\n1.400\nQSO-Punkte\n2\nMultiplikatoren\n"
        "Multiplikatoren\nDXCC-Gebiete\n2\nAuffälligkeiten (2)");
    EXPECT_EQ(row(0) + "\n" + row(1), "#3\tDL1ABC\t2M\tDublette\n#4\t—\t2M\tCALL fehlt");
}

TEST_F(Scoring, LeavesOutWhatThereIsNothingToSayOf) {
    show();
    EXPECT_EQ(texts(), "Kein Log geladen\nÖffne ein Contest-Log, um es zu prüfen und zu punkten.");
    openLog({"CALL=DL1ABC"});
    change([](GenericContest& form) {
        form.multiplierEnabled = false;
        form.fixedPoints = 0;
    });
    QApplication::processEvents();
    EXPECT_EQ(texts(),
              "Mein Contest\n0\nPunkte\n0 QSO-Punkte (keine Multiplikatoren)\n"
              "1\nQSOs gesamt\n1\ngewertet\n0\nDubletten\n0\nungültig\n0\nQSO-Punkte\n0\nMultiplikatoren\n"
              "Auffälligkeiten (0)\nKeine – alle QSOs werden gewertet.");
}

TEST_F(Scoring, ListsTheFirstIssuesAndTellsHowManyFollow) {
    openLog(std::vector<std::string>(1205, "CALL=DL1ABC BAND=2M"));
    show(3);
    EXPECT_EQ(rows().rowCount(), 3);
    EXPECT_NE(texts().find("Auffälligkeiten (1.204)\n1.201 weitere"), std::string::npos) << texts();
}

TEST_F(Scoring, FollowsLogAndRulesOnceForEachTurn) {
    openLog({"CALL=DL1ABC BAND=2M"});
    show();
    QSignalSpy scored(view.get(), &ContestView::scored);
    contest.setContest(Contest::cqWW);
    contest.setOwnStation({.myDXCC = "230"});
    type(0, "CALL", "DL2ABC");
    EXPECT_EQ(scored.size(), 0);
    QApplication::processEvents();
    EXPECT_EQ(scored.size(), 1);
    EXPECT_EQ(row(0), "#1\tDL2ABC\t2M\tBand 2M nicht erlaubt, CQZ fehlt");

    view->hide();
    contest.setContest(Contest::generic);
    QApplication::processEvents();
    EXPECT_EQ(scored.size(), 1) << "nobody looks";
    view->show();
    EXPECT_EQ(rows().rowCount(), 0);
}

TEST_F(Scoring, WaitsForAPauseInTypingWhereTheLogIsLong) {
    openLog(std::vector<std::string>(ContestView::longLog + 1, "CALL=DL1ABC BAND=2M"));
    show();
    QSignalSpy scored(view.get(), &ContestView::scored);
    for (const char* typed : {"F", "Fu", "Fuchs"}) {
        change([typed](GenericContest& form) { form.contestName = typed; });
        QApplication::processEvents();
    }
    EXPECT_EQ(scored.size(), 0);
    ASSERT_TRUE(scored.wait());
    EXPECT_EQ(scored.size(), 1);
    EXPECT_EQ(texts().substr(0, 5), "Fuchs");
}

TEST_F(Scoring, LeadsToAQSOThatIsStillThere) {
    openLog({"CALL=DL1ABC BAND=2M", "CALL=DL1ABC BAND=2M", "CALL=DL1ABC BAND=2M"});
    show();
    store.setMode(AppMode::contest);
    const QSignalSpy wanted(view.get(), &ContestView::qsoWanted);
    auto& list = *view->findChild<FindingList*>();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(rows().index(0, 0)).center());
    EXPECT_EQ(wanted.size(), 1);
    EXPECT_EQ(store.selection(), LogStore::Selection{id(1)});
    EXPECT_EQ(store.mode(), AppMode::check);

    openLog(std::vector<std::string>(100, "CALL=DL1ABC BAND=2M"));
    auto& bar = *view->findChild<QScrollArea*>()->verticalScrollBar();
    for (int turn = 0; turn < 10 && bar.maximum() == 0; ++turn) {
        QApplication::processEvents();
    }
    const int place = bar.value();
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, list.visualRect(rows().index(60, 0)).center());
    EXPECT_EQ(bar.value(), place) << "the row stays under the pointer until it is released";
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_GT(bar.value(), place);

    store.newLog();
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(wanted.size(), 1) << "the rows are still those of the log before";
}

}  // namespace
}  // namespace quillon
