// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Compare/CompareView.h"

#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Compare/CentreBar.h"
#include "Quillon/Views/Compare/CompareBody.h"
#include "Quillon/Views/Compare/CompareHeader.h"
#include "Quillon/Views/Compare/CompareTable.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Grid/TableScroll.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QFontMetricsF>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>
#include <QWheelEvent>

#include <memory>

namespace quillon {
namespace {

using testing::adi;
using Side = ComparisonModel::Side;

/// The pane on a screen that is not there, and few words to use it as a person does.
class Comparing : public testing::LogStoreTest {
  protected:
    void show() {
        view = std::make_unique<CompareView>(store, compare);
        view->resize(900, 400);
        view->show();
        QApplication::setActiveWindow(view.get());
        QApplication::processEvents();
    }
    void loadRight(const std::vector<std::string>& records) {
        compare.load(Side::right, folder.write(QStringLiteral("right.adi"), adi(records)));
    }
    CompareBody& side(Side side) { return view->table().body(side); }
    void click(Side on, std::size_t row, std::size_t column) {
        QTest::mouseClick(&side(on), Qt::LeftButton, {}, side(on).cellArea({row, column}).center().toPoint());
    }
    /// To where the keyboard is, and then what follows of it in the event loop.
    void press(Qt::Key key, Qt::KeyboardModifiers keys = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, keys);
        QApplication::processEvents();
    }
    /// The first letter opens the editor, which gets the others.
    static void typeText(const char* text) {
        for (; *text != 0; ++text) {
            QTest::keyClick(QApplication::focusWidget(), *text);
        }
    }
    std::string rightCell(std::size_t index, const char* field) const {
        return std::string(compare.rightDoc().records()[index].valueOrEmpty(field));
    }
    /// Such as "1/2", counted from 0.
    std::string current() const {
        const auto& cell = view->model().currentCell();
        return cell ? std::to_string(cell->row) + "/" + std::to_string(cell->column) : "-";
    }
    std::string texts() const { return testing::shownTexts(*view); }
    bool says(const char* text) const { return texts().find(text) != std::string::npos; }
    /// Between text and edge of the cell.
    QColor ground(Side on, CellPosition cell) {
        const QRectF area = side(on).cellArea(cell);
        return side(on).grab().toImage().pixelColor(qRound(area.right()) - 8, qRound(area.center().y()));
    }

