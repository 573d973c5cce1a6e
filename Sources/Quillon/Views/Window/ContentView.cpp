// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/ContentView.h"

#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/NoticeStrip.h"
#include "Quillon/Views/Controls/PaneSplitter.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/CrossCheck/CrossCheckRunner.h"
#include "Quillon/Views/Detail/RecordDetailView.h"
#include "Quillon/Views/Sidebar/SidebarPane.h"
#include "Quillon/Views/Table/QSOTableView.h"
#include "Quillon/Views/Table/TableBody.h"
#include "Quillon/Views/Table/TableHeader.h"
#include "Quillon/Views/Window/CommandActions.h"
#include "Quillon/Views/Window/Commands.h"
#include "Quillon/Views/Window/DropHint.h"
#include "Quillon/Views/Window/FileNotices.h"
#include "Quillon/Views/Window/HelpDesk.h"
#include "Quillon/Views/Window/KeptLayout.h"
#include "Quillon/Views/Window/KeptNotices.h"
#include "Quillon/Views/Window/PaneKeys.h"
#include "Quillon/Views/Window/ReadingNotices.h"
#include "Quillon/Views/Window/RecentFilesMenu.h"
#include "Quillon/Views/Window/RedoKey.h"
#include "Quillon/Views/Window/SearchField.h"
#include "Quillon/Views/Window/StatusLine.h"
#include "Quillon/Views/Window/StoreAlerts.h"
#include "Quillon/Views/Window/StoreSheets.h"
#include "Quillon/Views/Window/WorkArea.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QAction>
#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
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
constexpr PaneWidths sidebarWidths = {.least = 220, .ideal = 250, .most = 320};

}  // namespace

ContentView::ContentView(const AppStores& appStores, Settings& userSettings, QStringList arguments,
                         QWidget* parent)
    : QMainWindow(parent), stores(appStores), settings(userSettings), startArguments(std::move(arguments)) {
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
    connect(workArea, &WorkArea::checkRequested, check, &QAction::trigger);
    buildMenus();
    buildToolBar();
    paneKeys = std::make_unique<PaneKeys>(*this, [this] { return panes(); });
    dropHint = new DropHint(*this);
    new StoreSheets(stores.log, *this);
    new RedoKey(this);
    helpDesk = new HelpDesk(stores, settings, *this);
    fileNotices = new FileNotices(stores, *notices, *this, [this](const QString& path) { openFile(path); });
    readingNotices = new ReadingNotices(stores.log, *notices, *workArea, *this);
    connect(readingNotices, &ReadingNotices::noticed, statusLine, &StatusLine::showNotice);
    followStore();
    alertOfFailures(stores, *this);
}

ContentView::~ContentView() = default;

void ContentView::offerKept(LogKeeper& keeper) {
    keptNotices = new KeptNotices(stores, keeper, *notices, *this, [this] {
        showTable();
        workArea->focus();
    });
    commandActions->refresh();
}

void ContentView::showKeptLogs() {
    keptNotices->showList();
}

void ContentView::showReadingNotes() {
    readingNotices->showNotes();
}

void ContentView::offerUpdates(UpdateManager& manager, UpdateOffers::MakeInstaller makeInstaller) {
    updateOffers = new UpdateOffers(manager, std::move(makeInstaller), *this);
    connect(updateOffers, &UpdateOffers::noticed, statusLine, &StatusLine::showNotice);
    commandActions->refresh();
}

void ContentView::checkForUpdates() {
    updateOffers->check();
}

QSOTableView& ContentView::table() const {
    return workArea->table();
}

bool ContentView::isWorking() const {
    return workArea->crossCheck().isBusy();
}

bool ContentView::isTableShown() const {
    return workArea->isTableShown();
}

void ContentView::showTable() {
    workArea->showTable();
}

void ContentView::newLog() {
    stores.log.newLog();
    workArea->focus();
}

void ContentView::openWithPanel() {
    stores.log.openWithPanel();
    workArea->focus();
}

void ContentView::save() {
    fileNotices->save();
}

void ContentView::focusSearch() {
    searchField->startTyping();
}

void ContentView::toggleFullScreen() {
    setWindowState(windowState() ^ Qt::WindowFullScreen);
}

void ContentView::commitEditing() {
    workArea->commitEditing();
}

