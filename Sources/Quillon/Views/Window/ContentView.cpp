#include "Quillon/Views/Window/ContentView.h"

#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Check/CheckResultsView.h"
#include "Quillon/Views/Contest/ContestView.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/PaneSplitter.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/CrossCheck/CrossCheckRunner.h"
#include "Quillon/Views/CrossCheck/CrossCheckView.h"
#include "Quillon/Views/Detail/RecordDetailView.h"
#include "Quillon/Views/Sidebar/SidebarPane.h"
#include "Quillon/Views/Table/QSOTableView.h"
#include "Quillon/Views/Table/TableBody.h"
#include "Quillon/Views/Table/TableHeader.h"
#include "Quillon/Views/Table/TableQuestions.h"
#include "Quillon/Views/Window/CommandActions.h"
#include "Quillon/Views/Window/Commands.h"
#include "Quillon/Views/Window/DropHint.h"
#include "Quillon/Views/Window/NoHits.h"
#include "Quillon/Views/Window/PaneKeys.h"
#include "Quillon/Views/Window/RedoKey.h"
#include "Quillon/Views/Window/SearchField.h"
#include "Quillon/Views/Window/StatusLine.h"
#include "Quillon/Views/Window/StoreAlerts.h"
#include "Quillon/Views/Window/StoreSheets.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QAction>
#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

#include <string>
#include <utility>

namespace quillon {

namespace {

constexpr QSize minimumWindowSize(1000, 480);
constexpr QSize firstWindowSize(1280, 800);
constexpr int resultsHeightPx = 200;
constexpr std::size_t mostContestIssues = 100;
constexpr std::size_t mostCrossCheckFindings = 300;

constexpr PaneWidths sidebarWidths = {.least = 220, .ideal = 250, .most = 320};
constexpr PaneWidths tableWidths = {.least = 420, .ideal = 600, .takesRoom = true};
constexpr PaneWidths dashboardWidths = {.least = 600, .ideal = 900, .takesRoom = true};
constexpr PaneWidths detailWidths = {.least = 260, .ideal = 300, .most = 400};

}  // namespace

ContentView::ContentView(LogStore& store, ContestStore& contestStore, CrossCheckStore& crossStore,
                         Settings& userSettings, QStringList arguments, QWidget* parent)
    : QMainWindow(parent),
      logStore(store),
      contest(contestStore),
      cross(crossStore),
      settings(userSettings),
      startArguments(std::move(arguments)),
      questions(std::make_unique<TableDialogs>()) {
    setMinimumSize(minimumWindowSize);
    // On a small screen, or one with large letters, there is less room; the frame wants some of it.
    constexpr QSize frame(16, 48);
    resize(firstWindowSize.boundedTo(screen()->availableSize() - frame));
    setAcceptDrops(true);
    setContextMenuPolicy(Qt::NoContextMenu);
    buildPanes();
    commandActions = new CommandActions(*this);
    QAction* const check = commandActions->action(CommandID::check);
    connect(sidebar, &SidebarPane::checkRequested, check, &QAction::trigger);
    buildMenus();
    buildToolBar();
    paneKeys = std::make_unique<PaneKeys>(*this, [this] { return panes(); });
    dropHint = new DropHint(*this);
    new StoreSheets(logStore, *this);
    new RedoKey(this);
    followStore();
    alertOfFailures(logStore, cross, *this);
}

ContentView::~ContentView() = default;

bool ContentView::isWorking() const {
    return crossRunner->isBusy();
}

bool ContentView::isTableShown() const {
    return logStore.mode() == AppMode::check || logStore.mode() == AppMode::outdoor;
}

void ContentView::showTable() {
    if (!isTableShown()) {
        logStore.setMode(AppMode::check);
    }
}

void ContentView::newLog() {
    logStore.newLog();
    focusWorkArea();
}

void ContentView::openWithPanel() {
    logStore.openWithPanel();
    focusWorkArea();
}

void ContentView::focusSearch() {
    searchField->startTyping();
}

void ContentView::toggleFullScreen() {
    setWindowState(windowState() ^ Qt::WindowFullScreen);
}

void ContentView::commitEditing() {
    tableView->commitEditing();
}

void ContentView::buildMenus() {
    for (const CommandMenu menu : allCommandMenus) {
        QMenu* entry = menuBar()->addMenu(title(menu));
        connect(entry, &QMenu::aboutToShow, commandActions,
                [this, menu] { commandActions->showIcons(menu); });
        commandActions->addMenu(menu, *entry);
    }
    commandActions->addRowMenu(tableView->body());
    commandActions->addMenu(CommandMenu::column, tableView->header());
    connect(tableView, &QSOTableView::menuAboutToShow, commandActions, [this] {
        for (const CommandMenu menu : {CommandMenu::edit, CommandMenu::log, CommandMenu::column}) {
            commandActions->showIcons(menu);
        }
    });
}

void ContentView::buildPanes() {
    auto* area = new QWidget(this);
    auto* areaLayout = new QVBoxLayout(area);
    areaLayout->setContentsMargins(0, 0, 0, 0);
    areaLayout->setSpacing(0);
    setCentralWidget(area);

    auto* splitter = new PaneSplitter(area);
    sidebar = new SidebarPane(logStore, contest, cross, settings, splitter);
    tableArea = new QWidget(splitter);
    tableColumn = new QVBoxLayout(tableArea);
    tableColumn->setContentsMargins(0, 0, 0, 0);
    tableColumn->setSpacing(0);
    tableView = new QSOTableView(logStore, *questions, tableArea);
    tableColumn->addWidget(tableView, 1);
    detail = new RecordDetailView(logStore, splitter);
    splitter->addPane(sidebar, sidebarWidths);
    splitter->addPane(tableArea, tableWidths);
    splitter->addPane(detail, detailWidths);
    contestView = new ContestView(logStore, contest, mostContestIssues, splitter);
    splitter->addPane(contestView, dashboardWidths);
    crossRunner = new CrossCheckRunner(logStore, contest, cross, this);
    crossView = new CrossCheckView(logStore, cross, *crossRunner, mostCrossCheckFindings, splitter);
    splitter->addPane(crossView, dashboardWidths);
    const auto showQSO = [this](tallyrig::UUID record) {
        tableView->showCell(record);
        focusTable();
    };
    connect(contestView, &ContestView::qsoWanted, this, showQSO);
    connect(crossView, &CrossCheckView::qsoWanted, this, showQSO);
    connect(crossRunner, &CrossCheckRunner::changed, sidebar,
            [this] { sidebar->offerReports(crossRunner->canExport()); });
    connect(sidebar, &SidebarPane::addLogsRequested, crossRunner, &CrossCheckRunner::addLogsWithPanel);
    connect(sidebar, &SidebarPane::reportsRequested, crossRunner, &CrossCheckRunner::exportReportsWithPanel);

    areaLayout->addWidget(splitter, 1);
    areaLayout->addWidget(horizontalLine(area));
    statusLine = new StatusLine(logStore, area);
    areaLayout->addWidget(statusLine);
    connect(tableView, &QSOTableView::noticed, statusLine, &StatusLine::showNotice);

    auto* noHits = new NoHits(logStore, tableView->body());
    connect(noHits, &NoHits::searchEnded, this, &ContentView::focusTable);
    endSearchKey = new QShortcut(
        Qt::Key_Escape, &tableView->body(), this, [this] { logStore.setSearchText(QString()); },
        Qt::WidgetShortcut);
    connect(sidebar, &SidebarPane::fieldAdded, detail, &RecordDetailView::focusLastField);
}

void ContentView::buildToolBar() {
    QToolBar* bar = addToolBar(QStringLiteral("Symbolleiste"));
    bar->setMovable(false);
    bar->setIconSize(QSize(22, 22));
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const Command& command : commands()) {
        if (command.toolBarTitle.isEmpty()) {
            continue;
        }
        if (command.startsToolBarGroup) {
            bar->addSeparator();
        }
        bar->addAction(commandActions->action(command.id));
    }