    CompareStore compare{settings, panels};
    std::unique_ptr<CompareView> view;
};

TEST_F(Comparing, ShowsNamesDifferencesAndCounts) {
    show();
    EXPECT_EQ(texts(),
              "Aktuelles Log\neditierbar\n↔\n—\nNichts zu vergleichen\n"
              "Lade links und rechts je eine ADIF-Datei (Seitenleiste, Laden …).");
    openLog({"CALL=A", "CALL=B RST=1", "CALL=C"});
    compare.load(Side::right,
                 folder.write("right.adi", "x<PROGRAMID:1>P<EOH><CALL:1>A<EOR><CALL:1>B<RST:1>2<EOR>"));
    QApplication::processEvents();
    EXPECT_EQ(texts(),
              "Aktuelles Log\neditierbar\n↔\nright.adi\neditierbar\nHeader-Unterschiede\nPROGRAMID: —  →  P\n"
              "1 gleich\n1 abweichend\n1 nur links\n0 nur rechts\n3 Zeilen");
    type(0, "CALL", "B");
    loadRight({"CALL=B"});
    QApplication::processEvents();
    EXPECT_TRUE(says("Aktuelles Log\neditierbar\ngeändert\n↔"));
    EXPECT_FALSE(says("Header-Unterschiede"));
    compare.load(Side::left, folder.write("left.adi", adi({"CALL=Z"})));
    QApplication::processEvents();
    EXPECT_TRUE(says("left.adi\neditierbar\n↔\nright.adi"));
    EXPECT_TRUE(says("1 nur links\n1 nur rechts\n2 Zeilen"));
}

TEST_F(Comparing, HappensOnceForEachTurnAndOnlyWhileSeen) {
    openLog({"CALL=A RST=1", "CALL=B"});
    show();
    QSignalSpy all(const_cast<ComparisonModel*>(&view->model()), &ComparisonModel::logsChanged);
    QSignalSpy row(const_cast<ComparisonModel*>(&view->model()), &ComparisonModel::rowChanged);
    loadRight({"CALL=A RST=2"});
    type(0, "RST", "3");
    EXPECT_EQ(all.size(), 0);
    QApplication::processEvents();
    EXPECT_EQ(all.size(), 1);
    type(0, "RST", "2");
    QApplication::processEvents();
    EXPECT_EQ(all.size(), 1);
    EXPECT_EQ(row.size(), 1);
    EXPECT_TRUE(says("1 gleich"));
    view->hide();
    loadRight({"CALL=B"});
    QApplication::processEvents();
    EXPECT_EQ(all.size(), 1);
    view->show();
    EXPECT_EQ(all.size(), 2);
}

TEST_F(Comparing, MarksDifferencesBandsAndRowsThatOneSideLacks) {
    openLog({"CALL=A BAND=20m RST=1", "CALL=B"});
    loadRight({"CALL=A BAND=20m RST=2", "CALL=C"});
    compare.load(Side::left, folder.path("log.adi"));
    show();
    const QColor plain = ground(Side::left, {0, 0});
    const QColor differs = ground(Side::left, {0, 2});
    EXPECT_EQ(plain, view->palette().color(QPalette::Base));
    EXPECT_EQ(ground(Side::right, {0, 2}), differs);
    EXPECT_GT(differs.red() - differs.blue(), 80) << "orange: " << differs.name().toStdString();
    const QColor band = ground(Side::right, {0, 1});
    EXPECT_NE(band, plain);
    EXPECT_NE(band, differs);
    EXPECT_EQ(view->model().statusText(0), QStringLiteral("abweichend: RST"));
    EXPECT_FALSE(side(Side::right).isCellEditable({1, 0}));
    const QImage signs = view->table().centreBar().grab().toImage();
    const auto sign = [&](std::size_t row) {
        return signs.copy(view->table().centreBar().signArea(row).toRect());
    };
    EXPECT_NE(sign(1), sign(2)) << "only left, only right";
    EXPECT_NE(sign(0), sign(1));
}

TEST_F(Comparing, EditsEitherSideByTheKeysOfATable) {
    openLog({"CALL=A RST=1 SRX=1", "CALL=B RST=2", "CALL=C"});
    loadRight({"CALL=A RST=9 SRX=1", "CALL=C"});
    show();
    click(Side::left, 0, 1);
    typeText("77");
    EXPECT_EQ(cell(0, "RST"), "1") << "not before the editor is left";
    press(Qt::Key_Return);
    EXPECT_EQ(cell(0, "RST"), "77");
    store.undo();
    QApplication::processEvents();
    EXPECT_EQ(cell(0, "RST") + " " + current(), "1 0/1");

    click(Side::right, 0, 1);
    press(Qt::Key_F2);
    typeText("1");
    press(Qt::Key_Tab);
    EXPECT_EQ(rightCell(0, "RST") + " " + current(), "1 0/2");
    EXPECT_TRUE(says("right.adi\neditierbar\ngeändert"));
    press(Qt::Key_Tab);
    EXPECT_EQ(current(), "2/0") << "over the row that the right side lacks";
    EXPECT_TRUE(side(Side::right).editor().isOpen());
    press(Qt::Key_Escape);
    press(Qt::Key_Up);
    typeText("x");
    EXPECT_FALSE(side(Side::right).editor().isOpen()) << "there is no QSO in this row";
    QApplication::clipboard()->setText(QStringLiteral("3"));
    press(Qt::Key_Up);
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_Return);
    EXPECT_EQ(rightCell(0, "CALL"), "3");
    press(Qt::Key_V, Qt::ControlModifier);
    QTest::mouseClick(&view->table().centreBar(), Qt::LeftButton, {},
                      view->table().centreBar().signArea(0).center().toPoint());
    QApplication::processEvents();
    EXPECT_FALSE(side(Side::right).editor().isOpen());
    EXPECT_EQ(current().front(), '0');
    EXPECT_TRUE(side(Side::right).hasFocus()) << "the side where it was";
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(current(), "3/2");
}

