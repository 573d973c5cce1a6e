#pragma once

#include <QMainWindow>
#include <QStringList>

#include <memory>

class QBoxLayout;
class QMimeData;
class QShortcut;

namespace quillon {

class CommandActions;
class ContestStore;
class ContestView;
class CrossCheckRunner;
class CrossCheckStore;
class CrossCheckView;
class DropHint;
class LogStore;
class PaneKeys;
class QSOTableView;
class RecordDetailView;
class SearchField;
class Settings;
class SidebarPane;
class StatusLine;
class TableQuestions;

/// The one main window: sidebar, work area and detail pane side by side, menus and tool bar above them, the
/// status line below. Shows the state of the store and turns what the user does into its operations.
class ContentView : public QMainWindow {
    Q_OBJECT

  public:
    /// Stores and settings outlive the window. A log that `arguments`, those of the program without its name,
    /// ask for is opened when the window is on screen.
    ContentView(LogStore& logStore, ContestStore& contestStore, CrossCheckStore& crossStore,
                Settings& userSettings, QStringList arguments, QWidget* parent = nullptr);
    ~ContentView() override;

    LogStore& store() const { return logStore; }
    QSOTableView& table() const { return *tableView; }
    const CommandActions& actions() const { return *commandActions; }
    /// Whether work is done beside the main thread, of which the window will show the result.
    bool isWorking() const;
    /// Whether the work area shows the table.
    bool isTableShown() const;
    /// Lets the work area show the table, if it does not.
    void showTable();

    // What the commands do beyond the store.
    void newLog();
    void openWithPanel();
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
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void buildMenus();
    void buildPanes();
    void buildToolBar();
    void followStore();
    void comeUp();
    bool isCrossCheckShown() const;
    void showReportMessage();
    /// What the window takes of what is dragged over it: files, and for a cross-check folders too.
    QStringList takenFrom(const QMimeData& dragged) const;
    bool isForCrossCheck(const QStringList& paths) const;
    void openFile(const QString& path);
    void showMode();
    void focusTable();
    /// Gives the keyboard to what the work area shows.
    void focusWorkArea();
    /// What F6 goes through; some may be absent or hidden.
    QWidgetList panes() const;
    void showResults();
    void showTitle();

    LogStore& logStore;
    ContestStore& contest;
    CrossCheckStore& cross;
    Settings& settings;
    QStringList startArguments;
    std::unique_ptr<TableQuestions> questions;
    std::unique_ptr<PaneKeys> paneKeys;  ///< Goes before the panes that it looks at.
    CommandActions* commandActions = nullptr;
    SearchField* searchField = nullptr;
    QSOTableView* tableView = nullptr;
    RecordDetailView* detail = nullptr;
    StatusLine* statusLine = nullptr;
    DropHint* dropHint = nullptr;
    QWidget* tableArea = nullptr;
    QBoxLayout* tableColumn = nullptr;
    ContestView* contestView = nullptr;
    CrossCheckRunner* crossRunner = nullptr;
    CrossCheckView* crossView = nullptr;
    QShortcut* endSearchKey = nullptr;
    SidebarPane* sidebar = nullptr;
    QWidget* results = nullptr;  ///< Null until there are results to show.
    bool hasComeUp = false;
};

}  // namespace quillon