    auto* gap = new QWidget(bar);
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(gap);

    searchField = new SearchField(logStore, bar);
    searchField->setToolTip(commandActions->action(CommandID::find)->toolTip());
    bar->addWidget(searchField);
    auto* margin = new QWidget(bar);
    margin->setFixedWidth(6);
    bar->addWidget(margin);

    connect(searchField, &SearchField::typed, this, &ContentView::showTable);
    connect(searchField, &SearchField::left, this, [this] {
        showTable();
        tableView->enterRows();
    });
}

void ContentView::followStore() {
    connect(&logStore, &LogStore::windowTitleChanged, this, &ContentView::showTitle);
    connect(&logStore, &LogStore::showCheckResultsChanged, this, &ContentView::showResults);
    connect(&logStore, &LogStore::modeChanged, this, &ContentView::showMode);
    connect(&contest, &ContestStore::paneChanged, this, &ContentView::showMode);
    connect(&cross, &CrossCheckStore::exportMessageChanged, this, &ContentView::showReportMessage);
    connect(&logStore, &LogStore::exported, this, [this](const QString& path) {
        statusLine->showNotice(qsoCount(logStore.document().records().size()) + QStringLiteral(" nach „") +
                               QFileInfo(path).fileName() + QStringLiteral("“ exportiert"));
    });
    connect(&logStore, &LogStore::searchTextChanged, this,
            [this] { endSearchKey->setEnabled(!logStore.searchText().isEmpty()); });
    endSearchKey->setEnabled(!logStore.searchText().isEmpty());
    showTitle();
    showMode();
    showResults();
}

void ContentView::comeUp() {
    matchIconsToPalette();
    showBusyCursorUntilIdle();
    logStore.openFromCommandLineIfNeeded(startArguments);
    if (const auto folder = CrossCheckStore::commandLineFolder(startArguments);
        folder && cross.entries().empty()) {
        logStore.setMode(AppMode::contest);
        contest.setPane(ContestStore::Pane::crossCheck);
        crossRunner->addLogs({*folder});
    }
    focusWorkArea();
    emit cameUp();
}

