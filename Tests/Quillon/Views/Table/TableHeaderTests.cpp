// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/TableViewFixture.h"

#include "Quillon/Views/Grid/ColumnHeaderCell.h"

#include <QHelpEvent>
#include <QToolTip>

namespace quillon {
namespace {

using testing::TableViewTest;

/// A log with the columns CALL, BAND and NAME, each 100 wide.
class ColumnHeader : public TableViewTest {
  protected:
    void SetUp() override {
        TableViewTest::SetUp();
        showLog({"CALL=DL1A BAND=20m NAME=Zoe", "CALL=DL2A BAND=40m NAME=Anna"});
    }

    QPoint name(std::size_t column) const {
        return header.cellArea(column).topLeft().toPoint() + QPoint(30, 8);
    }
    QPoint edge(std::size_t column) const {
        return header.cellArea(column).topRight().toPoint() + QPoint(-2, 8);
    }
    void clickAt(QPoint place) { QTest::mouseClick(&header, Qt::LeftButton, {}, place); }
    /// A press, a release and a double click, as they come from a mouse.
    void doubleClickAt(QPoint place) {
        clickAt(place);
        QTest::mouseDClick(&header, Qt::LeftButton, {}, place);
    }
    std::string sorting() const {
        return store.sortColumn() ? *store.sortColumn() + (store.sortAscending() ? " up" : " down") : "none";
    }
    std::string toolTipAt(QPoint place) {
        QHelpEvent help(QEvent::ToolTip, place, header.mapToGlobal(place));
        QApplication::sendEvent(&header, &help);
        return QToolTip::text().toStdString();
    }
};

TEST_F(ColumnHeader, SortsOnAClick) {
    clickAt(name(2));
    EXPECT_EQ(sorting(), "NAME up");
    EXPECT_EQ(shown(), "DL2A DL1A");
    clickAt(name(2));
    EXPECT_EQ(sorting(), "NAME down");
    clickAt(name(0));
    EXPECT_EQ(sorting(), "CALL up");
}

TEST_F(ColumnHeader, RenamesOnADoubleClickAndLeavesTheOrderAlone) {
    const char* const before[] = {"none", "NAME down", "CALL up", "CALL down"};
    for (const std::string sortedBy : before) {
        store.clearSort();
        if (sortedBy != "none") {
            store.toggleSort(sortedBy.substr(0, 4));
            if (sortedBy.ends_with("down")) {
                store.toggleSort(sortedBy.substr(0, 4));
            }
        }
        doubleClickAt(name(0));
        EXPECT_EQ(sorting(), sortedBy);
        EXPECT_EQ(header.editor().text(), "CALL");
        key(Qt::Key_Return);
        EXPECT_FALSE(header.editor().isOpen());
    }
    questions.consents = true;
    doubleClickAt(name(0));
    typeText(" my_call ");
    key(Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(questions.asked, "CALL>MY_CALL (2)");
    EXPECT_EQ(columns(), "MY_CALL BAND NAME");

    doubleClickAt(name(2));
    typeText("qth");
    view.commitEditing();
    EXPECT_EQ(columns(), "MY_CALL BAND QTH") << "a command finds the new name";
    doubleClickAt(name(2));
    typeText("comment");
    key(Qt::Key_Return);
    openLog({"QTH=Ulm"});
    QApplication::processEvents();
    EXPECT_EQ(columns(), "QTH") << "a rename ends with its log";
}

TEST_F(ColumnHeader, MovesWhenDraggedSixPointsOrMore) {
    struct Case {
        std::size_t column;
        QPoint moved;
        std::optional<std::size_t> target;
        const char* columnsAfter;
        const char* sortedBy;
        const char* what;
    };
    const Case cases[] = {
        {1, {5, 0}, {}, "CALL BAND NAME", "BAND up", "five points are a click"},
        {1, {6, 0}, {}, "CALL BAND NAME", "none", "six points, but on the same column"},
        {2, {-150, 3}, 0, "NAME CALL BAND", "none", "to the left: in front of the column there"},
        {0, {200, 0}, 2, "BAND CALL NAME", "none", "to the right: in front of the column there, too"},
        {0, {600, 0}, 2, "BAND CALL NAME", "none", "past the last column: in front of it all the same"},
        {0, {100, 0}, 1, "CALL BAND NAME", "none", "in front of its neighbour it stands already"},
    };
    for (const Case& c : cases) {
        store.clearSort();
        while (columns() != "CALL BAND NAME") {
            store.undo();
        }
        const QPoint from = name(c.column);
        drag(header, from, from + c.moved);
        EXPECT_EQ(header.dropTarget(), c.target) << c.what;
        drop(header, from + c.moved);
        EXPECT_EQ(columns(), c.columnsAfter) << c.what;
        EXPECT_EQ(sorting(), c.sortedBy) << c.what;
    }
}

TEST_F(ColumnHeader, ChangesItsWidthAtTheHandle) {
    drag(header, edge(0), edge(0) + QPoint(30, 0));
    EXPECT_EQ(store.width("CALL"), 130);
    drop(header, edge(0));
    drag(header, edge(1), edge(1) - QPoint(500, 0));
    EXPECT_EQ(store.width("BAND"), 48) << "no narrower than that";
    drop(header, edge(1));
    doubleClickAt(edge(0));
    EXPECT_EQ(store.width("CALL"), 94) << "as its label needs: 10 letters of 6, 12, 16 and 6";
    EXPECT_EQ(sorting(), "none");
    EXPECT_FALSE(header.editor().isOpen());
}

TEST_F(ColumnHeader, ShrinksAsFarAsThePointerGoesThoughTheContentMoves) {
    for (const char* column : {"CALL", "BAND", "NAME"}) {
        store.setWidth(600, column);
    }
    view.scroll().setScrollX(5000);
    const QPoint pressed = edge(2);
    const QPoint place = pressed - QPoint(30, 0);
    drag(header, pressed, place);
    QMouseEvent move(QEvent::MouseMove, place, header.mapToGlobal(place), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&header, &move);
    QApplication::sendEvent(&header, &move);
    EXPECT_EQ(store.width("NAME"), 570);
}

TEST_F(ColumnHeader, OpensItsMenuAndIsTheOneThatItsCommandsAreAbout) {
    QAction command(QStringLiteral("command"));
    header.addAction(&command);
    QTest::mousePress(&header, Qt::LeftButton, {},
                      ColumnHeaderCell::menuArea(header.cellArea(1)).center().toPoint());
    EXPECT_EQ(popupTitles(), "command\n");
    EXPECT_EQ(view.chosenColumn(), "BAND");
    store.moveColumnBy("BAND", -1);
    EXPECT_EQ(view.chosenColumn(), "BAND");
    click(1, 2);
    EXPECT_EQ(view.chosenColumn(), "NAME");
    store.newLog();
    EXPECT_EQ(view.chosenColumn(), std::nullopt);
}

TEST_F(ColumnHeader, GivesBackARefusedNameToMendIt) {
    doubleClickAt(name(2));
    typeText("1A");
    key(Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_FALSE(header.editor().isOpen());
    store.setErrorMessage(std::nullopt);
    QApplication::processEvents();
    EXPECT_EQ(header.editor().text(), "1A");
    EXPECT_TRUE(header.editor().isOpen());

    view.commitEditing();
    store.setErrorMessage(std::nullopt);
    QApplication::processEvents();
    EXPECT_FALSE(header.editor().isOpen()) << "who went elsewhere is not called back";
}

TEST_F(ColumnHeader, TakesADragBackWithEscape) {
    drag(header, name(2), name(0));
    key(Qt::Key_Escape);
    drop(header, name(0));
    EXPECT_EQ(columns(), "CALL BAND NAME");
    drag(header, edge(0), edge(0) + QPoint(30, 0));
    key(Qt::Key_Escape);
    drop(header, edge(0));
    EXPECT_EQ(store.width("CALL"), 100);
}

TEST_F(ColumnHeader, IsThereForTheKeyboard) {
    header.setFocus();
    key(Qt::Key_Right);
    key(Qt::Key_Space);
    EXPECT_EQ(sorting(), "BAND up");
    key(Qt::Key_End);
    view.renameColumn();
    EXPECT_EQ(header.editor().text(), "NAME");
    typeText("OTHER");
    key(Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_EQ(columns(), "CALL BAND NAME");
    EXPECT_EQ(QApplication::focusWidget(), &header);
}

TEST_F(ColumnHeader, TellsWhatItsPartsAreFor) {
    EXPECT_EQ(toolTipAt(edge(1)), "Ziehen: Breite ändern · Doppelklick: an Inhalt anpassen");
    store.setWidth(48, "NAME");
    store.renameColumn("NAME", "STATION_CALLSIGN");
    EXPECT_EQ(toolTipAt(name(2)), "Stationsrufzeichen <STATION_CALLSIGN");
    store.runCheck();
    EXPECT_EQ(toolTipAt({12, 10}), "Prüfstatus je QSO");
}

}  // namespace
}  // namespace quillon
