// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/ContentView.h"

#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Check/CheckResultsView.h"
#include "Quillon/Views/Contest/ContestView.h"
#include "Quillon/Views/Controls/FindingList.h"
#include "Quillon/Views/Controls/NoticeStrip.h"
#include "Quillon/Views/Controls/PaneSplitter.h"
#include "Quillon/Views/Detail/FieldRow.h"
#include "Quillon/Views/Detail/RecordDetailView.h"
#include "Quillon/Views/Sheets/BulkEditSheet.h"
#include "Quillon/Views/Sheets/EDIExportSheet.h"
#include "Quillon/Views/Sidebar/SidebarPane.h"
#include "Quillon/Views/Table/QSOTableView.h"
#include "Quillon/Views/Table/TableBody.h"
#include "Quillon/Views/Window/CommandActions.h"
#include "Quillon/Views/Window/DropHint.h"
#include "Quillon/Views/Window/FileNotices.h"
#include "Quillon/Views/Window/NoHits.h"
#include "Quillon/Views/Window/RecentFilesMenu.h"
#include "Quillon/Views/Window/StatusLine.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

#include <algorithm>
#include <memory>

namespace quillon {
namespace {

class Window : public testing::LogStoreTest {
  protected:
    void show(const QStringList& arguments = {}) {
        window =
            std::make_unique<ContentView>(AppStores{store, compare, contest, cross}, settings, arguments);
        QSignalSpy up(window.get(), &ContentView::cameUp);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(up.wait());
    }
    QLineEdit& searchField() const {
        for (QLineEdit* edit : window->findChildren<QLineEdit*>()) {
            if (edit->placeholderText() == QStringLiteral("Suchen")) {
                return *edit;
            }
        }
        throw std::runtime_error("no search field");
    }
    QMessageBox* alert() const {
        auto* box = window->findChild<QMessageBox*>();
        return box != nullptr && box->isVisible() ? box : nullptr;
    }
    std::string status() const { return testing::shownTexts(*window->findChild<StatusLine*>()); }
    /// Presses the key so many times and tells what has the keyboard after each.
    static std::string walk(Qt::Key key, int steps) {
        std::string names;
        for (int step = 0; step < steps; ++step) {
            QTest::keyClick(QApplication::focusWidget(), key);
            const QString name = QApplication::focusWidget()->accessibleName();
            names += (name.isEmpty() ? QStringLiteral("(icon)") : name).toStdString() + "\n";
        }
        return names;
    }
    bool tableHasFocus() const {
        const QWidget* focus = QApplication::focusWidget();
        return focus != nullptr && window->findChild<QSOTableView*>()->isAncestorOf(focus);
    }

