#pragma once

#include <QKeySequence>
#include <QObject>
#include <QString>

#include <array>
#include <cstddef>
#include <vector>

class QAction;

namespace quillon {

class ContentView;
class LogStore;

enum class CommandMenu { file, edit, log, view, help };

inline constexpr std::array allCommandMenus = {CommandMenu::file, CommandMenu::edit, CommandMenu::log,
                                               CommandMenu::view, CommandMenu::help};

/// The title in the menu bar, with "&" in front of the letter that opens it.
QString title(CommandMenu menu);

enum class CommandID {
    newLog,
    open,
    save,
    saveAs,
    quit,
    undo,
    redo,
    copy,
    selectAll,
    find,
    addRecord,
    deleteSelected,
    check,
    fullScreen,
    about,
};

/// Where the shortcut of a command works.
enum class ShortcutReach {
    window,  ///< Wherever the focus is.
    table,   ///< While the table has the focus: the key means something else in a text.
};

/// A command of the program: what menu, tool bar, shortcut and test know of it.
struct Command {
    CommandID id = CommandID::newLog;
    CommandMenu menu = CommandMenu::file;
    QString title = {};         ///< In the menu, with "&" in front of the letter that picks it.
    QString toolBarTitle = {};  ///< Empty if the tool bar does not offer the command.
    QString iconName = {};      ///< Empty if it has none.
    QKeySequence shortcut = {};
    ShortcutReach reach = ShortcutReach::window;
    QString toolTip = {};             ///< Empty for the title and the shortcut.
    bool startsGroup = false;         ///< In the menu a divider stands in front of it.
    bool startsToolBarGroup = false;  ///< In the tool bar a divider stands in front of it.
    void (*run)(ContentView& window) = nullptr;
    bool (*isEnabled)(const LogStore& store) = nullptr;  ///< Null if it always is.

    /// The title as it is read, without "&".
    QString plainTitle() const;
};

/// All commands, in the order of the menus.
const std::vector<Command>& commands();

/// The commands as actions of one window, enabled as the state of its store allows.
class CommandActions : public QObject {
    Q_OBJECT

  public:
    explicit CommandActions(ContentView& contentView);

    QAction* action(CommandID id) const { return actions[static_cast<std::size_t>(id)]; }

    /// Gives the commands of a menu their icons, which are looked for when the menu opens: that takes a while
    /// for all of them together. Those in the tool bar have theirs already.
    void showIcons(CommandMenu menu);

  private:
    void showIcon(const Command& command);
    void refresh();

    ContentView& window;
    std::vector<QAction*> actions;  ///< By `CommandID`.
};

}  // namespace quillon
