// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Help/HandbookWindow.h"
#include "Quillon/Views/Window/AboutBox.h"
#include "Quillon/Views/Window/CommandActions.h"
#include "Quillon/Views/Window/ContentView.h"
#include "Quillon/Views/Window/ShortcutList.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>
#include <QWhatsThis>

#include <algorithm>

namespace quillon {
namespace {

class Help : public testing::LogStoreTest {
  protected:
    ~Help() override { QWhatsThis::leaveWhatsThisMode(); }

    void trigger(CommandID command) { window.actions().action(command)->trigger(); }
    static HandbookWindow* handbook() {
        HandbookWindow* found = nullptr;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* const candidate = qobject_cast<HandbookWindow*>(widget);
            EXPECT_TRUE(candidate == nullptr || found == nullptr) << "there is one such window";
            found = candidate != nullptr ? candidate : found;
        }
        return found;
    }
    /// The chapter at which the command opens the handbook.
    std::string chapterFor(CommandID command = CommandID::handbook) {
        trigger(command);
        return handbook()->findChild<QTreeWidget*>()->currentItem()->text(0).toStdString();
    }
    std::string chapterFor(AppMode mode) {
        store.setMode(mode);
        return chapterFor();
    }

    CompareStore compare{settings, panels};
    ContestStore contest;
    CrossCheckStore cross{panels, fileManager};
    ContentView window{AppStores{store, compare, contest, cross}, settings, {}};
};

TEST_F(Help, OpensTheHandbookWhereTheUserIs) {
    EXPECT_EQ(handbook(), nullptr) << "nothing is made before it is wanted";
    EXPECT_EQ(chapterFor(), "Öffnen");
    openLog({"CALL=DL1ABC"});
    EXPECT_EQ(chapterFor(), "Bearbeiten");
    store.runCheck();
    EXPECT_EQ(chapterFor(), "Prüfen");
    EXPECT_EQ(chapterFor(AppMode::compare), "Zwei Logs vergleichen");
    EXPECT_EQ(chapterFor(AppMode::stats), "Statistik");
    EXPECT_EQ(chapterFor(AppMode::contest), "Contest werten");
    contest.setPane(ContestStore::Pane::crossCheck);
    EXPECT_EQ(chapterFor(), "Viele Logs gegeneinander prüfen");
    EXPECT_EQ(chapterFor(AppMode::outdoor), "Outdoor-Programme");
    EXPECT_EQ(chapterFor(CommandID::shortcuts), "Tastenkürzel");
}

TEST_F(Help, ListsTheKeysOfTheCommandsAsTheyAre) {
    const std::string chapter = shortcutChapter().toStdString();
    for (const char* line :
         {"| Datei | Öffnen… | Ctrl+O |\n", "| Bearbeiten | Wiederholen | Ctrl+Shift+Z oder Ctrl+Y |\n",
          "| Logbuch | QSO löschen | Del (in der Tabelle) |\n",
          "| Spalte | Umbenennen | F2 (im Spaltenkopf) |\n", "| Hilfe | Handbuch | F1 |\n"}) {
        EXPECT_NE(chapter.find(line), std::string::npos) << line << "in" << chapter;
    }
}

TEST_F(Help, AnswersWithTheKeyWhereTheKeyboardIs) {
    QSignalSpy cameUp(&window, &ContentView::cameUp);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(cameUp.wait());
    auto& field = testing::namedChild<QLineEdit>(window, "ADIF-Version");
    field.setFocus();
    trigger(CommandID::explain);
    EXPECT_TRUE(QWhatsThis::inWhatsThisMode()) << "chosen in the menu it lets the user point";
    QWhatsThis::leaveWhatsThisMode();
    QTest::keyPress(window.windowHandle(), Qt::Key_Shift, Qt::ShiftModifier);
    QTest::keyClick(window.windowHandle(), Qt::Key_F1, Qt::ShiftModifier);
    QTest::keyRelease(window.windowHandle(), Qt::Key_Shift);
    EXPECT_FALSE(QWhatsThis::inWhatsThisMode());
    const auto widgets = QApplication::topLevelWidgets();
    EXPECT_TRUE(std::ranges::any_of(widgets, [](const QWidget* widget) {
        return widget->isVisible() && widget->inherits("QWhatsThat");
    }));
    QWhatsThis::hideText();
}

TEST_F(Help, TellsOfVersionLibrariesAndLicence) {
    trigger(CommandID::about);
    auto& box = *window.findChild<AboutBox*>();
    EXPECT_NE(testing::shownTexts(box).find("GNU General Public License, Version 3"), std::string::npos);
    const auto& list = *box.findChild<QTreeWidget*>();
    EXPECT_EQ(list.topLevelItem(0)->text(1), QString::fromLatin1(qVersion()));
    for (int row = 0; row < list.topLevelItemCount(); ++row) {
        EXPECT_FALSE(list.topLevelItem(row)->text(2).isEmpty()) << row;
    }
    testing::shownButton(box, QStringLiteral("&Lizenz …"))->click();
    EXPECT_TRUE(box.findChild<QPlainTextEdit*>()->toPlainText().contains(
        QStringLiteral("END OF TERMS AND CONDITIONS")));
    testing::shownButton(box, QStringLiteral("&Handbuch"))->click();
    EXPECT_TRUE(handbook()->isVisible());
}

}  // namespace
}  // namespace quillon