TEST_F(Comparing, WritesNothingOnItsWayOut) {
    openLog({"CALL=A"});
    show();
    click(Side::left, 0, 0);
    typeText("X");
    view.reset();
    EXPECT_EQ(cell(0, "CALL"), "A");
}

TEST_F(Comparing, StaysWithTheRecordWhoseKeyIsEdited) {
    openLog({"CALL=A", "CALL=B"});
    loadRight({"CALL=A", "CALL=B"});
    show();
    click(Side::right, 0, 0);
    typeText("X");
    press(Qt::Key_Return);
    EXPECT_EQ(current(), "2/0") << "it has no partner any more";
    EXPECT_EQ(rightCell(0, "CALL"), "X");
}

TEST_F(Comparing, GoesFromDifferenceToDifference) {
    openLog({"CALL=A", "CALL=B RST=1", "CALL=C"});
    loadRight({"CALL=A", "CALL=B RST=2", "CALL=C", "CALL=D"});
    show();
    QSignalSpy noticed(view.get(), &CompareView::noticed);
    view->table().enter();
    press(Qt::Key_F8);
    EXPECT_EQ(current(), "1/1") << "the field in which they differ";
    press(Qt::Key_F8);
    EXPECT_EQ(current(), "3/1");
    EXPECT_TRUE(side(Side::right).hasFocus()) << "the left one has no QSO here";
    press(Qt::Key_F8);
    EXPECT_EQ(noticed.size(), 1);
    press(Qt::Key_F8, Qt::ShiftModifier);
    EXPECT_EQ(current(), "1/1");
    testing::shownButton(*view, QStringLiteral("Nur Unterschiede"))->click();
    EXPECT_EQ(view->model().geometry().rowCount(), 2U);
    EXPECT_EQ(current(), "0/1") << "still the same QSO";
    EXPECT_TRUE(says("4 Zeilen"));
    EXPECT_FALSE(says("Keine Unterschiede"));
    compare.load(Side::left, *compare.rightURL());
    QApplication::processEvents();
    EXPECT_TRUE(says("Keine Unterschiede"));
}

TEST_F(Comparing, LeavesTheHistoryOfTheOpenLogAloneOnTheOtherSide) {
    openLog({"CALL=A RST=1"});
    loadRight({"CALL=A RST=2"});
    show();
    QSignalSpy noticed(view.get(), &CompareView::noticed);
    click(Side::right, 0, 1);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("2"));
    QKeyEvent undo(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    undo.ignore();
    QApplication::sendEvent(&side(Side::right), &undo);
    EXPECT_TRUE(undo.isAccepted());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(noticed.size(), 1);
    undo.ignore();
    QApplication::sendEvent(&side(Side::left), &undo);
    EXPECT_FALSE(undo.isAccepted()) << "there the window's command is what is wanted";
}

TEST_F(Comparing, SavesTheFileWhereTheKeyboardIs) {
    openLog({"CALL=A RST=1"});
    loadRight({"CALL=A RST=2"});
    show();
    click(Side::right, 0, 1);
    typeText("3");
    QKeyEvent saving(QEvent::ShortcutOverride, Qt::Key_S, Qt::ControlModifier);
    saving.ignore();
    QApplication::sendEvent(&side(Side::right), &saving);
    EXPECT_TRUE(saving.isAccepted());
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(compare.rightDirty());
    EXPECT_NE(folder.read(QStringLiteral("right.adi")).find("<RST:1>3"), std::string::npos);
    saving.ignore();
    QApplication::sendEvent(&side(Side::left), &saving);
    EXPECT_FALSE(saving.isAccepted()) << "the window saves the open log";
}

