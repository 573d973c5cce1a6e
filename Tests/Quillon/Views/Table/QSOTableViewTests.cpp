// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/TableViewFixture.h"

#include "Quillon/Views/Controls/EmptyState.h"
#include "Quillon/Views/Grid/CellView.h"
#include "Quillon/Views/Table/RowRuler.h"
#include "Quillon/Views/Table/StatusGutterCell.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QToolTip>

namespace quillon {
namespace {

using testing::TableViewTest;

class CellEditor : public TableViewTest {};
class TableMouse : public TableViewTest {};
class TableKeyboard : public TableViewTest {};
class TableScrolling : public TableViewTest {};
class TableRows : public TableViewTest {};
class TableForAssistiveTechnology : public TableViewTest {};

TEST_F(CellEditor, ShowsTheRawValueOverTheReadableOne) {
    showLog({"CALL=DL1A QSO_DATE=20240115"});
    EXPECT_EQ(CellView({body.rowView(0).record, "QSO_DATE"}).text(), "15.01.2024");
    doubleClick(0, 1);
    EXPECT_EQ(editorText(), "20240115");
    EXPECT_EQ(body.editor().geometry(), QRect(100, 0, 99, 21));
}

TEST_F(CellEditor, WritesHoweverItIsLeft) {
    struct Case {
        const char* what;
        std::function<void()> leave;
        const char* currentAfter;
    };
    const Case cases[] = {
        {"return", [this] { key(Qt::Key_Return); }, "0/0"},
        {"Escape", [this] { key(Qt::Key_Escape); }, "0/0"},
        {"a click into another row", [this] { click(1, 1); }, "1/1"},
        {"a click below the rows",
         [this] {
             QTest::mouseClick(&body, Qt::LeftButton, {}, {50, 200});
         },
         "0/0"},
        {"a click on another part of the window",
         [this] {
             QTest::mouseClick(&header, Qt::LeftButton, {}, {780, 5});
         },
         "0/0"},
        {"losing the focus", [this] { header.setFocus(); }, "0/0"},
    };
    for (const Case& c : cases) {
        showLog({"CALL=DL1A BAND=20m", "CALL=DL2A BAND=40m"});
        doubleClick(0, 0);
        typeText("dk5x");
        c.leave();
        EXPECT_EQ(cell(0, "CALL"), "dk5x") << c.what;
        EXPECT_EQ(editorText(), "(closed)") << c.what;
        EXPECT_EQ(current(), c.currentAfter) << c.what;
    }
    EXPECT_TRUE(header.hasFocus()) << "the focus stays where it went";
}

TEST_F(CellEditor, RemovesTheFieldWhenEmptiedAndLeavesAnUntouchedOneAlone) {
    showLog({"CALL=DL1A NAME=Anna"});
    doubleClick(0, 1);
    key(Qt::Key_Backspace);
    key(Qt::Key_Return);
    EXPECT_EQ(cell(0, "NAME"), "(absent)");
    store.undo();
    told.sent();

    doubleClick(0, 1);
    key(Qt::Key_Return);
    EXPECT_EQ(told.sent(), "");
}

TEST_F(CellEditor, KeepsLineBreaksAndTextOfAnyLength) {
    const std::string essay =
        "\uFEFF" + std::string(40'000, 'x') + "\r\nE\rn\nd\u2028e" + std::string(1, '\0');
    showLog({"CALL=DL1A NOTES=" + essay});
    doubleClick(0, 1);
    key(Qt::Key_End);
    typeText("!");
    key(Qt::Key_Return);
    EXPECT_EQ(cell(0, "NOTES"), essay + "!");
}

TEST_F(CellEditor, StaysClosedOverATextThatWouldHoldTheWindowUp) {
    showLog({"CALL=DL1A NOTES=" + std::string(200'001, 'x')});
    doubleClick(0, 1);
    EXPECT_EQ(editorText(), "(closed)");
    EXPECT_EQ(error(), "Der Wert ist mit 200.001 Bytes zu lang, um ihn hier zu bearbeiten.");
    doubleClick(0, 0);
    EXPECT_EQ(editorText(), "DL1A");
}

TEST_F(CellEditor, GoesOnToTheNextCellWithTab) {
    showLog({"CALL=DL1A BAND=20m", "CALL=DL2A BAND=40m"});
    doubleClick(0, 0);
    typeText("A");
    key(Qt::Key_Tab);
    EXPECT_EQ(editorText(), "20m");
    typeText("B");
    key(Qt::Key_Tab);
    EXPECT_EQ(editorText(), "DL2A");
    EXPECT_EQ(selected(), "DL2A");
    key(Qt::Key_Backtab);
    EXPECT_EQ(editorText(), "B");
    key(Qt::Key_Backtab);
    key(Qt::Key_Backtab);
    EXPECT_EQ(editorText(), "(closed)") << "in front of the first cell there is none";
    EXPECT_EQ(cell(0, "CALL") + cell(0, "BAND"), "AB");
}

TEST_F(CellEditor, LeavesTheNextCellAndTheClickedRowAsTheyWereSeenWhenTheWriteMovesRows) {
    showLog({"CALL=A", "CALL=B", "CALL=C"});
    store.toggleSort("CALL");
    doubleClick(0, 0);
    typeText("X");
    key(Qt::Key_Tab);
    EXPECT_EQ(editorText(), "B") << "which is the first row now";
    typeText("Y");
    click(1, 0);
    EXPECT_EQ(shown(), "C X Y");
    EXPECT_EQ(selected(), "C") << "C lay under the pointer before the write";
    doubleClick(0, 0);
    typeText("Z");
    doubleClick(1, 0);
    EXPECT_EQ(editorText(), "X") << "and before the first press of a double click";
    auto* ruler = view.findChild<RowRuler*>();
    typeText("ZZ");
    QTest::mouseClick(ruler, Qt::LeftButton, {}, QPoint(5, body.pos().y() + at(1, 0).y()));
    EXPECT_EQ(shown(), "Y Z ZZ");
    EXPECT_EQ(selected(), "Y");
}

TEST_F(CellEditor, FollowsItsCellAndGoesWithItsRecord) {
    showLog(manyRecords(100));
    doubleClick(2, 1);
    view.scroll().setScrollY(22);
    EXPECT_EQ(body.editor().geometry(), QRect(100, 22, 99, 21));
    store.setWidth(150, "CALL");
    EXPECT_EQ(body.editor().geometry(), QRect(150, 22, 99, 21));
    typeText("2m");
    store.setSearchText(QStringLiteral("DL77A"));
    EXPECT_EQ(editorText(), "(closed)");
    EXPECT_EQ(cell(2, "BAND"), "20m") << "not the user left the cell, the cell went";
}

TEST_F(CellEditor, WritesNothingWhileItIsOpen) {
    showLog({"CALL=DL1A BAND=40m", "CALL=DL2A BAND=40m", "CALL=DL3A BAND=40m"});
    store.setSearchText(QStringLiteral("40m"));
    store.selectAllDisplayed();
    doubleClick(0, 1);
    typeText("2");
    for (const Qt::Key other : {Qt::Key_NumLock, Qt::Key_VolumeUp}) {
        QKeyEvent override(QEvent::ShortcutOverride, other, {});
        QApplication::sendEvent(QApplication::focusWidget(), &override);
        key(other);
    }
    typeText("0m");
    EXPECT_EQ(editorText(), "20m") << "half a value would have hidden the record, and hit the next one";
    key(Qt::Key_Down);
    EXPECT_EQ(cell(0, "BAND"), "20m");
    EXPECT_EQ(selected(), "DL2A");
}

TEST_F(CellEditor, GoesQuietlyWithItsWindow) {
    showLog({"CALL=DL1A"});
    {
        QSOTableView other(store, questions);
        other.show();
        QApplication::setActiveWindow(&other);
        other.body().startEditing({0, 0});
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("DK5X"));
        ASSERT_EQ(other.body().editor().text(), "DK5X");
    }
    EXPECT_EQ(cell(0, "CALL"), "DL1A");
}

TEST_F(TableMouse, SelectsWithTheKeysHeldDown) {
    showLog(manyRecords(5));
    click(1, 0);
    EXPECT_EQ(selected(), "DL2A");
    click(3, 1, Qt::ShiftModifier);
    EXPECT_EQ(selected(), "DL2A DL3A DL4A");
    click(2, 0, Qt::ControlModifier);
    EXPECT_EQ(selected(), "DL2A DL4A");
    click(1, 0, Qt::ControlModifier);
    EXPECT_EQ(selected(), "DL4A");
    EXPECT_EQ(current(), "1/0") << "where the click was, not where the selection is";
    QTest::mouseClick(&body, Qt::LeftButton, {}, {700, 10});
    EXPECT_EQ(selected(), "DL1A") << "a row goes on behind its last column";
    QTest::mouseClick(&body, Qt::LeftButton, {}, {50, 250});
    EXPECT_EQ(selected(), "");
}

TEST_F(TableMouse, OpensTheMenuForTheRowUnderThePointer) {
    showLog(manyRecords(5));
    QAction command(QStringLiteral("command"));
    body.addAction(&command);
    click(1, 0);
    QTest::mousePress(&body, Qt::RightButton, {}, at(3, 1));
    QContextMenuEvent menu(QContextMenuEvent::Mouse, at(3, 1), body.mapToGlobal(at(3, 1)));
    QApplication::sendEvent(&body, &menu);
    EXPECT_EQ(selected(), "DL4A");
    EXPECT_EQ(popupTitles(), "command\n");
}

TEST_F(TableKeyboard, MovesAndSelects) {
    struct Step {
        Qt::Key pressed;
        Qt::KeyboardModifiers keys;
        const char* currentAfter;
        const char* selectedAfter;
    };
    const Step steps[] = {
        {Qt::Key_Down, {}, "0/0", "DL1A"},
        {Qt::Key_Down, {}, "1/0", "DL2A"},
        {Qt::Key_Down, Qt::ShiftModifier, "2/0", "DL2A DL3A"},
        {Qt::Key_Up, Qt::ShiftModifier, "1/0", "DL2A"},
        {Qt::Key_Up, Qt::ShiftModifier, "0/0", "DL1A DL2A"},
        {Qt::Key_Down, Qt::ControlModifier, "1/0", "DL1A DL2A"},
        {Qt::Key_Down, Qt::ControlModifier, "2/0", "DL1A DL2A"},
        {Qt::Key_Down, Qt::ControlModifier, "3/0", "DL1A DL2A"},
        {Qt::Key_Space, Qt::ControlModifier, "3/0", "DL1A DL2A DL4A"},
        {Qt::Key_Right, {}, "3/1", "DL1A DL2A DL4A"},
        {Qt::Key_Home, {}, "3/0", "DL1A DL2A DL4A"},
        {Qt::Key_End, {}, "3/1", "DL1A DL2A DL4A"},
        {Qt::Key_Space, {}, "3/1", "DL4A"},
        {Qt::Key_Home, Qt::ControlModifier, "0/0", "DL1A"},
        {Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier, "5/1", "DL1A DL2A DL3A DL4A DL5A DL6A"},
        {Qt::Key_PageUp, {}, "0/1", "DL1A"},
    };
    showLog(manyRecords(6));
    body.setCurrentCell({0, 0});
    store.setSelection({}, std::nullopt);
    key(Qt::Key_Up);
    for (std::size_t step = 1; step < std::size(steps); ++step) {
        key(steps[step].pressed, steps[step].keys);
        EXPECT_EQ(current(), steps[step].currentAfter) << "after step " << step;
        EXPECT_EQ(selected(), steps[step].selectedAfter) << "after step " << step;
    }
    EXPECT_EQ(editorText(), "(closed)");
}

TEST_F(TableKeyboard, OpensTheFramedCellWithTheLetterTyped) {
    showLog(manyRecords(2));
    click(1, 1);
    typeText("4");
    EXPECT_EQ(editorText(), "4");
    typeText("0m");
    key(Qt::Key_Return);
    EXPECT_EQ(cell(1, "BAND"), "40m");
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("Ä"));
    QApplication::sendEvent(&body, &composed);
    EXPECT_EQ(editorText(), "Ä");
}

TEST_F(TableScrolling, FollowsTheKeyboardBothWays) {
    showLog(manyRecords(100));
    for (const std::string& column : store.columns()) {
        store.setWidth(600, column);
    }
    click(0, 0);
    key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(view.scroll().scrollY(), 2200 - body.height());
    EXPECT_EQ(view.scroll().scrollX(), 1200 - body.width());
    EXPECT_EQ(header.cellArea(1).right(), body.width()) << "the header goes along";
    key(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(view.scroll().scrollY(), 0);
    EXPECT_EQ(view.scroll().scrollX(), 0);
}

TEST_F(TableScrolling, EndsWhereTheRowsEndAndStartsOverWithAnotherLog) {
    showLog(manyRecords(1000));
    view.scroll().setScrollY(1e9);
    EXPECT_EQ(view.scroll().scrollY(), 22'000 - body.height());
    EXPECT_EQ(body.builtRows().last, 1000U);
    EXPECT_LE(body.builtRows().last - body.builtRows().first,
              static_cast<std::size_t>(body.height()) / 22 + 17);
    store.setSearchText(QStringLiteral("DL10"));
    EXPECT_EQ(view.scroll().scrollY(), 0) << "twelve rows are left";
    store.setSearchText({});
    view.scroll().setScrollY(5000);
    openLog(manyRecords(900));
    EXPECT_EQ(view.scroll().scrollY(), 0);
    EXPECT_EQ(current(), "(none)");
}

TEST_F(TableRows, AreSelectedByDraggingAlongTheirNumbers) {
    showLog(manyRecords(5));
    auto* ruler = view.findChild<RowRuler*>();
    const auto place = [&](int row) { return QPoint(5, header.height() + 22 * row + 11); };
    drag(*ruler, place(1), place(3));
    drop(*ruler, place(3));
    EXPECT_EQ(selected(), "DL2A DL3A DL4A");
    QTest::mouseClick(ruler, Qt::LeftButton, Qt::ControlModifier, place(2));
    EXPECT_EQ(selected(), "DL2A DL4A");
    drag(*ruler, {5, 5}, place(4));
    EXPECT_EQ(selected(), "DL2A DL4A") << "what began beside the numbers is about no row";

    showLog(manyRecords(100));
    drag(*ruler, place(1), QPoint(5, ruler->height() + 20));
    QSignalSpy scrolled(&view.scroll(), &TableScroll::scrollYChanged);
    ASSERT_TRUE(scrolled.wait() && scrolled.wait()) << "while the pointer is held below";
    drop(*ruler, place(3));
    EXPECT_EQ(store.selection().size(), body.currentCell()->row) << "from the second row on";
}

TEST_F(TableRows, GrowWithTheFontOfTheDesktop) {
    showLog({"CALL=DL1A"});
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSize(24);
    QApplication::setFont(large);
    QApplication::processEvents();
    body.startEditing({0, 0});
    const int needed = QFontMetrics(large).height();
    EXPECT_GE(body.tableGeometry().rowHeight(), needed + 4);
    EXPECT_GE(body.editor().height(), needed + 2);
    EXPECT_GE(store.width("CALL"), 150) << "of 100";
    QApplication::setFont(before);
    QApplication::processEvents();
    EXPECT_NEAR(store.width("CALL"), 100, 1);
}

TEST_F(TableRows, ShowWhatWouldTurnThemRound) {
    showLog({"CALL=DL1A NAME=a\u202Eb\x1B"});
    EXPECT_EQ(CellView({body.rowView(0).record, "NAME"}).text(), QStringLiteral("a⟨RLO⟩b␛"));
}

TEST_F(TableRows, StayCurrentWhereTheyGo) {
    showLog({"CALL=C BAND=20m", "CALL=A", "CALL=B"});
    click(0, 0);
    store.toggleSort("CALL");
    EXPECT_EQ(current(), "2/0");
    store.setWidth(600, "CALL");
    store.setWidth(600, "BAND");
    store.addColumn("NAME");
    EXPECT_TRUE(body.rect().contains(at(2, 2))) << "an added column comes into view";
    store.moveColumnBefore("CALL", "");
    EXPECT_EQ(current(), "2/2");
}

TEST_F(TableRows, ShowTheirFindingsInAGutter) {
    settings.setValue(QStringLiteral("checkDuplicates"), false);
    showLog({"CALL=DL1A BAND=20m MODE=CW QSO_DATE=20240115 TIME_ON=1200",
             "CALL=DL2A BAND=21m MODE=XY QSO_DATE=20240115 TIME_ON=1200"});
    const double before = body.cellArea({0, 0}).left();
    store.runCheck();
    EXPECT_EQ(body.cellArea({0, 0}).left(), before + 26);
    EXPECT_EQ(header.cellArea(0).left(), before + 26);
    EXPECT_EQ(body.rowView(0).severity, std::nullopt);
    EXPECT_NE(body.rowView(1).severity, std::nullopt);

    store.setWidth(600, "CALL");
    view.scroll().setScrollX(300);
    QHelpEvent help(QEvent::ToolTip, {10, 30}, body.mapToGlobal(QPoint(10, 30)));
    QApplication::sendEvent(&body, &help);
    EXPECT_EQ(QToolTip::text(), "Unbekanntes Band: 21m\nUnbekannter Modus: XY");
    store.addRecord();
    EXPECT_EQ(body.cellArea({0, 0}).left(), before);

    const StatusGutterCell endless{tallyrig::ValidationSeverity::warning, {std::string(500'000, '7')}};
    EXPECT_EQ(endless.toolTip().size(), 4001);
}

TEST_F(TableRows, GiveWayToAWordInAnEmptyLogOnly) {
    const auto* overlay = body.findChild<EmptyState*>();
    EXPECT_TRUE(overlay->isVisible());
    showLog({"CALL=DL1A"});
    EXPECT_FALSE(overlay->isVisible());
    store.setSearchText(QStringLiteral("nichts"));
    EXPECT_FALSE(overlay->isVisible()) << "there is a log, the search only leaves nothing of it";
    store.newLog();
    EXPECT_TRUE(overlay->isVisible());
}

TEST_F(TableForAssistiveTechnology, HasCellsWithHeaders) {
    showLog({"CALL=DL1A QSO_DATE=20240115", "CALL=DL2A QSO_DATE=20240116"});
    click(1, 1);
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&body);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->role(), QAccessible::Table);
    EXPECT_EQ(table->tableInterface()->rowCount(), 2);
    EXPECT_EQ(table->tableInterface()->columnCount(), 2);
    EXPECT_EQ(table->tableInterface()->selectedRows(), QList{1});
    QAccessibleInterface* cell = table->tableInterface()->cellAt(1, 1);
    EXPECT_EQ(cell->text(QAccessible::Name), "16.01.2024");
    store.toggleSort("QSO_DATE");
    store.runCheck();
    const auto remark = [&](QAccessibleInterface* from) {
        return from->text(QAccessible::Description).toStdString();
    };
    EXPECT_EQ(remark(table->child(1)), "QSO_DATE, aufsteigend sortiert");
    EXPECT_EQ(remark(cell).substr(0, 8), "Fehler: ");
    EXPECT_EQ(table->tableInterface()->rowDescription(1), "Zeile 2");
    header.setFocus();
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&header)->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(remark(QAccessible::queryAccessibleInterface(&header)), "Rufzeichen, CALL");
    body.setFocus();
    EXPECT_TRUE(cell->state().focused && cell->state().selected);
    EXPECT_EQ(table->child(table->indexOfChild(cell)), cell);
    EXPECT_EQ(cell->tableCellInterface()->columnHeaderCells().value(0)->text(QAccessible::Name), "Datum");
    const QPoint point = body.mapToGlobal(at(0, 0));
    EXPECT_EQ(table->childAt(point.x(), point.y())->text(QAccessible::Name), "DL1A");
    EXPECT_TRUE(table->tableInterface()->selectRow(0));
    EXPECT_EQ(selected(), "DL1A DL2A");
    openLog({"CALL=DL3A"});
    EXPECT_EQ(table->childCount(), 2) << "a header and a cell";
    EXPECT_EQ(table->tableInterface()->cellAt(1, 1), nullptr);
}

}  // namespace
}  // namespace quillon
