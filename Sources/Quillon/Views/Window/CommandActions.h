// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Window/Commands.h"

#include <QObject>

#include <cstddef>
#include <vector>

class QAction;
class QWidget;

namespace quillon {

/// The commands as actions of one window, enabled as the state of its store and its table allows.
class CommandActions : public QObject {
    Q_OBJECT

  public:
    /// The window has its table by now.
    explicit CommandActions(ContentView& contentView);

    QAction* action(CommandID id) const { return actions[static_cast<std::size_t>(id)]; }

    /// Gives `place`, a menu or what opens its own actions as one, the commands of `menu` in their groups.
    void addMenu(CommandMenu menu, QWidget& place);
    /// The same with the commands for the rows of the table.
    void addRowMenu(QWidget& rows);

    /// Gives the commands of a menu their icons, which are looked for when the menu opens: that takes a while
    /// for all of them together. Those in the tool bar have theirs already.
    void showIcons(CommandMenu menu);

    /// Looks anew at what is possible. Called by itself when the store or the table changes.
    void refresh();

  private:
    void addSeparator(QWidget& place);
    void showIcon(const Command& command);

    ContentView& window;
    std::vector<QAction*> actions;  ///< By `CommandID`.
};

}  // namespace quillon
