#include "Quillon/Views/Detail/RecordDetailView.h"

#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Detail/FieldRow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

namespace quillon {
namespace {

class RecordDetail : public testing::LogStoreTest {
  protected:
    std::vector<FieldRow*> rows() const {
        std::vector<FieldRow*> shown;
        for (FieldRow* row : view.findChildren<FieldRow*>()) {
            if (testing::isShown(*row, view)) {
                shown.push_back(row);
            }
        }
        return shown;
    }
    LogTextField& field(std::size_t index) const { return rows().at(index)->valueField(); }
    /// Such as "Rufzeichen=DL1ABC Band=20m".
    std::string fields() const {
        std::vector<std::string> texts;
        for (const FieldRow* row : rows()) {
            texts.push_back(testing::shownTexts(*row) + "=" + row->valueField().text().toStdString());
        }
        return joined(texts);
    }

    RecordDetailView view{store};
};

TEST_F(RecordDetail, SaysWhyThereIsNothingToEdit) {
    EXPECT_EQ(testing::shownTexts(view), "Kein QSO ausgewählt\nWähle ein QSO in der Tabelle aus.");
    openLog({"CALL=DL1ABC", "CALL=DL2ABC", "CALL=DL3ABC"});
    select({0, 2});
    EXPECT_EQ(testing::shownTexts(view), "2 QSOs ausgewählt\nMehrfachbearbeitung folgt später.");
    EXPECT_TRUE(rows().empty());
}

TEST_F(RecordDetail, ListsTheFieldsInTheirOrder) {
    openLog({"CALL=DL1ABC BAND=20m MY_RIG=X APP_A=1", "APP_A=2"});
    select({0});
    EXPECT_EQ(fields(), "Rufzeichen=DL1ABC Band=20m MY_RIG=X APP_A=1");
    select({1});
    EXPECT_EQ(fields(), "APP_A=2");
    EXPECT_EQ(field(0).placeholderText(), QStringLiteral("Wert"));
}

TEST_F(RecordDetail, MakesTheRowsOfAVeryLongRecordAsTheyAreScrolledTo) {
    std::string record = "CALL=DL1ABC";
    for (int number = 1; number < 1000; ++number) {
        record += " N" + std::to_string(number) + "=x";
    }
    openLog({record, "CALL=DL2ABC"});
    view.resize(300, 400);
    view.show();
    select({0});
    EXPECT_EQ(rows().size(), 100U);
    QScrollBar* const bar = view.findChild<QScrollArea*>()->verticalScrollBar();
    for (int steps = 0; steps < 30; ++steps) {
        QApplication::processEvents();
        bar->setValue(bar->maximum());
    }
    EXPECT_EQ(rows().size(), 1000U);
    field(999).setText("y");
    QTest::keyClick(&field(999), Qt::Key_Z);
    EXPECT_EQ(cell(0, "N999"), "yz");
    EXPECT_EQ(rows().size(), 1000U) << "an edit takes nothing off the screen";
    select({1});
    EXPECT_EQ(fields(), "Rufzeichen=DL2ABC");
}

TEST_F(RecordDetail, WritesEachKeyAndKeepsTheCursor) {
    openLog({"CALL=DL1ABC BAND=20m"});
    select({0});
    field(0).setFocus();
    field(0).setCursorPosition(3);
    QTest::keyClicks(&field(0), QStringLiteral("XY"));
    EXPECT_EQ(cell(0, "CALL"), "DL1XYABC");
    EXPECT_EQ(field(0).cursorPosition(), 5);
    store.undo();
    EXPECT_EQ(fields(), "Rufzeichen=DL1ABC Band=20m");
    EXPECT_FALSE(store.canUndo());
}

TEST_F(RecordDetail, KeepsAFieldThatIsEmptied) {
    openLog({"CALL=DL1ABC BAND=20m"});
    select({0});
    field(1).selectAll();
    QTest::keyClick(&field(1), Qt::Key_Delete);
    EXPECT_EQ(fields(), "Rufzeichen=DL1ABC Band=");
    EXPECT_EQ(cell(0, "BAND"), "");
}

TEST_F(RecordDetail, LeavesUndoOfItsTextsToTheLog) {
    openLog({"CALL=DL1ABC"});
    select({0});
    QTest::keyClick(&field(0), Qt::Key_End);
    QTest::keyClicks(&field(0), QStringLiteral("X"));
    QTest::keyClick(&field(0), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(cell(0, "CALL"), "DL1ABCX") << "the key belongs to the command of the window";
}

TEST_F(RecordDetail, RemovesTheFieldOfTheButton) {
    openLog({"CALL=DL1ABC BAND=20m MODE=CW"});
    select({0});
    EXPECT_EQ(rows()[1]->removeButton().toolTip(), QStringLiteral("Feld entfernen"));
    rows()[1]->removeButton().click();
    EXPECT_EQ(fields(), "Rufzeichen=DL1ABC Modus=CW");
    rows()[1]->removeButton().click();
    rows()[0]->removeButton().click();
    EXPECT_EQ(testing::shownTexts(view), "Felder");
}

TEST_F(RecordDetail, FollowsChangesMadeElsewhere) {
    openLog({"CALL=DL1ABC BAND=20m"});
    select({0});
    type(0, "BAND", "40m");
    EXPECT_EQ(fields(), "Rufzeichen=DL1ABC Band=40m");
    store.renameColumn("BAND", "FREQ");
    EXPECT_EQ(testing::shownTexts(view), "Felder\nRufzeichen\nFrequenz (MHz)");
    store.addField(id(0), "name");
    EXPECT_EQ(rows().size(), 3U);
    store.newLog();
    EXPECT_EQ(testing::shownTexts(view), "Kein QSO ausgewählt\nWähle ein QSO in der Tabelle aus.");
}

TEST_F(RecordDetail, KeepsALongTextWhole) {
    const std::string remark =
        "\uFEFF" + std::string(40'000, 'x') + "\r\nE\rn\nd\u2028e" + std::string(1, '\0');
    openLog({"COMMENT=" + remark});
    select({0});
    QTest::keyClick(&field(0), Qt::Key_End);
    QTest::keyClicks(&field(0), QStringLiteral("y"));
    EXPECT_EQ(cell(0, "COMMENT"), remark + "y");
}

TEST_F(RecordDetail, OnlyShowsATextTooLongToBeEdited) {
    openLog({"COMMENT=" + std::string(200'001, 'x'), "COMMENT=short"});
    select({0});
    EXPECT_TRUE(field(0).isReadOnly());
    EXPECT_TRUE(field(0).text().endsWith(QStringLiteral("xx …")));
    QTest::keyClicks(&field(0), QStringLiteral("y"));
    EXPECT_EQ(cell(0, "COMMENT").size(), 200'001U);
    select({1});
    EXPECT_FALSE(field(0).isReadOnly());
    EXPECT_EQ(field(0).text(), QStringLiteral("short"));
}

}  // namespace
}  // namespace quillon