TEST_F(Comparing, KeepsTheCellWhereThereIsNoTextToPaste) {
    openLog({"CALL=A"});
    show();
    click(Side::left, 0, 0);
    QApplication::clipboard()->setImage(QImage(2, 2, QImage::Format_RGB32));
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_Escape);
    EXPECT_EQ(store.document().records()[0].valueOrEmpty("CALL"), "A");
}

TEST_F(Comparing, ScrollsBothSidesUpAndDownButEachToTheSides) {
    std::vector<std::string> records;
    for (int number = 0; number < 500; ++number) {
        records.push_back("CALL=C" + std::to_string(number) + " A=1 B=2 D=3 E=4 F=5 G=6 H=7");
    }
    openLog(records);
    loadRight(records);
    show();
    TableScroll& left = view->table().scroll(Side::left);
    TableScroll& right = view->table().scroll(Side::right);
    QWheelEvent turn(QPointF(10, 10), QPointF(10, 10), {}, QPoint(0, -480), Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&left, &turn);
    EXPECT_GT(left.scrollY(), 0);
    EXPECT_EQ(left.scrollY(), right.scrollY());
    right.setScrollY(1e9);
    EXPECT_EQ(left.scrollY(), right.scrollY());
    const auto built = side(Side::left).builtRows();
    EXPECT_EQ(built.last, 500U);
    EXPECT_LE(built.last - built.first, static_cast<std::size_t>(side(Side::left).height()) / 24 + 10);
    const double down = left.scrollY();
    QWheelEvent withShift(QPointF(10, 10), QPointF(10, 10), {}, QPoint(0, -120), Qt::NoButton,
                          Qt::ShiftModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&left, &withShift);
    EXPECT_GT(left.scrollX(), 0);
    EXPECT_EQ(left.scrollY(), down);
    EXPECT_EQ(right.scrollX(), 0);
    EXPECT_NEAR(side(Side::left).width(), side(Side::right).width(), 1);
}

TEST_F(Comparing, ChangesTheWidthOfAColumnByTheKeyboard) {
    openLog({"CALL=A RST=1"});
    loadRight({"CALL=A RST=2"});
    show();
    click(Side::right, 0, 1);
    const auto& geometry = view->model().geometry();
    press(Qt::Key_Plus, Qt::AltModifier);
    EXPECT_EQ(geometry.columnWidth(1), 108);
    for (int times = 0; times < 5; ++times) {
        press(Qt::Key_Minus, Qt::AltModifier);
    }
    EXPECT_EQ(geometry.columnWidth(1), 48);
    EXPECT_EQ(geometry.columnWidth(0), 92);
    press(Qt::Key_0, Qt::AltModifier);
    EXPECT_EQ(geometry.columnWidth(1), 92);
}

TEST_F(Comparing, WidensAColumnOnBothSidesForTheRestOfTheRun) {
    openLog({"CALL=A RST=1"});
    show();
    CompareHeader& header = view->table().header(Side::left);
    const auto width = [&](std::size_t column) { return view->model().geometry().columnWidth(column); };
    const auto drag = [&](double by) {
        const QPoint edge(qRound(header.cellArea(1).right()) - 1, 10);
        QTest::mousePress(&header, Qt::LeftButton, {}, edge);
        QTest::mouseMove(&header, edge + QPoint(qRound(by), 0));
        return edge + QPoint(qRound(by), 0);
    };
    EXPECT_EQ(header.height(), 38);
    const double before = width(1);
    const QPoint end = drag(30);
    EXPECT_EQ(width(1), before + 30);
    QTest::keyClick(&header, Qt::Key_Escape);
    EXPECT_EQ(width(1), before) << "taken back";
    QTest::mouseRelease(&header, Qt::LeftButton, {}, end);
    QTest::mouseRelease(&header, Qt::LeftButton, {}, drag(-500));
    EXPECT_EQ(width(1), 48) << "no narrower than is of use";
    openLog({"X=1", "RST=2 CALL=B"});
    QApplication::processEvents();
    EXPECT_EQ(width(2), 48) << "the field, not the place";
}

