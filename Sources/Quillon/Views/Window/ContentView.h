// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Stores/AppStores.h"
#include "Quillon/Views/Window/UpdateOffers.h"
#include "Tallyrig/Analysis/ADIFComparison.h"

#include <QMainWindow>
#include <QStringList>

#include <memory>
#include <optional>

class QMenu;
class QMimeData;

namespace quillon {

class CommandActions;
class DropHint;
class FileNotices;
class HelpDesk;
class KeptNotices;
class LogKeeper;
class NoticeStrip;
class PaneKeys;
class QSOTableView;
class ReadingNotices;
class SearchField;
class Settings;
class SidebarPane;
class StatusLine;
class UpdateManager;
class WorkArea;

/// The one main window: sidebar and work area side by side, menus and tool bar above them, the status line
/// below. Shows the state of the stores and turns what the user does into their operations.
class ContentView : public QMainWindow {
    Q_OBJECT

  public:
    /// Stores and settings outlive the window. A log that `arguments`, those of the program without its name,
    /// ask for is opened when the window is on screen.
    ContentView(const AppStores& appStores, Settings& userSettings, QStringList arguments,
                QWidget* parent = nullptr);
    ~ContentView() override;

    /// Tells the user what `keeper` keeps, and offers what was kept. It outlives the window, and is given
    /// before that is shown.
    void offerKept(LogKeeper& keeper);
    bool keepsLogs() const { return keptNotices != nullptr; }
    void showKeptLogs();
    void showReadingNotes();

    /// Shows what comes of looking for updates, with what installs one. `manager` outlives the window.
    void offerUpdates(UpdateManager& manager, UpdateOffers::MakeInstaller makeInstaller);
    bool offersUpdates() const { return updateOffers != nullptr; }
    void checkForUpdates();

    LogStore& store() const { return stores.log; }
    QSOTableView& table() const;
    const CommandActions& actions() const { return *commandActions; }
    HelpDesk& help() const { return *helpDesk; }
    /// Whether work is done beside the main thread, of which the window will show the result.
    bool isWorking() const;
    /// Whether the work area shows the table.
    bool isTableShown() const;
    /// Lets the work area show the table, if it does not.
    void showTable();

    // What the commands do beyond the store.
    void newLog();
    void openWithPanel();
    void save();
    void focusSearch();
    void toggleFullScreen();
    /// Ends typing in a cell, which writes what was typed.
    void commitEditing();

  signals:
    /// The window is on screen and what the arguments ask for is open. Sent once, from the event loop.
    void cameUp();

  protected:
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void buildMenus();
    void buildRecentFilesMenu(QMenu& fileMenu);
    void buildPanes();
    void buildToolBar();
    void followStore();
    void comeUp();
    void showReportMessage();
    /// What the window takes of what is dragged over it: files, and for a cross-check folders too.
    QStringList takenFrom(const QMimeData& dragged) const;
    bool isForCrossCheck(const QStringList& paths) const;
    /// Where the file is to be loaded if it is dropped on a comparison.
    std::optional<tallyrig::ADIFComparison::Side> comparedSideAt(const QDropEvent& event) const;
    void showDropHint(const QDropEvent& event);
    void openFile(const QString& path);
    /// What F6 goes through; some may be absent or hidden.
    QWidgetList panes() const;
    void showTitle();

    AppStores stores;
    Settings& settings;
    QStringList startArguments;
    std::unique_ptr<PaneKeys> paneKeys;  ///< Goes before the panes that it looks at.
    CommandActions* commandActions = nullptr;
    SearchField* searchField = nullptr;
    SidebarPane* sidebar = nullptr;
    WorkArea* workArea = nullptr;
    StatusLine* statusLine = nullptr;
    DropHint* dropHint = nullptr;
    NoticeStrip* notices = nullptr;
    FileNotices* fileNotices = nullptr;
    ReadingNotices* readingNotices = nullptr;
    HelpDesk* helpDesk = nullptr;
    KeptNotices* keptNotices = nullptr;    ///< Null where nothing is kept.
    UpdateOffers* updateOffers = nullptr;  ///< Null where nobody looks for updates.
    bool hasComeUp = false;
};

}  // namespace quillon
