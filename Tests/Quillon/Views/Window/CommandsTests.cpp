// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/Commands.h"

#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Views/Grid/InlineEditor.h"
#include "Quillon/Views/Table/QSOTableView.h"
#include "Quillon/Views/Table/TableBody.h"
#include "Quillon/Views/Table/TableHeader.h"
#include "Quillon/Views/Window/CommandActions.h"
#include "Quillon/Views/Window/ContentView.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include <map>

namespace quillon {
namespace {

using testing::LogStoreTest;

class Commands : public LogStoreTest {
  protected:
    std::string enabled() const {
        std::string titles;
        for (const Command& command : commands()) {
            if (command.isEnabled != nullptr && command.menu != CommandMenu::column &&
                window.actions().action(command.id)->isEnabled()) {
                titles += (titles.empty() ? "" : ", ") + command.plainTitle().toStdString();
            }
        }
        return titles;
    }
    QAction& action(CommandID command) const { return *window.actions().action(command); }

    CompareStore compare{settings, panels};
    ContestStore contest;
    CrossCheckStore cross{panels, fileManager};
    ContentView window{AppStores{store, compare, contest, cross}, settings, {}};
};

TEST_F(Commands, ShareNoShortcutAndNoLetterOfAMenu) {
    std::map<std::string, int> uses;
    for (const Command& command : commands()) {
        const std::string menu = quillon::title(command.menu).toStdString();
        for (const QKeySequence& shortcut : command.shortcuts) {
            const bool isForHeader =
                command.reach == ShortcutReach::focus && command.menu == CommandMenu::column;
            ++uses[(isForHeader ? "header " : "") + shortcut.toString().toStdString()];
        }
        ++uses[menu + " " + command.title.at(command.title.indexOf('&') + 1).toLower().toLatin1()];
    }
    for (const auto& [use, count] : uses) {
        EXPECT_EQ(count, 1) << use;
    }
}

TEST_F(Commands, AreTheSameInMenusAndContextMenus) {
    const auto menu = [this](CommandMenu wanted) {
        QList<QAction*> entries = window.menuBar()->actions().at(static_cast<int>(wanted))->menu()->actions();
        entries.removeIf([](const QAction* entry) { return entry->isSeparator(); });
        return entries;
    };
    QList<QAction*> column = window.table().header().actions();
    column.removeIf([](const QAction* entry) { return entry->isSeparator(); });
    EXPECT_EQ(column, menu(CommandMenu::column));
    for (QAction* entry : window.table().body().actions()) {
        EXPECT_TRUE(entry->isSeparator() || menu(CommandMenu::edit).contains(entry) ||
                    menu(CommandMenu::log).contains(entry));
    }
}

TEST_F(Commands, AnswerToTheirKeysInTheTable) {
    openLog({"CALL=DL1ABC BAND=20m", "CALL=DL2ABC BAND=40m"});
    window.show();
    window.activateWindow();
    QApplication::processEvents();
    TableBody& rows = window.table().body();
    rows.setFocus();
    const auto press = [](Qt::Key key, Qt::KeyboardModifiers keys = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, keys);
    };
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return}) {
        press(Qt::Key_Down);
        press(key);
        EXPECT_TRUE(rows.editor().isOpen());
        press(Qt::Key_Delete);
        press(Qt::Key_Return);
        EXPECT_FALSE(rows.editor().isOpen());
    }
    EXPECT_EQ(shown(), "- -") << "in the editor the key for deleting is about the text";
    press(Qt::Key_Delete);
    EXPECT_EQ(shown("BAND"), "20m");
    press(Qt::Key_Z, Qt::ControlModifier);
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(shown("BAND"), "20m");
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "<BAND:3>20m <EOR>\n");
    window.table().header().setFocus();
    press(Qt::Key_End);
    press(Qt::Key_F2);
    EXPECT_EQ(window.table().header().editor().text(), QStringLiteral("BAND"));
}

TEST_F(Commands, ChangeTheChosenColumn) {
    openLog({"CALL=DL1ABC BAND=20m"});
    EXPECT_FALSE(action(CommandID::bulkEdit).isEnabled());
    window.table().body().setCurrentCell({0, 1});
    EXPECT_FALSE(action(CommandID::moveColumnRight).isEnabled());
    action(CommandID::moveColumnLeft).trigger();
    EXPECT_EQ(columns(), "BAND CALL");
    action(CommandID::moveColumnRight).trigger();
    action(CommandID::moveColumnLeft).trigger();
    action(CommandID::duplicateColumn).trigger();
    EXPECT_EQ(columns(), "BAND BAND_2 CALL");
    action(CommandID::removeColumn).trigger();
    EXPECT_EQ(columns(), "BAND_2 CALL");
    action(CommandID::fitColumn).trigger();
    action(CommandID::bulkEdit).trigger();
    EXPECT_EQ(store.bulkEditColumn(), "BAND_2");
}

TEST_F(Commands, AreEnabledAsTheLogAllows) {
    EXPECT_EQ(enabled(), "");
    openLog({"CALL=DL1ABC", "CALL=DL2ABC"});
    EXPECT_EQ(enabled(), "Alles auswählen, Gehe zu Zeile …, Prüfen");
    select({1});
    EXPECT_EQ(enabled(), "Kopieren, Alles auswählen, Gehe zu Zeile …, Bearbeiten, QSO löschen, Prüfen");
    action(CommandID::deleteSelected).trigger();
    EXPECT_EQ(enabled(), "Rückgängig, Alles auswählen, Gehe zu Zeile …, Bearbeiten, Prüfen");
    action(CommandID::undo).trigger();
    EXPECT_EQ(enabled(), "Wiederholen, Alles auswählen, Gehe zu Zeile …, Bearbeiten, Prüfen");
    store.setSearchText(QStringLiteral("nowhere"));
    EXPECT_EQ(enabled(), "Wiederholen, Gehe zu Zeile …, Prüfen");
    action(CommandID::newLog).trigger();
    EXPECT_EQ(enabled(), "");
}

TEST_F(Commands, ActOnTheStore) {
    panels.answers = {folder.write(QStringLiteral("a.adi"), testing::adi({"CALL=DL1ABC"})),
                      folder.path(QStringLiteral("b.adi"))};
    action(CommandID::open).trigger();
    EXPECT_EQ(title(), "a.adi");
    action(CommandID::addRecord).trigger();
    EXPECT_EQ(title(), "a.adi — bearbeitet");
    action(CommandID::saveAs).trigger();
    EXPECT_EQ(title(), "b.adi");
    action(CommandID::undo).trigger();
    action(CommandID::save).trigger();
    EXPECT_EQ(folder.read(QStringLiteral("b.adi")).find("<CALL:0>"), std::string::npos);
    action(CommandID::selectAll).trigger();
    EXPECT_EQ(selected(), "DL1ABC");
    action(CommandID::check).trigger();
    EXPECT_TRUE(store.showCheckResults());
}

}  // namespace
}  // namespace quillon