void ContentView::buildMenus() {
    for (const CommandMenu menu : allCommandMenus) {
        QMenu* entry = menuBar()->addMenu(title(menu));
        connect(entry, &QMenu::aboutToShow, commandActions,
                [this, menu] { commandActions->showIcons(menu); });
        commandActions->addMenu(menu, *entry);
        if (menu == CommandMenu::file) {
            buildRecentFilesMenu(*entry);
        }
    }
    commandActions->addRowMenu(table().body());
    commandActions->addMenu(CommandMenu::column, table().header());
    connect(&table(), &QSOTableView::menuAboutToShow, commandActions, [this] {
        for (const CommandMenu menu : {CommandMenu::edit, CommandMenu::log, CommandMenu::column}) {
            commandActions->showIcons(menu);
        }
    });
}

void ContentView::buildRecentFilesMenu(QMenu& fileMenu) {
    auto* recent = new RecentFilesMenu(settings, &fileMenu);
    const QList<QAction*> actions = fileMenu.actions();
    const qsizetype open = actions.indexOf(commandActions->action(CommandID::open));
    fileMenu.insertMenu(actions.value(open + 1), recent);
    connect(&fileMenu, &QMenu::aboutToShow, recent, &RecentFilesMenu::refresh);
    connect(recent, &RecentFilesMenu::chosen, this, &ContentView::openFile);
    // Who goes through the menu by the keyboard sees no tool tips.
    connect(recent, &QMenu::hovered, this,
            [this](const QAction* entry) { statusLine->showPath(entry->statusTip()); });
    connect(recent, &QMenu::aboutToHide, this, [this] { statusLine->showPath(QString()); });
}

void ContentView::buildPanes() {
    auto* area = new QWidget(this);
    auto* areaLayout = new QVBoxLayout(area);
    areaLayout->setContentsMargins(0, 0, 0, 0);
    areaLayout->setSpacing(0);
    setCentralWidget(area);

    notices = new NoticeStrip(area);
    areaLayout->addWidget(notices);
    connect(notices, &NoticeStrip::left, this, [this] { workArea->focus(); });
    auto* splitter = new PaneSplitter(area);
    sidebar = new SidebarPane(stores, settings, splitter);
    splitter->addPane(sidebar, sidebarWidths);
    workArea = new WorkArea(stores, *splitter);
    CrossCheckRunner& crossCheck = workArea->crossCheck();
    connect(&crossCheck, &CrossCheckRunner::changed, sidebar,
            [this, &crossCheck] { sidebar->offerReports(crossCheck.canExport()); });
    connect(sidebar, &SidebarPane::addLogsRequested, &crossCheck, &CrossCheckRunner::addLogsWithPanel);
    connect(sidebar, &SidebarPane::reportsRequested, &crossCheck, &CrossCheckRunner::exportReportsWithPanel);
    connect(sidebar, &SidebarPane::fieldAdded, &workArea->detail(), &RecordDetailView::focusLastField);

    auto* layout = new KeptLayout(*this, *splitter, settings);
    layout->addPane(*sidebar, QStringLiteral("sidebar"));
    layout->addPane(workArea->detail(), QStringLiteral("detail"));

    areaLayout->addWidget(splitter, 1);
    areaLayout->addWidget(horizontalLine(area));
    statusLine = new StatusLine(stores.log, area);
    areaLayout->addWidget(statusLine);
    connect(&table(), &QSOTableView::noticed, statusLine, &StatusLine::showNotice);
    connect(workArea, &WorkArea::noticed, statusLine, &StatusLine::showNotice);
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

    searchField = new SearchField(stores.log, bar);
    searchField->setToolTip(commandActions->action(CommandID::find)->toolTip());
    bar->addWidget(searchField);
    auto* margin = new QWidget(bar);
    margin->setFixedWidth(6);
    bar->addWidget(margin);

    connect(searchField, &SearchField::typed, this, &ContentView::showTable);
    connect(searchField, &SearchField::left, this, [this] {
        showTable();
        table().enterRows();
    });
}

