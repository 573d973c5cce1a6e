// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/CommandActions.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Table/QSOTableView.h"
#include "Quillon/Views/Window/ContentView.h"

#include <QAction>
#include <QWidget>

namespace quillon {
namespace {

QString toolTipWithShortcut(const Command& command) {
    QString text = command.plainTitle().remove(QChar(u'…'));
    if (!command.shortcuts.isEmpty()) {
        text += QStringLiteral(" (") + command.shortcuts.first().toString(QKeySequence::NativeText) +
                QLatin1Char(')');
    }
    return text;
}

}  // namespace

CommandActions::CommandActions(ContentView& contentView) : QObject(&contentView), window(contentView) {
    actions.resize(commands().size());
    for (const Command& command : commands()) {
        auto* action = new QAction(command.title, this);
        action->setIconText(command.toolBarTitle.isEmpty() ? command.plainTitle() : command.toolBarTitle);
        action->setToolTip(command.toolTip.isEmpty() ? toolTipWithShortcut(command) : command.toolTip);
        action->setShortcuts(command.shortcuts);
        if (command.reach == ShortcutReach::focus) {
            action->setShortcutContext(Qt::WidgetShortcut);
        }
        connect(action, &QAction::triggered, this, [this, &command] {
            window.commitEditing();
            if (command.table == TableUse::shows) {
                window.showTable();
            }
            command.run(window);
        });
        actions[static_cast<std::size_t>(command.id)] = action;
        if (!command.toolBarTitle.isEmpty()) {
            showIcon(command);
        }
    }
    LogStore& store = window.store();
    connect(&store, &LogStore::modeChanged, this, &CommandActions::refresh);
    connect(&store, &LogStore::historyChanged, this, &CommandActions::refresh);
    connect(&store, &LogStore::documentChanged, this, &CommandActions::refresh);
    connect(&store, &LogStore::readingReportChanged, this, &CommandActions::refresh);
    connect(&store, &LogStore::displayedRecordsChanged, this, &CommandActions::refresh);
    connect(&store, &LogStore::selectionChanged, this, &CommandActions::refresh);
    connect(&window.table(), &QSOTableView::currentCellChanged, this, &CommandActions::refresh);
    refresh();
}

void CommandActions::addMenu(CommandMenu menu, QWidget& place) {
    for (const Command& command : commands()) {
        if (command.menu == menu) {
            if (command.startsGroup) {
                addSeparator(place);
            }
            place.addAction(action(command.id));
        }
    }
}

void CommandActions::addRowMenu(QWidget& rows) {
    for (const CommandID id : {CommandID::editCell, CommandID::copy, CommandID::paste}) {
        rows.addAction(action(id));
    }
    addSeparator(rows);
    rows.addAction(action(CommandID::deleteSelected));
}

void CommandActions::showIcons(CommandMenu menu) {
    for (const Command& command : commands()) {
        if (command.menu == menu && action(command.id)->icon().isNull()) {
            showIcon(command);
        }
    }
}

void CommandActions::addSeparator(QWidget& place) {
    auto* separator = new QAction(this);
    separator->setSeparator(true);
    place.addAction(separator);
}

void CommandActions::showIcon(const Command& command) {
    action(command.id)->setIcon(icon(command.iconName));
}

void CommandActions::refresh() {
    for (const Command& command : commands()) {
        const bool isSeen = command.table != TableUse::needs || window.isTableShown();
        const bool isPossible = command.isEnabled == nullptr || command.isEnabled(window);
        action(command.id)->setEnabled(isSeen && isPossible);
    }
}

}  // namespace quillon
