// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/Commands.h"

#include "Quillon/Platform/AppInfo.h"
#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Table/QSOTableView.h"
#include "Quillon/Views/Window/ContentView.h"
#include "Quillon/Views/Window/HelpDesk.h"

#include <algorithm>

namespace quillon {

namespace {

bool hasSelection(const ContentView& window) {
    return !window.store().selection().empty();
}
bool hasRecords(const ContentView& window) {
    return !window.store().document().records().empty();
}
bool hasRows(const ContentView& window) {
    return window.store().displayedCount() > 0;
}
bool hasColumn(const ContentView& window) {
    return window.table().chosenColumn().has_value();
}
/// Whether the chosen column has another `offset` places further on.
template <int offset>
bool hasNeighbour(const ContentView& window) {
    const LogStore::Columns& columns = window.store().columns();
    const auto chosen = window.table().chosenColumn();
    const auto end = offset < 0 ? columns.begin() : columns.end() - 1;
    return chosen && std::ranges::find(columns, *chosen) != end;
}

/// What does this to the chosen column.
std::function<void(ContentView&)> onColumn(void (*change)(LogStore& store, const std::string& column)) {
    return [change](ContentView& window) {
        if (const auto column = window.table().chosenColumn()) {
            change(window.store(), *column);
        }
    };
}

std::vector<Command> makeCommands() {
    return {
        {.id = CommandID::newLog,
         .menu = CommandMenu::file,
         .title = QStringLiteral("&Neues Logbuch"),
         .iconName = QStringLiteral("document-new"),
         .shortcuts = {Qt::CTRL | Qt::Key_N},
         .run = [](ContentView& window) { window.newLog(); }},
        {.id = CommandID::open,
         .menu = CommandMenu::file,
         .title = QStringLiteral("Ö&ffnen…"),
         .toolBarTitle = QStringLiteral("Öffnen"),
         .iconName = QStringLiteral("document-open"),
         .shortcuts = {Qt::CTRL | Qt::Key_O},
         .run = [](ContentView& window) { window.openWithPanel(); }},
        {.id = CommandID::save,
         .menu = CommandMenu::file,
         .title = QStringLiteral("&Speichern"),
         .toolBarTitle = QStringLiteral("Speichern"),
         .iconName = QStringLiteral("document-save"),
         .shortcuts = {Qt::CTRL | Qt::Key_S},
         .startsGroup = true,
         .run = [](ContentView& window) { window.save(); }},
        {.id = CommandID::saveAs,
         .menu = CommandMenu::file,
         .title = QStringLiteral("Speichern &unter…"),
         .iconName = QStringLiteral("document-save-as"),
         .shortcuts = {Qt::CTRL | Qt::SHIFT | Qt::Key_S},
         .run = [](ContentView& window) { window.store().saveWithPanel(); }},
        {.id = CommandID::keptLogs,
         .menu = CommandMenu::file,
         .title = QStringLiteral("&Aufgehobene Logbücher …"),
         .iconName = QStringLiteral("document-open-recent"),
         .startsGroup = true,
         .run = [](ContentView& window) { window.showKeptLogs(); },
         .isEnabled = [](const ContentView& window) { return window.keepsLogs(); }},
        {.id = CommandID::quit,
         .menu = CommandMenu::file,
         .title = QStringLiteral("&Beenden"),
         .iconName = QStringLiteral("application-exit"),
         .shortcuts = {Qt::CTRL | Qt::Key_Q},
         .startsGroup = true,
         .run = [](ContentView& window) { window.close(); }},
        {.id = CommandID::undo,
         .menu = CommandMenu::edit,
         .title = QStringLiteral("&Rückgängig"),
         .iconName = QStringLiteral("edit-undo"),
         .shortcuts = {Qt::CTRL | Qt::Key_Z},
         // Elsewhere what is shown tells of the step by itself.
         .run =
             [](ContentView& window) {
                 window.isTableShown() ? window.table().undo() : window.store().undo();
             },
         .isEnabled = [](const ContentView& window) { return window.store().canUndo(); }},
        {.id = CommandID::redo,
         .menu = CommandMenu::edit,
         .title = QStringLiteral("&Wiederholen"),
         .iconName = QStringLiteral("edit-redo"),
         .shortcuts = {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y},
         .run =
             [](ContentView& window) {
                 window.isTableShown() ? window.table().redo() : window.store().redo();
             },
         .isEnabled = [](const ContentView& window) { return window.store().canRedo(); }},
        {.id = CommandID::copy,
         .menu = CommandMenu::edit,
         .title = QStringLiteral("&Kopieren"),
         .iconName = QStringLiteral("edit-copy"),
         .shortcuts = {Qt::CTRL | Qt::Key_C},
         .table = TableUse::needs,
         .startsGroup = true,
         .run = [](ContentView& window) { window.table().copySelection(); },
         .isEnabled = hasSelection},
        {.id = CommandID::paste,
         .menu = CommandMenu::edit,
         .title = QStringLiteral("&Einfügen"),
         .iconName = QStringLiteral("edit-paste"),
         .shortcuts = {Qt::CTRL | Qt::Key_V},
         .table = TableUse::shows,
         .run = [](ContentView& window) { window.table().pasteRecords(); }},
        {.id = CommandID::selectAll,
         .menu = CommandMenu::edit,
         .title = QStringLiteral("&Alles auswählen"),
         .iconName = QStringLiteral("edit-select-all"),
         .shortcuts = {Qt::CTRL | Qt::Key_A},
         .table = TableUse::needs,
         .run = [](ContentView& window) { window.store().selectAllDisplayed(); },
         .isEnabled = hasRows},
        {.id = CommandID::find,
         .menu = CommandMenu::edit,
         .title = QStringLiteral("&Suchen"),
         .iconName = QStringLiteral("edit-find"),
         .shortcuts = {Qt::CTRL | Qt::Key_F},
         .startsGroup = true,
         .run = [](ContentView& window) { window.focusSearch(); }},
        {.id = CommandID::goToRow,
         .menu = CommandMenu::edit,
         .title = QStringLiteral("&Gehe zu Zeile …"),
         .iconName = QStringLiteral("go-jump"),
         .shortcuts = {Qt::CTRL | Qt::Key_G},
         .table = TableUse::shows,
         .run = [](ContentView& window) { window.table().goToRow(); },
         .isEnabled = hasRecords},
        {.id = CommandID::editCell,
         .menu = CommandMenu::log,
         .title = QStringLiteral("&Bearbeiten"),
         .iconName = QStringLiteral("document-edit"),
         .shortcuts = {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter},
         .reach = ShortcutReach::focus,
         .table = TableUse::needs,
         .run = [](ContentView& window) { window.table().editCell(); },
         .isEnabled = [](const ContentView& window) { return window.table().hasFramedCell(); }},
        {.id = CommandID::addRecord,
         .menu = CommandMenu::log,
         .title = QStringLiteral("QSO &hinzufügen"),
         .toolBarTitle = QStringLiteral("QSO hinzufügen"),
         .iconName = QStringLiteral("list-add"),
         .shortcuts = {Qt::CTRL | Qt::SHIFT | Qt::Key_N},
         .table = TableUse::shows,
         .startsToolBarGroup = true,
         .run = [](ContentView& window) { window.table().addRecord(); }},
        {.id = CommandID::deleteSelected,
         .menu = CommandMenu::log,
         .title = QStringLiteral("QSO &löschen"),
         .toolBarTitle = QStringLiteral("QSO löschen"),
         .iconName = QStringLiteral("edit-delete"),
         .shortcuts = {Qt::Key_Delete},
         .reach = ShortcutReach::focus,
         .table = TableUse::needs,
         .run = [](ContentView& window) { window.table().deleteSelected(); },
         .isEnabled = hasSelection},
        {.id = CommandID::check,
         .menu = CommandMenu::log,
         .title = QStringLiteral("&Prüfen"),
         .toolBarTitle = QStringLiteral("Prüfen"),
         .iconName = QStringLiteral(":/Icons/check.svg"),
         .shortcuts = {Qt::Key_F7},
         .table = TableUse::shows,
         .toolTip = QStringLiteral("Auf Pflichtfelder, Formatfehler und Dubletten prüfen"),
         .startsGroup = true,
         .startsToolBarGroup = true,
         .run =
             [](ContentView& window) {
                 showBusyCursorUntilIdle();
                 window.store().runCheck();
             },
         .isEnabled = hasRecords},
        {.id = CommandID::readingNotes,
         .menu = CommandMenu::log,
         .title = QStringLiteral("L&esebericht"),
         .iconName = QStringLiteral("documentinfo"),
         .shortcuts = {Qt::SHIFT | Qt::Key_F7},
         .table = TableUse::shows,
         .toolTip = QStringLiteral("Was von der Datei nicht oder nicht sicher richtig gelesen wurde"),
         .run = [](ContentView& window) { window.showReadingNotes(); },
         .isEnabled = [](const ContentView& window) { return !window.store().readingReport().isEmpty(); }},
        {.id = CommandID::renameColumn,
         .menu = CommandMenu::column,
         .title = QStringLiteral("&Umbenennen"),
         .iconName = QStringLiteral("edit-rename"),
         .shortcuts = {Qt::Key_F2},
         .reach = ShortcutReach::focus,
         .table = TableUse::needs,
         .run = [](ContentView& window) { window.table().renameColumn(); },
         .isEnabled = hasColumn},
        {.id = CommandID::duplicateColumn,
         .menu = CommandMenu::column,
         .title = QStringLiteral("Spalte &duplizieren"),
         .iconName = QStringLiteral("edit-duplicate"),
         .table = TableUse::needs,
         .run = onColumn([](LogStore& store, const std::string& column) { store.duplicateColumn(column); }),
         .isEnabled = hasColumn},
        {.id = CommandID::fitColumn,
         .menu = CommandMenu::column,
         .title = QStringLiteral("&Breite an Inhalt anpassen"),
         .iconName = QStringLiteral("resizecol"),
         .table = TableUse::needs,
         .run = onColumn([](LogStore& store, const std::string& column) { store.autoFitColumns({column}); }),
         .isEnabled = hasColumn},
        {.id = CommandID::fitColumns,
         .menu = CommandMenu::column,
         .title = QStringLiteral("&Alle Spalten an Inhalt anpassen"),
         .iconName = QStringLiteral("zoom-fit-width"),
         .table = TableUse::needs,
         .run = [](ContentView& window) { window.store().autoFitColumns(); }},
        {.id = CommandID::bulkEdit,
         .menu = CommandMenu::column,
         .title = QStringLiteral("Alle &Werte ändern …"),
         .iconName = QStringLiteral("tools-wizard"),
         .table = TableUse::needs,
         .run = onColumn([](LogStore& store, const std::string& column) { store.setBulkEditColumn(column); }),
         .isEnabled = hasColumn},
        {.id = CommandID::moveColumnLeft,
         .menu = CommandMenu::column,
         .title = QStringLiteral("Nach &links"),
         .iconName = QStringLiteral("arrow-left"),
         .table = TableUse::needs,
         .startsGroup = true,
         .run = onColumn([](LogStore& store, const std::string& column) { store.moveColumnBy(column, -1); }),
         .isEnabled = hasNeighbour<-1>},
        {.id = CommandID::moveColumnRight,
         .menu = CommandMenu::column,
         .title = QStringLiteral("Nach &rechts"),
         .iconName = QStringLiteral("arrow-right"),
         .table = TableUse::needs,
         .run = onColumn([](LogStore& store, const std::string& column) { store.moveColumnBy(column, 1); }),
         .isEnabled = hasNeighbour<1>},
        {.id = CommandID::removeColumn,
         .menu = CommandMenu::column,
         .title = QStringLiteral("Spalte l&öschen"),
         .iconName = QStringLiteral("edit-delete"),
         .table = TableUse::needs,
         .startsGroup = true,
         .run = onColumn([](LogStore& store, const std::string& column) { store.removeColumn(column); }),
         .isEnabled = hasColumn},
        {.id = CommandID::fullScreen,
         .menu = CommandMenu::view,
         .title = QStringLiteral("&Vollbild"),
         .iconName = QStringLiteral("view-fullscreen"),
         .shortcuts = {Qt::Key_F11},
         .run = [](ContentView& window) { window.toggleFullScreen(); }},
        {.id = CommandID::handbook,
         .menu = CommandMenu::help,
         .title = QStringLiteral("&Handbuch"),
         .iconName = QStringLiteral("help-contents"),
         .shortcuts = {Qt::Key_F1},
         .run = [](ContentView& window) { window.help().showHandbook(); }},
        {.id = CommandID::explain,
         .menu = CommandMenu::help,
         .title = QStringLiteral("&Was ist das?"),
         .iconName = QStringLiteral("help-whatsthis"),
         .shortcuts = {Qt::SHIFT | Qt::Key_F1},
         .run = [](ContentView& window) { window.help().explain(); }},
        {.id = CommandID::shortcuts,
         .menu = CommandMenu::help,
         .title = QStringLiteral("&Tastenkürzel"),
         .iconName = QStringLiteral("configure-shortcuts"),
         .run = [](ContentView& window) { window.help().showShortcuts(); }},
        {.id = CommandID::about,
         .menu = CommandMenu::help,
         .title = QStringLiteral("&Über ") + appName(),
         .iconName = QStringLiteral("help-about"),
         .startsGroup = true,
         .run = [](ContentView& window) { window.help().showAbout(); }},
        {.id = CommandID::checkForUpdates,
         .menu = CommandMenu::help,
         .title = QStringLiteral("Nach U&pdates suchen…"),
         .iconName = QStringLiteral("download"),
         .shortcuts = {Qt::CTRL | Qt::ALT | Qt::Key_U},
         .run = [](ContentView& window) { window.checkForUpdates(); },
         .isEnabled = [](const ContentView& window) { return window.offersUpdates(); }},
    };
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
        case CommandMenu::column:
            return QStringLiteral("&Spalte");
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

}  // namespace quillon
