// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Detail/RecordDetailView.h"

#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Detail/FieldRow.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
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
    EXPECT_TRUE(field(1).whatsThis().startsWith(QStringLiteral("ADIF-Feld BAND. ")));
    select({1});
    EXPECT_EQ(fields(), "APP_A=2");
    EXPECT_EQ(field(0).placeholderText(), QStringLiteral("Wert"));
    EXPECT_FALSE(field(0).actions().first()->isVisible());
    type(1, "APP_A", "a\u202Eb");
    EXPECT_TRUE(field(0).actions().first()->isVisible());
    EXPECT_TRUE(field(0).actions().first()->toolTip().endsWith(QStringLiteral("\na⟨RLO⟩b")));
}

TEST_F(RecordDetail, ShowsAVeryLongRecordAPageAtATime) {
    std::string record = "CALL=DL1ABC";
    for (int number = 1; number < 450; ++number) {
        record += " N" + std::to_string(number) + "=x";
    }
    openLog({record, "CALL=DL2ABC"});
    select({0});
    EXPECT_EQ(rows().size(), 200U);
    QAbstractButton* const next = testing::shownButton(view, QStringLiteral("Weitere Felder"));
    next->click();
    next->click();
    EXPECT_FALSE(next->isEnabled());
    EXPECT_EQ(rows().size(), 50U);
    QTest::keyClick(&field(49), Qt::Key_Y);
    EXPECT_EQ(cell(0, "N449"), "yx");
    view.showField("N1", 1);
    EXPECT_EQ(testing::shownTexts(*rows()[1]), "N1");
    view.focusLastField();
    EXPECT_EQ(fields().substr(0, 7), "N400=x ");
    select({1});
    EXPECT_EQ(fields(), "Rufzeichen=DL2ABC");
    EXPECT_FALSE(next->isVisibleTo(&view));
}

TEST_F(RecordDetail, MarksAFieldUntilAnotherQSOIsShown) {
    const auto marked = [this] {
        std::string names;
        for (const FieldRow* row : rows()) {
            names += row->isMarked() ? testing::shownTexts(*row) : "";
        }
        return names;
    };
    openLog({"CALL=DL1ABC BAND=20m MODE=CW", "CALL=DL2ABC BAND=20m"});
    select({0});
    view.showField("BAND", 1);
    EXPECT_EQ(marked(), "Band");
    type(0, "BAND", "40m");
    EXPECT_EQ(marked(), "Band");
    store.removeField(id(0), 0);
    EXPECT_EQ(marked(), "") << "another field has come to stand there";
    view.showField("BAND", 1);
    select({1});
    select({0});
    EXPECT_EQ(marked(), "");
}

TEST_F(RecordDetail, OffersAFieldThatIsMissing) {
    openLog({"CALL=DL1ABC", "CALL=DL2ABC"});
    select({0});
    view.showField("TIME_ON", std::nullopt);
    EXPECT_EQ(fields(), "Rufzeichen=DL1ABC Zeit (Anfang)=");
    EXPECT_TRUE(rows()[1]->isMarked());
    QTest::keyClick(&field(1), Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_FALSE(store.canUndo());
    QTest::keyClicks(&field(1), QStringLiteral("1200"));
    EXPECT_EQ(fields(), "Rufzeichen=DL1ABC Zeit (Anfang)=1200");
    EXPECT_EQ(cell(0, "TIME_ON") + " " + columns(), "1200 CALL TIME_ON");
    store.undo();
    EXPECT_EQ(fields(), "Rufzeichen=DL1ABC") << "one step back";
    view.showField("TIME_ON", std::nullopt);
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

TEST_F(RecordDetail, RemovesTheFieldOfTheButtonOrOfTheKeyAndNoOther) {
    openLog({"CALL=DL1ABC BAND=20m MODE=CW NAME=Anna"});
    select({0});
    EXPECT_EQ(rows()[1]->removeButton().toolTip(), QStringLiteral("Feld entfernen"));
    rows()[1]->removeButton().setFocus();
    QTest::keyClick(&rows()[1]->removeButton(), Qt::Key_Space);
    EXPECT_EQ(fields(), "Rufzeichen=DL1ABC Modus=CW Name=Anna");
    QTest::keyClick(view.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(fields(), "Rufzeichen=DL1ABC Modus= CW Name=Anna") << "the key is for a text by now";
    QTest::keyClick(&field(1), Qt::Key_Delete, Qt::ControlModifier);
    QTest::keyClick(&field(1), Qt::Key_Delete, Qt::ControlModifier);
    QTest::keyClick(&field(0), Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(testing::shownTexts(view), "Felder");
}

TEST_F(RecordDetail, LeavesUndoToTheLogInTheContextMenu) {
    openLog({"CALL=DL1ABC BAND=20m"});
    select({0});
    QContextMenuEvent wanted(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(&field(1), &wanted);
    const QList<QAction*> actions = field(1).findChild<QMenu*>()->actions();
    EXPECT_TRUE(actions.first()->text().startsWith(QStringLiteral("Cu&t"))) << "undo and redo stood above it";
    actions.last()->trigger();
    EXPECT_EQ(fields(), "Rufzeichen=DL1ABC");
}

TEST_F(RecordDetail, FollowsChangesMadeElsewhere) {
    openLog({"CALL=DL1ABC BAND=20m"});
    select({0});
    type(0, "BAND", "40m");
    EXPECT_EQ(fields(), "Rufzeichen=DL1ABC Band=40m");
    store.renameColumn("BAND", "FREQ");
    EXPECT_EQ(testing::shownTexts(view), "Felder\nRufzeichen\nFrequenz (MHz)");
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

TEST_F(RecordDetail, OnlyShowsATextThatCannotBeLaidOutInNoTime) {
    std::string accents = "a";
    for (int count = 0; count < 1000; ++count) {
        accents += "\u0301";
    }
    openLog({"COMMENT=" + std::string(200'001, 'x') + " NOTES=" + accents + " NAME=Ren\u00e9"});
    select({0});
    EXPECT_TRUE(field(0).isReadOnly());
    EXPECT_TRUE(field(0).text().endsWith(QStringLiteral("xx …")));
    EXPECT_TRUE(field(1).isReadOnly());
    EXPECT_FALSE(field(2).isReadOnly());
    QTest::keyClicks(&field(1), QStringLiteral("y"));
    EXPECT_EQ(cell(0, "NOTES"), accents);
}

}  // namespace
}  // namespace quillon