void ContentView::openFile(const QString& path) {
    commitEditing();
    showBusyCursorUntilIdle();
    logStore.open(path);
    focusWorkArea();
}

void ContentView::showMode() {
    // What is typed in a cell is the user's, also where it goes out of sight.
    commitEditing();
    const QWidget* const keyboard = focusWidget();
    tableArea->setVisible(isTableShown());
    detail->setVisible(isTableShown());
    contestView->setVisible(logStore.mode() == AppMode::contest && !isCrossCheckShown());
    crossView->setVisible(isCrossCheckShown());
    if (keyboard != nullptr && !keyboard->isVisibleTo(this)) {
        focusWorkArea();
    }
}

void ContentView::focusTable() {
    tableView->body().setFocus();
}

void ContentView::focusWorkArea() {
    if (isTableShown()) {
        focusTable();
    } else {
        (isCrossCheckShown() ? static_cast<QWidget*>(crossView) : contestView)->setFocus();
    }
}

bool ContentView::isCrossCheckShown() const {
    return logStore.mode() == AppMode::contest && contest.pane() == ContestStore::Pane::crossCheck;
}

/// A failure has an alert of its own.
void ContentView::showReportMessage() {
    if (cross.exportMessage() && !cross.hasExportFailed()) {
        statusLine->showNotice(*cross.exportMessage());
    }
}

QWidgetList ContentView::panes() const {
    return {searchField, sidebar, tableView, results, detail, contestView, crossView};
}

void ContentView::showResults() {
    if (results == nullptr && logStore.showCheckResults()) {
        results = new QWidget(this);
        auto* layout = new QVBoxLayout(results);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        auto* view = new CheckResultsView(logStore, results);
        view->setFixedHeight(resultsHeightPx);
        layout->addWidget(horizontalLine(results));
        layout->addWidget(view);
        tableColumn->addWidget(results);
        setTabOrder(&tableView->body(), view);
        connect(view, &CheckResultsView::findingChosen, this,
                [this](tallyrig::UUID record, const std::string& field, std::optional<std::size_t> position) {
                    tableView->showCell(record, field);
                    detail->showField(field, position);
                });
        connect(view, &CheckResultsView::checkRequested, commandActions->action(CommandID::check),
                &QAction::trigger);
        connect(view, &CheckResultsView::left, this, &ContentView::focusTable);
    }
    if (results != nullptr) {
        results->setVisible(logStore.showCheckResults());
    }
}

void ContentView::showTitle() {
    const std::string title = tallyrig::text::visibleText(logStore.windowTitle().toStdString());
    // Qt takes "[*]" for the place of a mark; a file may be called so.
    setWindowTitle(toQString(title).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
}

void ContentView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange) {
        matchIconsToPalette();
        makeSecondaryTextReadable();
    }
    QMainWindow::changeEvent(event);
}

QStringList ContentView::takenFrom(const QMimeData& dragged) const {
    QStringList paths;
    for (const QUrl& url : dragged.urls()) {
        const QFileInfo info(url.toLocalFile());
        if (url.isLocalFile() && (info.isFile() || (info.isDir() && logStore.mode() == AppMode::contest))) {
            paths.append(url.toLocalFile());
        }
    }
    return paths;
}

/// Several logs, or a folder of them, are those of a contest.
bool ContentView::isForCrossCheck(const QStringList& paths) const {
    const bool isOneFile = paths.size() == 1 && QFileInfo(paths.first()).isFile();
    return isCrossCheckShown() || (logStore.mode() == AppMode::contest && !isOneFile);
}

void ContentView::dragEnterEvent(QDragEnterEvent* event) {
    const QStringList paths = takenFrom(*event->mimeData());
    if (!paths.isEmpty()) {
        event->acceptProposedAction();
        dropHint->showFor(isForCrossCheck(paths) ? QStringLiteral("Logs in den Cross-Check aufzunehmen")
                                                 : QStringLiteral("die Datei zu öffnen"));
    }
}

void ContentView::dragLeaveEvent(QDragLeaveEvent*) {
    dropHint->hide();
}

void ContentView::dropEvent(QDropEvent* event) {
    dropHint->hide();
    const QStringList files = takenFrom(*event->mimeData());
    if (files.isEmpty()) {
        return;
    }
    event->acceptProposedAction();
    if (isForCrossCheck(files)) {
        contest.setPane(ContestStore::Pane::crossCheck);
        crossRunner->addLogs(files);
        return;
    }
    openFile(files.first());
    if (files.size() > 1 && !logStore.errorMessage()) {
        statusLine->showNotice(QStringLiteral("Nur „%1“ wurde geöffnet, die erste von %2 Dateien")
                                   .arg(QFileInfo(files.first()).fileName())
                                   .arg(files.size()));
    }
}

void ContentView::paintEvent(QPaintEvent* event) {
    QMainWindow::paintEvent(event);
    // A long log is read when the user sees the window, not before.
    if (!hasComeUp) {
        hasComeUp = true;
        QTimer::singleShot(0, this, &ContentView::comeUp);
    }
}

}  // namespace quillon
