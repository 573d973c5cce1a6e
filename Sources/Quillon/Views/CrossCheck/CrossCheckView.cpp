// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/CrossCheck/CrossCheckView.h"

#include "Quillon/Catalogue/ScoreWords.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/EmptyState.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Controls/TabOrder.h"
#include "Quillon/Views/Controls/Tile.h"
#include "Quillon/Views/Controls/TileLayout.h"
#include "Quillon/Views/CrossCheck/CrossCheckRunner.h"
#include "Quillon/Views/CrossCheck/FindingsCard.h"
#include "Quillon/Views/CrossCheck/Quota.h"
#include "Quillon/Views/CrossCheck/RankingModel.h"
#include "Quillon/Views/CrossCheck/RankingTable.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedLayout>

#include <algorithm>

namespace quillon {

namespace {

constexpr int marginPx = 16;
constexpr int gapPx = 12;
constexpr std::size_t fewestLogs = 2;

QString number(std::size_t count) {
    return toQString(ScoreWords::number(static_cast<std::int64_t>(count)));
}

}  // namespace

CrossCheckView::CrossCheckView(LogStore& logStore, CrossCheckStore& crossStore, CrossCheckRunner& crossRunner,
                               std::size_t mostFindings, QWidget* parent)
    : QWidget(parent), log(logStore), store(crossStore), runner(crossRunner), findingLimit(mostFindings) {
    setAccessibleName(QStringLiteral("Cross-Check"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(progressStrip());
    body = new QStackedLayout;
    body->addWidget(emptyPage());
    body->addWidget(resultPage());
    body->addWidget(new QWidget(this));
    column->addLayout(body, 1);
    strip->lower();
    handKeyboardOn(*this, [this] {
        QWidget* const stops[] = {addButton, table, body->currentWidget()};
        // From a page without a stop Qt takes the keyboard along to the page that takes its place.
        return stops[body->currentIndex()];
    });

    constexpr int patienceMs = 250;
    patience.setSingleShot(true);
    patience.setInterval(patienceMs);
    connect(&patience, &QTimer::timeout, strip, &QWidget::show);
    connect(&runner, &CrossCheckRunner::changed, this, &CrossCheckView::showProgress);
    connect(&store, &CrossCheckStore::evaluationChanged, this, &CrossCheckView::showResult);
    connect(&store, &CrossCheckStore::selectedLogIDChanged, this, &CrossCheckView::showFindings);
    connect(&store, &CrossCheckStore::findingFilterChanged, this, &CrossCheckView::showFindings);
    showResult();
    showProgress();
}

QWidget* CrossCheckView::progressStrip() {
    strip = new QWidget(this);
    auto* row = new QHBoxLayout(strip);
    row->setContentsMargins(marginPx, 8, marginPx, 0);
    stripText = new QLabel(strip);
    stripBar = new QProgressBar(strip);
    stripBar->setTextVisible(false);
    constexpr int steps = 1000;
    stripBar->setRange(0, steps);
    stripButton = new QPushButton(strip);
    row->addWidget(stripText);
    row->addWidget(stripBar, 1);
    row->addStretch();
    row->addWidget(stripButton);
    connect(stripButton, &QPushButton::clicked, this,
            [this] { runner.isRunning() ? runner.cancel() : runner.resume(); });
    strip->hide();
    return strip;
}

QWidget* CrossCheckView::emptyPage() {
    auto* page = new EmptyState(
        QStringLiteral("view-list-details"), QStringLiteral("Mindestens zwei Logs nötig"),
        QStringLiteral("Füge in der Seitenleiste die Logs der Gegenstationen hinzu – einzeln oder als ganzen "
                       "Ordner (ADI, ADX, Cabrillo, EDI)."),
        this);
    addButton = new QPushButton(icon(QStringLiteral("list-add")), QStringLiteral("Logs hinzufügen …"), page);
    connect(addButton, &QPushButton::clicked, &runner, &CrossCheckRunner::addLogsWithPanel);
    page->addButton(addButton);
    return page;
}

QWidget* CrossCheckView::resultPage() {
    // A large font may need more height than the window has.
    auto* area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    auto* page = new QWidget(area);
    area->setWidget(page);
    auto* figures = new QWidget(page);
    auto* figuresLayout = new TileLayout(figures);
    const char* const captions[] = {"Logs", "QSOs gesamt", "Fehler (NIL/Busted)", "Quote gesamt"};
    for (std::size_t index = 0; index < tiles.size(); ++index) {
        tiles[index] = new Tile(QString::fromUtf8(captions[index]), figures);
        figuresLayout->addWidget(tiles[index]);
    }

    auto* splitter = new QSplitter(Qt::Vertical, page);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(gapPx);
    rankingCard = new Card(QStringLiteral("Rangliste"), splitter);
    ranking = new RankingModel(this);
    table = new RankingTable(*ranking, rankingCard);
    table->setAccessibleName(QStringLiteral("Rangliste"));
    rankingCard->content().addWidget(table, 1);
    findings = new FindingsCard(store, findingLimit, splitter);
    // Tab follows the children, and the splitter put the later one first.
    rankingCard->lower();
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 1);

    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(marginPx, gapPx, marginPx, gapPx);
    column->setSpacing(gapPx);
    column->addWidget(figures);
    column->addWidget(splitter, 1);
    connect(table, &RankingTable::logChosen, this,
            [this](tallyrig::UUID chosen) { store.setSelectedLogID(chosen); });
    connect(findings, &FindingsCard::qsoWanted, this, &CrossCheckView::goTo);
    return area;
}

void CrossCheckView::hideEvent(QHideEvent* event) {
    runner.setWatched(false);
    QWidget::hideEvent(event);
}

void CrossCheckView::showEvent(QShowEvent* event) {
    runner.setWatched(true);
    QWidget::showEvent(event);
}

void CrossCheckView::showResult() {
    choosePage();
    if (!hasResult()) {
        return;
    }
    const auto& evaluation = store.evaluation();
    tallyrig::CrossCheckCounts counts;
    for (const tallyrig::CrossCheckSummary& summary : evaluation->report.summaries()) {
        counts += summary.counts;
    }
    tiles[0]->setFigure(number(evaluation->input.logs.size()));
    tiles[1]->setFigure(number(counts.total()));
    tiles[2]->setFigure(number(counts.errors()), counts.errors() > 0 ? Tone::error : Tone::plain);
    const Quota quota{counts.accuracy()};
    tiles[3]->setFigure(quota.text(), quota.tone());
    const QString heading =
        evaluation->scores.empty() ? QStringLiteral("Übersicht je Log") : QStringLiteral("Rangliste");
    rankingCard->setHeading(heading);
    table->setAccessibleName(heading);
    ranking->setResult(evaluation->report, evaluation->scores);
    showFindings();
}

bool CrossCheckView::hasResult() const {
    return store.evaluation() && store.evaluation()->input.logs.size() >= fewestLogs;
}

void CrossCheckView::choosePage() {
    const bool isAwaited = runner.isRunning() || runner.isGivenUp();
    body->setCurrentIndex(hasResult() ? 1 : isAwaited ? 2 : 0);
}

/// Of the log that is chosen, or else of the first row.
void CrossCheckView::showFindings() {
    const auto& evaluation = store.evaluation();
    if (!evaluation || ranking->rowCount() == 0) {
        return;
    }
    std::optional<tallyrig::UUID> shown = store.selectedLogID();
    if (!shown || ranking->rowOf(*shown) < 0) {
        shown = ranking->logAt(0);
    }
    table->showLog(shown);
    findings->show(*evaluation, shown);
}

void CrossCheckView::showProgress() {
    const bool isRunning = runner.isRunning();
    if (!isRunning) {
        patience.stop();
        strip->setVisible(runner.isGivenUp());
        stripText->setMinimumWidth(0);
    } else if (strip->isHidden() && !patience.isActive()) {
        // What is done at once needs no word, and the result need not make room for it.
        patience.start();
    }
    stripText->setText(isRunning     ? runner.progressText()
                       : hasResult() ? QStringLiteral("Abgebrochen: Das Ergebnis ist noch das vorige.")
                                     : QStringLiteral("Abgebrochen."));
    if (isRunning) {
        // The bar stays where it is while the figure grows.
        stripText->setMinimumWidth(std::max(stripText->minimumWidth(), stripText->sizeHint().width()));
    }
    stripBar->setVisible(isRunning);
    stripBar->setValue(static_cast<int>(runner.progress() * stripBar->maximum()));
    choosePage();
    stripButton->setText(isRunning ? QStringLiteral("Abbrechen") : QStringLiteral("Neu auswerten"));
}

/// By its identity: the result on screen may be of the log as it was before some edits.
void CrossCheckView::goTo(tallyrig::UUID record) {
    const auto index = log.indexOf(record);
    if (index && log.showRecord(*index)) {
        emit qsoWanted(record);
    }
}

}  // namespace quillon
