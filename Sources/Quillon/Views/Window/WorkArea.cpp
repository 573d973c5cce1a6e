// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/WorkArea.h"

#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Check/CheckResultsView.h"
#include "Quillon/Views/Compare/CompareView.h"
#include "Quillon/Views/Contest/ContestView.h"
#include "Quillon/Views/Controls/ChartPainter.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/PaneSplitter.h"
#include "Quillon/Views/Controls/TabOrder.h"
#include "Quillon/Views/CrossCheck/CrossCheckRunner.h"
#include "Quillon/Views/CrossCheck/CrossCheckView.h"
#include "Quillon/Views/Detail/RecordDetailView.h"
#include "Quillon/Views/Reading/ReadingNotesView.h"
#include "Quillon/Views/Statistics/StatsView.h"
#include "Quillon/Views/Table/QSOTableView.h"
#include "Quillon/Views/Table/TableBody.h"
#include "Quillon/Views/Table/TableQuestions.h"
#include "Quillon/Views/Window/NoHits.h"

#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <optional>
#include <string>

namespace quillon {

namespace {

constexpr int resultsHeightPx = 200;
constexpr std::size_t mostContestIssues = 100;
constexpr std::size_t mostCrossCheckFindings = 300;

constexpr PaneWidths tableWidths = {.least = 420, .ideal = 600, .takesRoom = true};
constexpr PaneWidths detailWidths = {.least = 260, .ideal = 300, .most = 400};
constexpr PaneWidths dashboardWidths = {.least = 600, .ideal = 900, .takesRoom = true};

QVBoxLayout* columnIn(QWidget* widget) {
    auto* column = new QVBoxLayout(widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    return column;
}

}  // namespace

WorkArea::WorkArea(const AppStores& appStores, PaneSplitter& splitter)
    : QObject(&splitter),
      stores(appStores),
      questions(std::make_unique<TableDialogs>()),
      crossRunner(new CrossCheckRunner(stores.log, stores.contest, stores.crossCheck, this)) {
    buildTable(splitter);
    dashboard = new QStackedWidget(&splitter);
    splitter.addPane(dashboard, dashboardWidths);

    connect(&stores.log, &LogStore::showCheckResultsChanged, this, &WorkArea::showResults);
    connect(&stores.log, &LogStore::checkResultsChanged, this, [this] {
        // A check was asked for later than the notes.
        if (stores.log.showCheckResults()) {
            hideReadingNotes();
        }
    });
    connect(&stores.log, &LogStore::modeChanged, this, &WorkArea::showMode);
    connect(&stores.contest, &ContestStore::paneChanged, this, &WorkArea::showMode);
    showMode();
    showResults();
}

WorkArea::~WorkArea() = default;

void WorkArea::buildTable(PaneSplitter& splitter) {
    LogStore& log = stores.log;
    tableArea = new QWidget(&splitter);
    tableColumn = columnIn(tableArea);
    tableView = new QSOTableView(log, *questions, tableArea);
    tableColumn->addWidget(tableView, 1);
    detailView = new RecordDetailView(log, &splitter);
    splitter.addPane(tableArea, tableWidths);
    splitter.addPane(detailView, detailWidths);

    auto* noHits = new NoHits(log, tableView->body());
    connect(noHits, &NoHits::searchEnded, this, &WorkArea::focusTable);
    auto* endSearch = new QShortcut(
        Qt::Key_Escape, &tableView->body(), this, [&log] { log.setSearchText(QString()); },
        Qt::WidgetShortcut);
    const auto offerEnd = [&log, endSearch] { endSearch->setEnabled(!log.searchText().isEmpty()); };
    connect(&log, &LogStore::searchTextChanged, endSearch, offerEnd);
    offerEnd();
}

bool WorkArea::isTableShown() const {
    return stores.log.mode() == AppMode::check || stores.log.mode() == AppMode::outdoor;
}

bool WorkArea::isCrossCheckShown() const {
    return stores.log.mode() == AppMode::contest && stores.contest.pane() == ContestStore::Pane::crossCheck;
}

std::optional<tallyrig::ADIFComparison::Side> WorkArea::comparedSideAt(QPoint point) const {
    return compareView != nullptr && compareView->isVisible() ? compareView->sideAt(point) : std::nullopt;
}

void WorkArea::showTable() {
    if (!isTableShown()) {
        stores.log.setMode(AppMode::check);
    }
}

void WorkArea::showQSO(tallyrig::UUID record) {
    tableView->showCell(record);
    focusTable();
}

void WorkArea::focus() {
    (isTableShown() ? &tableView->body() : dashboard->currentWidget())->setFocus();
}

void WorkArea::focusTable() {
    tableView->body().setFocus();
}

QWidgetList WorkArea::panes() const {
    return {tableView, results, readingStrip, detailView, dashboard};
}

void WorkArea::commitEditing() {
    tableView->commitEditing();
    if (compareView != nullptr) {
        compareView->commitEditing();
    }
}

void WorkArea::showMode() {
    // What is typed in a cell is the user's, also where it goes out of sight.
    commitEditing();
    QWidget* const window = tableArea->window();
    const QWidget* const keyboard = window->focusWidget();
    if (QWidget* const pane = paneOfMode()) {
        dashboard->setCurrentWidget(pane);
    }
    tableArea->setVisible(isTableShown());
    detailView->setVisible(isTableShown());
    dashboard->setVisible(!isTableShown());
    if (keyboard != nullptr && !keyboard->isVisibleTo(window)) {
        focus();
    }
}

/// Null where the mode shows the table.
QWidget* WorkArea::paneOfMode() {
    switch (stores.log.mode()) {
        case AppMode::contest:
            return isCrossCheckShown() ? static_cast<QWidget*>(crossCheckPane()) : contestPane();
        case AppMode::compare:
            return comparePane();
        case AppMode::stats:
            return statsPane();
        case AppMode::check:
        case AppMode::outdoor:
            break;
    }
    return nullptr;
}

void WorkArea::addPane(QWidget& pane) {
    dashboard->addWidget(&pane);
    putIntoTabOrder(tableView->body(), pane);
}

CompareView* WorkArea::comparePane() {
    if (compareView == nullptr) {
        compareView = new CompareView(stores.log, stores.compare, dashboard);
        addPane(*compareView);
        connect(compareView, &CompareView::noticed, this, &WorkArea::noticed);
    }
    return compareView;
}

ContestView* WorkArea::contestPane() {
    if (contestView == nullptr) {
        contestView = new ContestView(stores.log, stores.contest, mostContestIssues, dashboard);
        addPane(*contestView);
        connect(contestView, &ContestView::qsoWanted, this, &WorkArea::showQSO);
    }
    return contestView;
}

CrossCheckView* WorkArea::crossCheckPane() {
    if (crossView == nullptr) {
        crossView = new CrossCheckView(stores.log, stores.crossCheck, *crossRunner, mostCrossCheckFindings,
                                       dashboard);
        addPane(*crossView);
        connect(crossView, &CrossCheckView::qsoWanted, this, &WorkArea::showQSO);
    }
    return crossView;
}

StatsView* WorkArea::statsPane() {
    if (statsView == nullptr) {
        statsView = new StatsView(stores.log, chartPainter(), dashboard);
        addPane(*statsView);
    }
    return statsView;
}

void WorkArea::showResults() {
    if (results == nullptr && stores.log.showCheckResults()) {
        auto* view = new CheckResultsView(stores.log, tableArea);
        results = addStrip(*view);
        connect(view, &CheckResultsView::findingChosen, this,
                [this](tallyrig::UUID record, const std::string& field, std::optional<std::size_t> position) {
                    tableView->showCell(record, field);
                    detailView->showField(field, position);
                });
        connect(view, &CheckResultsView::checkRequested, this, &WorkArea::checkRequested);
        connect(view, &CheckResultsView::left, this, &WorkArea::focusTable);
    }
    if (results != nullptr) {
        results->setVisible(stores.log.showCheckResults() && !areReadingNotesShown);
    }
}

QWidget* WorkArea::addStrip(QWidget& view) {
    auto* strip = new QWidget(tableArea);
    QVBoxLayout* const column = columnIn(strip);
    view.setFixedHeight(resultsHeightPx);
    column->addWidget(horizontalLine(strip));
    column->addWidget(&view);
    tableColumn->addWidget(strip);
    QWidget::setTabOrder(&tableView->body(), &view);
    return strip;
}

void WorkArea::makeReadingNotes() {
    readingNotes = new ReadingNotesView(stores.log, tableArea);
    readingStrip = addStrip(*readingNotes);
    connect(readingNotes, &ReadingNotesView::noteChosen, this,
            [this](std::optional<tallyrig::UUID> record, const std::string& field) {
                if (record) {
                    tableView->showCell(*record, field);
                } else {
                    stores.log.setSelection({}, std::nullopt);
                }
            });
    connect(readingNotes, &ReadingNotesView::repairWanted, this, &WorkArea::repairWanted);
    connect(readingNotes, &ReadingNotesView::left, this, &WorkArea::focusTable);
    connect(readingNotes, &ReadingNotesView::closeWanted, this, &WorkArea::hideReadingNotes);
}

void WorkArea::showReadingNotes() {
    if (readingNotes == nullptr) {
        makeReadingNotes();
    }
    areReadingNotesShown = true;
    showResults();
    readingStrip->show();
    readingNotes->enterNotes();
}

void WorkArea::hideReadingNotes() {
    if (!areReadingNotesShown) {
        return;
    }
    areReadingNotesShown = false;
    const QWidget* const keyboard = readingStrip->window()->focusWidget();
    const bool hadKeyboard = keyboard != nullptr && readingStrip->isAncestorOf(keyboard);
    readingStrip->hide();
    showResults();
    if (hadKeyboard) {
        focusTable();
    }
}

}  // namespace quillon
