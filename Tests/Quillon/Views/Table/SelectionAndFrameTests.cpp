// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/TableViewFixture.h"

#include <QClipboard>
#include <QSignalSpy>

namespace quillon {
namespace {

using testing::TableViewTest;

/// What the keyboard changes and what the user sees as chosen must be the same.
class SelectionAndFrame : public TableViewTest {};

TEST_F(SelectionAndFrame, AreOnAHitAfterEnteringFromTheSearch) {
    showLog(manyRecords(5));
    click(3, 0);
    header.setFocus();
    store.setSearchText(QStringLiteral("DL2A"));
    view.enterRows();
    EXPECT_EQ(selected(), "DL2A") << "and no longer the hidden one, which the next key would delete";
    EXPECT_EQ(framed(), "0/0");
}

TEST_F(SelectionAndFrame, NeverShowTwoDifferentRecords) {
    showLog(manyRecords(5));
    click(3, 1);
    store.setSearchText(QStringLiteral("DL2A"));
    EXPECT_EQ(framed(), "(none)") << "the selected record is hidden";
    view.editCell();
    typeText("x");
    EXPECT_EQ(editorText(), "(closed)");
    EXPECT_EQ(cell(1, "BAND"), "20m");
    key(Qt::Key_Down);
    EXPECT_EQ(selected(), "DL2A");
    EXPECT_EQ(framed(), "0/1");
    store.selectRecord(4);
    EXPECT_EQ(framed(), "(none)");
    store.setSearchText({});
    EXPECT_EQ(framed(), "4/1");
    key(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(framed(), "(none)") << "on its way to the next row to be selected as well";
    key(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(framed(), "3/1");
}

TEST_F(SelectionAndFrame, AreBothOnTheCellThatIsShownThoughTheSearchHidIt) {
    showLog(manyRecords(100));
    view.showCell(id(60), "BAND");
    EXPECT_EQ(framed(), "60/1");
    EXPECT_NEAR(body.cellArea({60, 0}).center().y(), body.height() / 2.0, 1) << "in the middle";
    store.setSearchText(QStringLiteral("DL5A"));
    view.showCell(id(10), "NOWHERE");
    EXPECT_EQ(store.searchText(), QString());
    EXPECT_EQ(selected(), "DL11A");
    EXPECT_EQ(framed(), "10/1");
    EXPECT_TRUE(body.rect().contains(at(10, 0)));

    store.setSearchText(QStringLiteral("DL5A"));
    questions.row = 7;
    view.goToRow();
    EXPECT_EQ(framed(), "6/1");
    EXPECT_EQ(questions.asked, "5 of 100");
}

TEST_F(SelectionAndFrame, AreInViewAmongTheHitsOfASearchOrElseTheFirstIs) {
    showLog(manyRecords(200));
    const auto firstInView = [this] { return view.scroll().scrollY() / body.tableGeometry().rowHeight(); };
    view.scroll().setScrollY(3'000);
    store.setSearchText(QStringLiteral("DL1"));
    EXPECT_EQ(firstInView(), 0);
    store.setSearchText({});
    view.showCell(id(199));
    store.setSearchText(QStringLiteral("DL2"));
    EXPECT_TRUE(body.rect().contains(at(11, 0))) << "the row of DL200A";
    view.scroll().setScrollY(0);
    store.setSearchText({});
    EXPECT_TRUE(body.rect().contains(at(199, 0)));
}

TEST_F(SelectionAndFrame, GoOnWithTheNextHitAfterAnEditThatTookTheLastOneOut) {
    showLog({"CALL=DL1A NAME=Ann", "CALL=DL2A NAME=Ann", "CALL=DL3A NAME=Ann"});
    store.setSearchText(QStringLiteral("ann"));
    doubleClick(1, 1);
    typeText("Bob");
    key(Qt::Key_Return);
    EXPECT_EQ(framed(), "1/1");
    EXPECT_EQ(selected(), "DL3A");
    typeText("Eve");
    key(Qt::Key_Tab);
    typeText("what belongs into the record that is gone");
    EXPECT_EQ(shown("NAME"), "Ann");
    EXPECT_EQ(editorText(), "(closed)");
    EXPECT_EQ(cell(2, "NAME"), "Eve");
}

TEST_F(SelectionAndFrame, AreOnTheNewRecordWithItsCallOpen) {
    for (const char* search : {"", "DL2A"}) {
        showLog(manyRecords(100));
        store.moveColumnBy("CALL", 1);
        store.toggleSort("BAND");
        store.setSearchText(QString::fromLatin1(search));
        view.addRecord();
        EXPECT_EQ(store.displayedCount(), 101U);
        EXPECT_EQ(framed(), "100/1");
        typeText("DK5X");
        view.commitEditing();
        EXPECT_EQ(selected(), "DK5X");
        EXPECT_TRUE(body.rect().contains(at(100, 1)));
    }
    store.newLog();
    view.addRecord();
    EXPECT_EQ(editorText(), "");
}

TEST_F(SelectionAndFrame, ComeToWhatAStepInTheHistoryChanged) {
    showLog(manyRecords(100));
    type(70, "BAND", "40m");
    view.undo();
    EXPECT_EQ(framed(), "70/1");
    view.scroll().setScrollY(0);
    click(0, 0);
    view.redo();
    EXPECT_EQ(framed(), "0/0") << "where the selection is";
    EXPECT_TRUE(body.rect().contains(at(70, 1)));
}

TEST_F(SelectionAndFrame, StayWhereNothingIsToBeSeenAndTheUserIsTold) {
    showLog(manyRecords(2));
    type(0, "BAND", "40m");
    store.setSearchText(QStringLiteral("nichts"));
    QSignalSpy noticed(&view, &QSOTableView::noticed);
    view.undo();
    EXPECT_EQ(noticed.count(), 1);
    EXPECT_EQ(store.displayedCount(), 0U);
    QApplication::clipboard()->setText(QStringLiteral("40m"));
    view.pasteRecords();
    EXPECT_EQ(noticed.count(), 2);
}

TEST_F(SelectionAndFrame, AreOnWhatWasPasted) {
    showLog(manyRecords(50));
    store.setSearchText(QStringLiteral("DL2A"));
    QApplication::clipboard()->setText(QStringLiteral("<CALL:4>DK5X<EOR><CALL:4>DK6X<EOR>"));
    view.pasteRecords();
    EXPECT_EQ(selected(), "DK5X DK6X");
    EXPECT_TRUE(body.rect().contains(at(51, 0)));
}

TEST_F(SelectionAndFrame, AskBeforeHiddenRecordsAreDeleted) {
    showLog(manyRecords(5));
    select({0, 1, 2});
    store.setSearchText(QStringLiteral("DL2A"));
    view.deleteSelected();
    EXPECT_EQ(questions.asked, "2 of 3");
    EXPECT_EQ(store.document().records().size(), 5U);
    questions.consents = true;
    view.deleteSelected();
    EXPECT_EQ(store.document().records().size(), 2U);
    store.setSearchText({});
    select({0});
    questions.asked.clear();
    view.deleteSelected();
    EXPECT_EQ(questions.asked, "");
    EXPECT_EQ(shown(), "DL5A");
}

TEST_F(SelectionAndFrame, GoOnBehindWhatWasDeleted) {
    showLog(manyRecords(100));
    click(1, 1);
    body.setCurrentCell({80, 1});
    key(Qt::Key_Down, Qt::ShiftModifier);
    view.deleteSelected();
    EXPECT_EQ(framed(), "1/1");
    EXPECT_EQ(cell(1, "CALL"), "DL83A");
    EXPECT_TRUE(body.rect().contains(at(1, 1)));
    store.selectAllDisplayed();
    click(0, 1, Qt::ControlModifier);
    body.setCurrentCell({18, 1});
    view.deleteSelected();
    EXPECT_EQ(framed(), "0/1");
}

}  // namespace
}  // namespace quillon
