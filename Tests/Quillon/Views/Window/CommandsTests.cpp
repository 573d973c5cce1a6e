#include "Quillon/Views/Window/Commands.h"

#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Views/Window/ContentView.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace quillon {
namespace {

using testing::LogStoreTest;

class Commands : public LogStoreTest {
  protected:
    std::string enabled() const {
        std::string titles;
        for (const Command& command : commands()) {
            if (command.isEnabled != nullptr && window.actions().action(command.id)->isEnabled()) {
                titles += (titles.empty() ? "" : ", ") + command.plainTitle().toStdString();
            }
        }
        return titles;
    }
    QAction& action(CommandID command) const { return *window.actions().action(command); }

    ContentView window{store, settings, {}};
};

TEST_F(Commands, StandInTheMenusWithTheirShortcuts) {
    std::string menus;
    for (const QAction* menu : window.menuBar()->actions()) {
        menus += menu->text().remove('&').toStdString() + ":";
        for (const QAction* entry : menu->menu()->actions()) {
            menus += entry->isSeparator()
                         ? " |"
                         : " [" + entry->text().remove('&').toStdString() + " " +
                               entry->shortcut().toString(QKeySequence::PortableText).toStdString() + "]";
        }
        menus += "\n";
    }
    EXPECT_EQ(
        menus,
        "Datei: [Neues Logbuch Ctrl+N] [Öffnen… Ctrl+O] | [Speichern Ctrl+S] [Speichern unter… Ctrl+Shift+S]"
        " | [Beenden Ctrl+Q]\n"
        "Bearbeiten: [Rückgängig Ctrl+Z] [Wiederholen Ctrl+Shift+Z] | [Kopieren Ctrl+C]"
        " [Alles auswählen Ctrl+A] | [Suchen Ctrl+F]\n"
        "Logbuch: [QSO hinzufügen Ctrl+Shift+N] [QSO löschen Del] | [Prüfen F7]\n"
        "Ansicht: [Vollbild F11]\n"
        "Hilfe: [Über Quillon ]\n");
}

TEST_F(Commands, StandInTheToolBarInGroups) {
    std::string titles;
    for (const QAction* entry : window.findChild<QToolBar*>()->actions()) {
        titles += entry->isSeparator() ? "|" : "[" + entry->iconText().toStdString() + "]";
    }
    EXPECT_EQ(titles, "[Öffnen][Speichern]|[QSO hinzufügen][QSO löschen]|[Prüfen][][][]");
    EXPECT_EQ(action(CommandID::check).toolTip().toStdString(),
              "Auf Pflichtfelder, Formatfehler und Dubletten prüfen");
    EXPECT_EQ(action(CommandID::open).toolTip().toStdString(), "Öffnen (Ctrl+O)");
}

TEST_F(Commands, AreEnabledAsTheLogAllows) {
    EXPECT_EQ(enabled(), "");
    openLog({"CALL=DL1ABC", "CALL=DL2ABC"});
    EXPECT_EQ(enabled(), "Alles auswählen, Prüfen");
    select({1});
    EXPECT_EQ(enabled(), "Kopieren, Alles auswählen, QSO löschen, Prüfen");
    action(CommandID::deleteSelected).trigger();
    EXPECT_EQ(enabled(), "Rückgängig, Alles auswählen, Prüfen");
    action(CommandID::undo).trigger();
    EXPECT_EQ(enabled(), "Wiederholen, Alles auswählen, Prüfen");
    store.setSearchText(QStringLiteral("nowhere"));
    EXPECT_EQ(enabled(), "Wiederholen, Prüfen");
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
