// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>

#include <array>
#include <functional>
#include <vector>

namespace quillon {

class ContentView;

enum class CommandMenu { file, edit, log, column, view, help };

inline constexpr std::array allCommandMenus = {CommandMenu::file,   CommandMenu::edit, CommandMenu::log,
                                               CommandMenu::column, CommandMenu::view, CommandMenu::help};

/// The title in the menu bar, with "&" in front of the letter that opens it.
QString title(CommandMenu menu);

enum class CommandID {
    newLog,
    open,
    save,
    saveAs,
    keptLogs,
    quit,
    undo,
    redo,
    copy,
    paste,
    selectAll,
    find,
    goToRow,
    editCell,
    addRecord,
    deleteSelected,
    check,
    readingNotes,
    renameColumn,
    duplicateColumn,
    fitColumn,
    fitColumns,
    bulkEdit,
    moveColumnLeft,
    moveColumnRight,
    removeColumn,
    fullScreen,
    handbook,
    explain,
    shortcuts,
    about,
    checkForUpdates,
};

/// Where the shortcut of a command works.
enum class ShortcutReach {
    window,  ///< Wherever the focus is.
    focus,   ///< While the part of the table that the command is about has the focus: elsewhere the key means
             ///< something else.
};

/// What a command has to do with the table.
enum class TableUse {
    none,   ///< It does without.
    shows,  ///< It brings the table into the work area first: what it does is seen there.
    needs,  ///< It is about what is chosen in the table, and off while that is not seen.
};

/// A command of the program: what menu, tool bar, shortcut and test know of it.
struct Command {
    CommandID id = CommandID::newLog;
    CommandMenu menu = CommandMenu::file;
    QString title = {};                  ///< In the menu, with "&" in front of the letter that picks it.
    QString toolBarTitle = {};           ///< Empty if the tool bar does not offer the command.
    QString iconName = {};               ///< Empty if it has none.
    QList<QKeySequence> shortcuts = {};  ///< The first is the one that is shown.
    ShortcutReach reach = ShortcutReach::window;
    TableUse table = TableUse::none;
    QString toolTip = {};             ///< Empty for the title and the shortcut.
    bool startsGroup = false;         ///< In the menu a divider stands in front of it.
    bool startsToolBarGroup = false;  ///< In the tool bar a divider stands in front of it.
    std::function<void(ContentView& window)> run = {};
    bool (*isEnabled)(const ContentView& window) =
        nullptr;  ///< Null if the state of the log allows it always.

    /// The title as it is read, without "&".
    QString plainTitle() const;
};

/// All commands, in the order of the menus.
const std::vector<Command>& commands();

}  // namespace quillon