    CompareStore compare{settings, panels};
    ContestStore contest;
    CrossCheckStore cross{panels, fileManager};
    std::unique_ptr<ContentView> window;
};

TEST_F(Window, ComesBackAsItWasAndWhereItCanBeSeen) {
    show();
    const QSize size(1100, 520);
    window->resize(size);
    window->move(5000, -3000);
    auto* splitter = window->findChild<PaneSplitter*>();
    QTest::mousePress(splitter->handle(1), Qt::LeftButton, {}, QPoint());
    QTest::mouseMove(splitter->handle(1), QPoint(37, 0));
    QTest::mouseRelease(splitter->handle(1), Qt::LeftButton, {}, QPoint(37, 0));
    const int width = window->findChild<SidebarPane*>()->width();
    EXPECT_NE(width, 250);
    window->close();
    show();
    EXPECT_TRUE(window->screen()->availableGeometry().intersects(window->geometry()));
    EXPECT_EQ(window->findChild<SidebarPane*>()->width(), width);
    window->showFullScreen();
    window->close();
    show();
    EXPECT_TRUE(window->isFullScreen());
    // What was not written by the program.
    settings.setValue("window.geometry", QByteArray("rubbish"));
    settings.setValue("window.sidebarWidth", -7);
    show();
    EXPECT_EQ(window->findChild<SidebarPane*>()->width(), 250);
    settings.setValue("window.sidebarWidth", 5000);
    show();
    EXPECT_LE(window->findChild<SidebarPane*>()->width(), 320);
}

TEST_F(Window, OffersTheFilesThatWereOpenLast) {
    const QString there = folder.write(QStringLiteral("R&D.adi"), testing::adi({"CALL=A"}));
    settings.setValue("recentFiles", QStringList{folder.path("gone.adi"), there});
    show();
    auto& menu = *window->findChild<RecentFilesMenu*>();
    auto& presence = *menu.findChild<PresenceCheck*>();
    QSignalSpy looked(&presence, &PresenceCheck::looked);
    menu.popup(QPoint());
    const QList<QAction*> actions = menu.actions();
    EXPECT_EQ(actions[0]->text(), "&1  gone.adi");
    EXPECT_EQ(actions[1]->text(), "&2  R&&D.adi");
    EXPECT_EQ(actions[1]->toolTip(), there);
    while (looked.size() < 2) {
        ASSERT_TRUE(looked.wait());
    }
    EXPECT_FALSE(actions[0]->isEnabled());
    QTest::keyClick(&menu, Qt::Key_Down);
    EXPECT_TRUE(status().ends_with(there.toStdString())) << "the whole path, for the keyboard";
    menu.hide();
    EXPECT_FALSE(status().ends_with(there.toStdString()));
    menu.popup(QPoint());
    QTest::keyClick(&menu, Qt::Key_2);
    EXPECT_EQ(store.fileURL(), there);
    menu.popup(QPoint());
    menu.actions().constLast()->trigger();
    menu.refresh();
    EXPECT_FALSE(menu.menuAction()->isEnabled());
}

TEST_F(Window, TellsWhenAnotherProgramChangesTheFile) {
    const QString path = folder.write(QStringLiteral("a.adi"), testing::adi({"CALL=A"}));
    show({path});
    type(0, "CALL", "own");
    folder.write(QStringLiteral("a.adi"), testing::adi({"CALL=A", "CALL=others"}));
    auto& strip = *window->findChild<NoticeStrip*>();
    const auto press = [&](const char* text) {
        window->findChild<FileNotices*>()->look();
        EXPECT_EQ(testing::shownTexts(strip), "Die Datei „a.adi“ wurde inzwischen geändert.");
        testing::shownButton(strip, QString::fromUtf8(text))->click();
        EXPECT_TRUE(strip.isHidden());
    };
    press("Vergleichen");
    EXPECT_EQ(store.mode(), AppMode::compare);
    EXPECT_EQ(compare.rightDoc().records().size(), 2U);
    folder.write(QStringLiteral("a.adi"), testing::adi({"CALL=others"}));
    press("Neu laden");
    EXPECT_EQ(cell(0, "CALL"), "others");
    folder.write(QStringLiteral("a.adi"), testing::adi({"CALL=more"}));
    press("Ersetzen");
    EXPECT_NE(folder.read(QStringLiteral("a.adi")).find("others"), std::string::npos);
}

TEST_F(Window, WritesNothingOverAFileThatLosesByItUntilTheUserSaysSo) {
    const std::string original =
        "START-OF-LOG: 3.0\nQSO: 14074 CW 2024-01-15 1234 DL1ABC 599 1 K1XYZ 599 2\n";
    const QString path = folder.write(QStringLiteral("contest.log"), original);
    show({path});
    QApplication::setActiveWindow(window.get());
    auto& strip = *window->findChild<NoticeStrip*>();
    const auto save = [&] { window->actions().action(CommandID::save)->trigger(); };
    save();
    EXPECT_EQ(testing::shownTexts(strip), "„contest.log“ wird als ADIF geschrieben.");
    EXPECT_TRUE(tableHasFocus());
    save();
    EXPECT_TRUE(testing::shownButton(strip, QStringLiteral("Speichern unter…"))->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(strip.isHidden());
    EXPECT_TRUE(tableHasFocus());
    save();
    EXPECT_EQ(folder.read(QStringLiteral("contest.log")), original);
    testing::shownButton(strip, QStringLiteral("Trotzdem"))->click();
    EXPECT_TRUE(strip.isHidden());
    EXPECT_NE(folder.read(QStringLiteral("contest.log")).find("<CALL:5>K1XYZ"), std::string::npos);
    type(0, "CALL", "K2XYZ");
    save();
    EXPECT_NE(folder.read(QStringLiteral("contest.log")).find("<CALL:5>K2XYZ"), std::string::npos);
    folder.write(QStringLiteral("contest.log"), original + "\n");
    save();
    EXPECT_EQ(testing::shownTexts(strip), "Die Datei „contest.log“ wurde inzwischen geändert.");
    save();
    EXPECT_TRUE(testing::shownButton(strip, QStringLiteral("Neu laden"))->hasFocus());
    EXPECT_EQ(folder.read(QStringLiteral("contest.log")), original + "\n");
    store.open(folder.write(QStringLiteral("other.adi"), testing::adi({"CALL=A"})));
    EXPECT_TRUE(strip.isHidden()) << "it would replace the file of this log";
}

TEST_F(Window, OpensTheLogOfTheArgumentsOnce) {
    const QString path = folder.write(QStringLiteral("a.adi"), testing::adi({"CALL=DL1ABC"}));
    show({path});
    EXPECT_EQ(window->windowTitle(), QStringLiteral("a.adi"));
    EXPECT_TRUE(tableHasFocus());
    store.newLog();
    window->hide();
    window->show();
    QApplication::processEvents();
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Unbenanntes Logbuch"));
}

TEST_F(Window, HasTheTitleOfTheStore) {
    show();
    store.open(folder.write(QStringLiteral("mai\u202E[*].adi"), testing::adi({"CALL=DL1ABC"})));
    store.addRecord();
    EXPECT_EQ(window->windowTitle(), QStringLiteral("mai⟨RLO⟩[*][*].adi — bearbeitet"));
}

TEST_F(Window, KeepsItsPanesInTheirWidths) {
    show();
    for (const int width : {1000, 1280, 3000}) {
        SCOPED_TRACE(width);
        window->resize(width, 480);
        QApplication::processEvents();
        const int sidebar = window->findChild<SidebarPane*>()->width();
        const int detail = window->findChild<RecordDetailView*>()->width();
        EXPECT_EQ(sidebar, 250);
        EXPECT_EQ(detail, width == 1000 ? detail : 300);
        EXPECT_GE(detail, 260);
        EXPECT_EQ(window->findChild<QSOTableView*>()->width(), width - sidebar - detail - 2);
    }
    window->resize(100, 100);
    EXPECT_EQ(window->size(), QSize(1000, 480));
}

TEST_F(Window, SearchesAsTheUserTypes) {
    openLog({"CALL=DL1ABC", "CALL=OE1ABC"});
    show();
    window->focusSearch();
    QTest::keyClicks(&searchField(), QStringLiteral("oe"));
    EXPECT_EQ(shown(), "OE1ABC");
    QTest::keyClick(&searchField(), Qt::Key_Escape);
    EXPECT_EQ(shown(), "DL1ABC OE1ABC");
    EXPECT_TRUE(tableHasFocus());
    store.setSearchText(QStringLiteral("dl"));
    EXPECT_EQ(searchField().text(), QStringLiteral("dl"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(searchField().text(), QString());
}

TEST_F(Window, SaysThatASearchFindsNothingAlsoInTheNextLog) {
    show();
    store.setSearchText(QStringLiteral("oe\u202E1"));
    auto* noHits = window->findChild<NoHits*>();
    EXPECT_FALSE(noHits->isVisible()) << "there is nothing to search in";
    openLog({"CALL=DL1ABC"});
    EXPECT_EQ(testing::shownTexts(*noHits), "Keine Treffer für „oe⟨RLO⟩1“");
    testing::shownButton(*noHits, QStringLiteral("Suche aufheben"))->click();
    EXPECT_EQ(shown(), "DL1ABC");
    EXPECT_FALSE(noHits->isVisible());
    EXPECT_TRUE(tableHasFocus());
}

TEST_F(Window, ShowsTheResultsOfACheckUnderTheTable) {
    openLog({"CALL=DL1ABC", "CALL=DL2ABC QSO_DATE=1"});
    show();
    EXPECT_EQ(window->findChild<CheckResultsView*>(), nullptr);
    store.runCheck();
    auto* results = testing::shownChild<CheckResultsView>(*window);
    ASSERT_NE(results, nullptr);
    QApplication::processEvents();
    EXPECT_EQ(results->height(), 200);
    EXPECT_EQ(results->width(), window->findChild<QSOTableView*>()->width());
    auto* findings = results->findChild<QListView*>();
    findings->setCurrentIndex(findings->model()->index(findings->model()->rowCount() - 1, 0));
    EXPECT_EQ(selected(), "DL2ABC");
    EXPECT_TRUE(window->findChildren<FieldRow*>()[1]->isMarked());
    store.addRecord();
    EXPECT_EQ(testing::shownChild<CheckResultsView>(*window), nullptr);
}

TEST_F(Window, ChecksWhatStandsInAnOpenCell) {
    openLog({"CALL=DL1ABC QSO_DATE=20240101 TIME_ON=1200 BAND=20m MODE=CW"});
    show();
    for (const char* button : {"Jetzt prüfen", "Erneut prüfen"}) {
        window->table().body().startEditing({0, 0});
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("#"));
        testing::shownButton(*window, QString::fromUtf8(button))->click();
        EXPECT_EQ(cell(0, "CALL"), "#") << button;
        EXPECT_EQ(store.errorCount() + store.warningCount(), 1U) << button;
        store.undo();
        store.setShowCheckResults(true);
    }
}

TEST_F(Window, TellsAnErrorUntilItIsRead) {
    show();
    EXPECT_EQ(alert(), nullptr);
    store.setErrorMessage(QStringLiteral("first <b>line</b>\nsecond"));
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->windowTitle(), QStringLiteral("Fehler"));
    EXPECT_EQ(alert()->textFormat(), Qt::PlainText);
    EXPECT_EQ(alert()->buttons().size(), 1);
    store.setErrorMessage(QStringLiteral("newer"));
    EXPECT_EQ(alert()->text(), QStringLiteral("newer"));
    testing::shownButton(*alert(), QStringLiteral("OK"))->click();
    EXPECT_EQ(error(), "(none)");
    EXPECT_EQ(alert(), nullptr);

    store.setErrorMessage(QString(1'000'000, QLatin1Char('x')));
    EXPECT_LT(alert()->text().size(), 3000);
    QTest::keyClick(alert(), Qt::Key_Escape);
    EXPECT_EQ(error(), "(none)");
    store.setErrorMessage(QStringLiteral("again"));
    EXPECT_NE(alert(), nullptr);
    store.setErrorMessage(std::nullopt);
    EXPECT_EQ(alert(), nullptr);
}

TEST_F(Window, OpensTheSheetOfTheBulkEditForItsColumn) {
    openLog({"CALL=DL1ABC MODE=CW"});
    show();
    store.setBulkEditColumn("MODE");
    auto* sheet = window->findChild<BulkEditSheet*>();
    ASSERT_NE(sheet, nullptr);
    EXPECT_TRUE(sheet->isVisible());
    sheet->reject();
    EXPECT_EQ(store.bulkEditColumn(), std::nullopt);
    store.setBulkEditColumn("CALL");
    EXPECT_TRUE(testing::shownTexts(*window->findChildren<BulkEditSheet*>().last()).find("(CALL)") !=
                std::string::npos);
}

TEST_F(Window, OpensAnExportSheetForAsLongAsItsFlagStands) {
    store.setShowEDIExport(true);
    show();
    const auto isOpen = [&] {
        const auto sheets = window->findChildren<EDIExportSheet*>();
        return std::ranges::any_of(sheets, [](const EDIExportSheet* sheet) { return sheet->isVisible(); });
    };
    EXPECT_TRUE(isOpen());
    store.setShowEDIExport(false);
    EXPECT_FALSE(isOpen());
    store.setShowEDIExport(true);
    EXPECT_TRUE(isOpen());
    window->findChildren<EDIExportSheet*>().last()->reject();
    EXPECT_FALSE(store.showEDIExport());
}

TEST_F(Window, ComparesTheFileDroppedOnTheHalfWhereItFalls) {
    show();
    store.setMode(AppMode::compare);
    QApplication::processEvents();
    const QString path = folder.write(QStringLiteral("other.adi"), testing::adi({"CALL=DL1ABC"}));
    const auto drop = [&](int x) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter(QPoint(x, 400), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &enter);
        QDropEvent event(QPointF(x, 400), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &event);
    };
    drop(window->width() - 50);
    EXPECT_TRUE(compare.hasRightFile());
    EXPECT_EQ(compare.leftFile(), nullptr);
    compare.rightBinding(compare.rightDoc().records()[0].id(), "CALL").write("X");
    drop(window->width() - 50);
    EXPECT_NE(status().find("„other.adi“ mit ungesicherten Änderungen hat Platz gemacht."), std::string::npos)
        << status();
    drop(400);
    EXPECT_NE(compare.leftFile(), nullptr);
    EXPECT_EQ(store.fileURL(), std::nullopt);
    drop(100);
    EXPECT_TRUE(store.fileURL()) << "beside the comparison, a file becomes the open log";
    compare.setErrorMessage(QStringLiteral("Speichern fehlgeschlagen:\nVoll."));
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->windowTitle(), QStringLiteral("Fehler"));
}

TEST_F(Window, OpensTheFirstOfTheFilesDroppedAndSaysSo) {
    show();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(folder.path(QStringLiteral("missing"))),
                  QUrl::fromLocalFile(folder.write(QStringLiteral("a.adi"), testing::adi({"CALL=DL1ABC"}))),
                  QUrl::fromLocalFile(folder.write(QStringLiteral("b.adi"), ""))});
    QDragEnterEvent enter(QPoint(500, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    EXPECT_TRUE(window->findChild<DropHint*>()->isVisible());
    QDropEvent drop(QPointF(500, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
    EXPECT_FALSE(window->findChild<DropHint*>()->isVisible());
    EXPECT_EQ(title(), "a.adi");
    EXPECT_NE(status().find("Nur „a.adi“ wurde geöffnet, die erste von 2 Dateien"), std::string::npos);

    QMimeData text;
    text.setText(QStringLiteral("DL1ABC"));
    QDragEnterEvent foreign(QPoint(500, 300), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    foreign.ignore();
    QApplication::sendEvent(window.get(), &foreign);
    EXPECT_FALSE(foreign.isAccepted());
}

TEST_F(Window, SaysWhereAnExportWent) {
    openLog({"CALL=DL1ABC"});
    show();
    panels.answers = {folder.path(QStringLiteral("x.edi"))};
    store.exportEDI({});
    EXPECT_NE(status().find("1 QSO nach „x.edi“ exportiert"), std::string::npos) << status();
}

TEST_F(Window, TakesTheUserFromAQSOThatDoesNotCountToItsRow) {
    openLog({"CALL=DL1ABC BAND=2M", "CALL=DL1ABC BAND=2M", "CALL=DL2ABC BAND=2M"});
    show();
    type(2, "CALL", "DL2XYZ");
    store.setSearchText(QStringLiteral("DL2"));
    contest.setContest(Contest::generic);
    store.setMode(AppMode::contest);
    auto* figures = window->findChild<ContestView*>();
    EXPECT_TRUE(figures->isVisible());
    EXPECT_FALSE(window->table().isVisible() || window->findChild<RecordDetailView*>()->isVisible());

    EXPECT_TRUE(figures->isAncestorOf(QApplication::focusWidget())) << "and no longer in the hidden table";
    figures->findChild<FindingList*>()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(figures->isVisible());
    EXPECT_TRUE(tableHasFocus());
    EXPECT_EQ(store.selection(), LogStore::Selection{id(1)});
    EXPECT_EQ(store.searchText(), QString()) << "it hid the QSO";
}

TEST_F(Window, ShowsTheTableToWhomItsCommandsSearchOrAdd) {
    openLog({"CALL=DL1ABC"});
    show();
    select({0});
    store.setMode(AppMode::contest);
    EXPECT_FALSE(window->actions().action(CommandID::deleteSelected)->isEnabled()) << "nobody sees what goes";
    QTest::keyClick(&searchField(), Qt::Key_D);
    EXPECT_TRUE(window->table().isVisible());
    EXPECT_TRUE(window->actions().action(CommandID::deleteSelected)->isEnabled());
    store.setMode(AppMode::contest);
    window->actions().action(CommandID::addRecord)->trigger();
    EXPECT_TRUE(window->table().isVisible());
}

TEST_F(Window, BringsBackWhatWasTypedInAFieldAndNotTheLog) {
    openLog({"CALL=DL1ABC"});
    show();
    store.addRecord();
    store.undo();
    store.setMode(AppMode::contest);
    auto& field = testing::namedChild<QLineEdit>(*window, "DXCC-Gebiet");
    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("5"));
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(field.text(), QStringLiteral("287"));
    QTest::keyClick(&field, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(field.text(), QStringLiteral("2875"));
    QTest::keyClick(&field, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(store.document().records().size(), 1U) << "there is nothing to bring back in the field";
}

TEST_F(Window, LeadsTheTabKeyFromTheTableThroughFindingsAndFieldsToTheSearch) {
    openLog({"CALL=DL1ABC NAME=Anna"});
    show();
    store.runCheck();
    select({0});
    EXPECT_EQ(walk(Qt::Key_Tab, 10),
              "Befunde\n(icon)\nBefunde filtern\nErneut prüfen\nErgebnisleiste schließen\n"
              "Rufzeichen\nName\nFeld entfernen: Rufzeichen\nFeld entfernen: Name\nSuchen\n")
        << "no button that removes a field stands between two values";
    window->findChild<QSOTableView*>()->setFocus();
    EXPECT_EQ(walk(Qt::Key_F6, 3), "Ergebnisleiste schließen\nFeld entfernen: Name\nSuchen\n")
        << "in each pane to where the keyboard was last";
}

TEST_F(Window, LeadsTheTabKeyThroughAPaneThatIsMadeWhenItIsSeen) {
    openLog({"CALL=DL1ABC BAND=20m"});
    show();
    testing::shownChild<SidebarPane>(*window)->findChild<QComboBox*>()->setFocus();
    store.setMode(AppMode::stats);
    EXPECT_EQ(walk(Qt::Key_Tab, 1).substr(0, 13), "QSOs pro Band")
        << "the chart or, without one, its numbers";
    for (const AppMode mode : {AppMode::contest, AppMode::stats}) {
        store.setMode(mode);
        searchField().setFocus();
        EXPECT_EQ(walk(Qt::Key_Tab, 1), "Ansicht\n") << "and not back into the pane";
    }
}

TEST_F(Window, OpensTheMenuOfWhatHasTheKeyboardWithoutAMenuKey) {
    openLog({"CALL=DL1ABC"});
    show();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F10, Qt::ShiftModifier);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->parentWidget(), QApplication::focusWidget());
    menu->close();
}

TEST_F(Window, HearsTheKeysOfTheLogFromTheDetailPane) {
    openLog({"CALL=DL1ABC", "CALL=DL2ABC"});
    show();
    select({0});
    LogTextField& field = window->findChild<FieldRow*>()->valueField();
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_End);
    QTest::keyClicks(&field, QStringLiteral("X"));
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(cell(0, "CALL"), "DL1ABC");
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(cell(0, "CALL"), "DL1ABCX");
    QTest::keyClick(&field, Qt::Key_Home);
    QTest::keyClick(&field, Qt::Key_Delete);
    EXPECT_EQ(shown(), "L1ABCX DL2ABC") << "the key deletes a letter here, not the QSO";
}

}  // namespace
}  // namespace quillon