void ContentView::followStore() {
    const LogStore& log = stores.log;
    connect(&log, &LogStore::windowTitleChanged, this, &ContentView::showTitle);
    connect(&stores.crossCheck, &CrossCheckStore::exportMessageChanged, this,
            &ContentView::showReportMessage);
    connect(&log, &LogStore::exported, this, [this, &log](const QString& path) {
        statusLine->showNotice(qsoCount(log.document().records().size()) + QStringLiteral(" nach „") +
                               QFileInfo(path).fileName() + QStringLiteral("“ exportiert"));
    });
    connect(&log, &LogStore::outdoorExported, this, [this](std::size_t files, const QString& folder) {
        statusLine->showNotice(
            QStringLiteral("%1 nach „%2“ exportiert")
                .arg(files == 1 ? QStringLiteral("1 Datei") : numberText(files) + QStringLiteral(" Dateien"),
                     QFileInfo(folder).fileName()));
    });
    showTitle();
}

void ContentView::comeUp() {
    matchIconsToPalette();
    showBusyCursorUntilIdle();
    stores.log.openFromCommandLineIfNeeded(startArguments);
    if (const auto folder = CrossCheckStore::commandLineFolder(startArguments);
        folder && stores.crossCheck.entries().empty()) {
        stores.log.setMode(AppMode::contest);
        stores.contest.setPane(ContestStore::Pane::crossCheck);
        workArea->crossCheck().addLogs({*folder});
    }
    workArea->focus();
    if (keptNotices != nullptr) {
        keptNotices->tellOfLeftBehind();
    }
    emit cameUp();
}

void ContentView::openFile(const QString& path) {
    commitEditing();
    showBusyCursorUntilIdle();
    stores.log.open(path);
    workArea->focus();
}

/// A failure has an alert of its own.
void ContentView::showReportMessage() {
    if (stores.crossCheck.exportMessage() && !stores.crossCheck.hasExportFailed()) {
        statusLine->showNotice(*stores.crossCheck.exportMessage());
    }
}

QWidgetList ContentView::panes() const {
    return QWidgetList{searchField, notices, sidebar} + workArea->panes();
}

void ContentView::showTitle() {
    const std::string title = tallyrig::text::visibleText(stores.log.windowTitle().toStdString());
    // Qt takes "[*]" for the place of a mark; a file may be called so.
    setWindowTitle(toQString(title).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
}

void ContentView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange) {
        matchIconsToPalette();
        makePaletteReadable();
    }
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && fileNotices != nullptr) {
        fileNotices->look();
    }
    QMainWindow::changeEvent(event);
}

QStringList ContentView::takenFrom(const QMimeData& dragged) const {
    QStringList paths;
    for (const QUrl& url : dragged.urls()) {
        const QFileInfo info(url.toLocalFile());
        if (url.isLocalFile() && (info.isFile() || (info.isDir() && stores.log.mode() == AppMode::contest))) {
            paths.append(url.toLocalFile());
        }
    }
    return paths;
}

/// Several logs, or a folder of them, are those of a contest.
bool ContentView::isForCrossCheck(const QStringList& paths) const {
    const bool isOneFile = paths.size() == 1 && QFileInfo(paths.first()).isFile();
    return workArea->isCrossCheckShown() || (stores.log.mode() == AppMode::contest && !isOneFile);
}

void ContentView::dragEnterEvent(QDragEnterEvent* event) {
    const QStringList paths = takenFrom(*event->mimeData());
    if (!paths.isEmpty()) {
        event->acceptProposedAction();
        showDropHint(*event);
    }
}

void ContentView::dragMoveEvent(QDragMoveEvent* event) {
    showDropHint(*event);
}

void ContentView::showDropHint(const QDropEvent& event) {
    QString what = QStringLiteral("die Datei zu öffnen");
    if (const auto side = comparedSideAt(event)) {
        what = *side == CompareStore::Side::left ? QStringLiteral("die Datei links zu laden")
                                                 : QStringLiteral("die Datei rechts zu laden");
    } else if (isForCrossCheck(takenFrom(*event.mimeData()))) {
        what = QStringLiteral("Logs in den Cross-Check aufzunehmen");
    }
    dropHint->showFor(what);
}

std::optional<CompareStore::Side> ContentView::comparedSideAt(const QDropEvent& event) const {
    return workArea->comparedSideAt(mapToGlobal(event.position().toPoint()));
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
        stores.contest.setPane(ContestStore::Pane::crossCheck);
        workArea->crossCheck().addLogs(files);
        return;
    }
    const auto side = comparedSideAt(*event);
    if (side) {
        commitEditing();
        showBusyCursorUntilIdle();
        stores.compare.load(*side, files.first());
        workArea->focus();
    } else {
        openFile(files.first());
    }
    if (files.size() > 1 && !stores.log.errorMessage()) {
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
