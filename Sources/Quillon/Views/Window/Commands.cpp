#include "Quillon/Views/Window/Commands.h"

#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Window/ContentView.h"

#include <QAction>

namespace quillon {

namespace {

bool hasSelection(const LogStore& store) {
    return !store.selection().empty();
}
bool hasRecords(const LogStore& store) {
    return !store.document().records().empty();
}
bool hasRows(const LogStore& store) {
    return store.displayedCount() > 0;
}

std::vector<Command> makeCommands() {
    return {
        {.id = CommandID::newLog,
         .menu = CommandMenu::file,
         .title = QStringLiteral("&Neues Logbuch"),
         .iconName = QStringLiteral("document-new"),
         .shortcut = Qt::CTRL | Qt::Key_N,
         .run = [](ContentView& window) { window.newLog(); }},
        {.id = CommandID::open,
         .menu = CommandMenu::file,
         .title = QStringLiteral("Ö&ffnen…"),
         .toolBarTitle = QStringLiteral("Öffnen"),
         .iconName = QStringLiteral("document-open"),
         .shortcut = Qt::CTRL | Qt::Key_O,
         .run = [](ContentView& window) { window.openWithPanel(); }},
        {.id = CommandID::save,
         .menu = CommandMenu::file,
         .title = QStringLiteral("&Speichern"),
         .toolBarTitle = QStringLiteral("Speichern"),
         .iconName = QStringLiteral("document-save"),
         .shortcut = Qt::CTRL | Qt::Key_S,
         .startsGroup = true,
         .run =
             [](ContentView& window) {
                 showBusyCursorUntilIdle();
                 window.store().save();
             }},
        {.id = CommandID::saveAs,
         .menu = CommandMenu::file,
         .title = QStringLiteral("Speichern &unter…"),
         .iconName = QStringLiteral("document-save-as"),
         .shortcut = Qt::CTRL | Qt::SHIFT | Qt::Key_S,
         .run = [](ContentView& window) { window.store().saveWithPanel(); }},
        {.id = CommandID::quit,
         .menu = CommandMenu::file,
         .title = QStringLiteral("&Beenden"),
         .iconName = QStringLiteral("application-exit"),
         .shortcut = Qt::CTRL | Qt::Key_Q,
         .startsGroup = true,
         .run = [](ContentView& window) { window.close(); }},
        {.id = CommandID::undo,
         .menu = CommandMenu::edit,
         .title = QStringLiteral("&Rückgängig"),
         .iconName = QStringLiteral("edit-undo"),
         .shortcut = Qt::CTRL | Qt::Key_Z,
         .run = [](ContentView& window) { window.store().undo(); },
         .isEnabled = [](const LogStore& store) { return store.canUndo(); }},
        {.id = CommandID::redo,
         .menu = CommandMenu::edit,
         .title = QStringLiteral("&Wiederholen"),
         .iconName = QStringLiteral("edit-redo"),
         .shortcut = Qt::CTRL | Qt::SHIFT | Qt::Key_Z,
         .run = [](ContentView& window) { window.store().redo(); },
         .isEnabled = [](const LogStore& store) { return store.canRedo(); }},
        {.id = CommandID::copy,
         .menu = CommandMenu::edit,
         .title = QStringLiteral("&Kopieren"),
         .iconName = QStringLiteral("edit-copy"),
         .shortcut = Qt::CTRL | Qt::Key_C,
         .startsGroup = true,
         .run = [](ContentView& window) { window.copySelection(); },
         .isEnabled = hasSelection},
        {.id = CommandID::selectAll,
         .menu = CommandMenu::edit,
         .title = QStringLiteral("&Alles auswählen"),
         .iconName = QStringLiteral("edit-select-all"),
         .shortcut = Qt::CTRL | Qt::Key_A,
         .run = [](ContentView& window) { window.store().selectAllDisplayed(); },
         .isEnabled = hasRows},
        {.id = CommandID::find,
         .menu = CommandMenu::edit,
         .title = QStringLiteral("&Suchen"),
         .iconName = QStringLiteral("edit-find"),
         .shortcut = Qt::CTRL | Qt::Key_F,
         .startsGroup = true,
         .run = [](ContentView& window) { window.focusSearch(); }},
        {.id = CommandID::addRecord,
         .menu = CommandMenu::log,
         .title = QStringLiteral("QSO &hinzufügen"),
         .toolBarTitle = QStringLiteral("QSO hinzufügen"),
         .iconName = QStringLiteral("list-add"),
         .shortcut = Qt::CTRL | Qt::SHIFT | Qt::Key_N,
         .startsToolBarGroup = true,
         .run = [](ContentView& window) { window.addRecord(); }},
        {.id = CommandID::deleteSelected,
         .menu = CommandMenu::log,
         .title = QStringLiteral("QSO &löschen"),
         .toolBarTitle = QStringLiteral("QSO löschen"),
         .iconName = QStringLiteral("edit-delete"),
         .shortcut = Qt::Key_Delete,
         .reach = ShortcutReach::table,
         .run = [](ContentView& window) { window.store().deleteSelected(); },
         .isEnabled = hasSelection},
        {.id = CommandID::check,
         .menu = CommandMenu::log,
         .title = QStringLiteral("&Prüfen"),
         .toolBarTitle = QStringLiteral("Prüfen"),
         .iconName = QStringLiteral(":/Icons/check.svg"),
         .shortcut = Qt::Key_F7,
         .toolTip = QStringLiteral("Auf Pflichtfelder, Formatfehler und Dubletten prüfen"),
         .startsGroup = true,
         .startsToolBarGroup = true,
         .run =
             [](ContentView& window) {
                 showBusyCursorUntilIdle();
                 window.store().runCheck();
             },
         .isEnabled = hasRecords},
        {.id = CommandID::fullScreen,
         .menu = CommandMenu::view,
         .title = QStringLiteral("&Vollbild"),
         .iconName = QStringLiteral("view-fullscreen"),
         .shortcut = Qt::Key_F11,
         .run = [](ContentView& window) { window.toggleFullScreen(); }},
        {.id = CommandID::about,
         .menu = CommandMenu::help,
         .title = QStringLiteral("&Über Quillon"),
         .iconName = QStringLiteral("help-about"),
         .run = [](ContentView& window) { window.showAbout(); }},
    };
}

QString toolTipWithShortcut(const Command& command) {
    QString text = command.plainTitle().remove(QChar(u'…'));
    if (!command.shortcut.isEmpty()) {
        text += QStringLiteral(" (") + command.shortcut.toString(QKeySequence::NativeText) + QLatin1Char(')');
    }
    return text;
}

}  // namespace

QString title(CommandMenu menu) {
    switch (menu) {
        case CommandMenu::file:
            return QStringLiteral("&Datei");
        case CommandMenu::edit:
            return QStringLiteral("&Bearbeiten");
        case CommandMenu::log:
            return QStringLiteral("&Logbuch");
        case CommandMenu::view:
            return QStringLiteral("&Ansicht");
        case CommandMenu::help:
            return QStringLiteral("&Hilfe");
    }
    return {};
}

QString Command::plainTitle() const {
    return QString(title).remove(QLatin1Char('&'));
}

const std::vector<Command>& commands() {
    static const std::vector<Command> all = makeCommands();
    return all;
}

CommandActions::CommandActions(ContentView& contentView) : QObject(&contentView), window(contentView) {
    actions.resize(commands().size());
    for (const Command& command : commands()) {
        auto* action = new QAction(command.title, this);
        action->setIconText(command.toolBarTitle.isEmpty() ? command.plainTitle() : command.toolBarTitle);
        action->setToolTip(command.toolTip.isEmpty() ? toolTipWithShortcut(command) : command.toolTip);
        action->setShortcut(command.shortcut);
        if (command.reach == ShortcutReach::table) {
            action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        }
        connect(action, &QAction::triggered, this, [this, run = command.run] {
            window.commitEditing();
            run(window);
        });
        actions[static_cast<std::size_t>(command.id)] = action;
        if (!command.toolBarTitle.isEmpty()) {
            showIcon(command);
        }
    }
    LogStore& store = window.store();
    connect(&store, &LogStore::historyChanged, this, &CommandActions::refresh);
    connect(&store, &LogStore::documentChanged, this, &CommandActions::refresh);
    connect(&store, &LogStore::displayedRecordsChanged, this, &CommandActions::refresh);
    connect(&store, &LogStore::selectionChanged, this, &CommandActions::refresh);
    refresh();
}

void CommandActions::showIcons(CommandMenu menu) {
    for (const Command& command : commands()) {
        if (command.menu == menu && action(command.id)->icon().isNull()) {
            showIcon(command);
        }
    }
}

void CommandActions::showIcon(const Command& command) {
    action(command.id)->setIcon(icon(command.iconName));
}

void CommandActions::refresh() {
    for (const Command& command : commands()) {
        if (command.isEnabled != nullptr) {
            action(command.id)->setEnabled(command.isEnabled(window.store()));
        }
    }
}

}  // namespace quillon