TEST_F(Comparing, GrowsWithTheLetters) {
    openLog({"QSO_DATE=20240315"});
    show();
    const TableGeometry& geometry = view->model().geometry();
    EXPECT_EQ(geometry.rowHeight(), 24);
    EXPECT_EQ(geometry.columnWidth(0), 92);
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSizeF(2.5 * before.pointSizeF());
    QApplication::setFont(large);
    QApplication::processEvents();
    QApplication::processEvents();  // The layout is a turn behind.
    EXPECT_GT(geometry.rowHeight(), QFontMetricsF(large).height());
    EXPECT_GT(geometry.columnWidth(0), QFontMetricsF(large).horizontalAdvance(QStringLiteral("20240315")));
    EXPECT_GT(view->table().header(Side::left).height(), 38);
    QApplication::setFont(before);
}

TEST_F(Comparing, LeavesTheTablesMostOfTheHeight) {
    std::string header = "x";
    for (int number = 0; number < 300; ++number) {
        header += "<FIELD" + std::to_string(number) + ":1>1";
    }
    compare.load(Side::right, folder.write("right.adi", header + "<EOH><CALL:1>A<EOR>"));
    show();
    auto& list = testing::namedChild<QTextEdit>(*view, "Header-Unterschiede");
    EXPECT_LT(list.height(), view->height() / 4);
    EXPECT_EQ(list.focusPolicy(), Qt::StrongFocus) << "to be scrolled by keyboard";
    EXPECT_TRUE(says("FIELD199: —  →  1\nund 100 weitere"));
    compare.load(Side::right, folder.write("few.adi", "x<FIELD:1>1<EOH><CALL:1>A<EOR>"));
    QApplication::processEvents();
    EXPECT_EQ(list.focusPolicy(), Qt::ClickFocus);
    const int oneLine = list.height();
    compare.load(Side::right, folder.write("wide.adi", "x<FIELD:190>" + std::string(190, 'x') +
                                                           "<S:2>a <EOH><CALL:1>A<EOR>"));
    QApplication::processEvents();
    EXPECT_GE(list.height(), 3 * oneLine) << "a word that is wider than the pane goes on in the next line";
    EXPECT_TRUE(says("S: —  →  „a “")) << "white space that nobody would see";
}

TEST_F(Comparing, CutsTheLongerNameFirst) {
    openLog({"CALL=A"});
    compare.load(Side::right, folder.write(QString(150, QLatin1Char('w')) + QStringLiteral(".adi"), ""));
    show();
    QList<QLabel*> names;
    for (QLabel* name : view->findChildren<ElidedLabel*>()) {
        names.append(name);
    }
    ASSERT_EQ(names.size(), 2);
    EXPECT_GE(names[0]->width(), names[0]->sizeHint().width()) << names[0]->text().toStdString();
    EXPECT_LT(names[1]->width(), names[1]->sizeHint().width());
    EXPECT_GT(names[1]->width(), view->width() / 2);
}

TEST_F(Comparing, TellsAssistiveTechnologyOfEachRow) {
    openLog({"CALL=A RST=1", "CALL=B"});
    loadRight({"CALL=A RST=2"});
    show();
    QAccessibleInterface* const table = QAccessible::queryAccessibleInterface(&side(Side::right));
    ASSERT_NE(table->tableInterface(), nullptr);
    QAccessibleInterface* const differing = table->tableInterface()->cellAt(0, 1);
    EXPECT_EQ(differing->text(QAccessible::Name), QStringLiteral("2"));
    EXPECT_EQ(differing->text(QAccessible::Description), QStringLiteral("abweichend: RST"));
    QAccessibleInterface* const missing = table->tableInterface()->cellAt(1, 0);
    EXPECT_EQ(missing->text(QAccessible::Description), QStringLiteral("nur links"));
    EXPECT_FALSE(missing->state().editable);
    EXPECT_EQ(table->child(0)->text(QAccessible::Name), QStringLiteral("Rufzeichen"));
}

}  // namespace
}  // namespace quillon
