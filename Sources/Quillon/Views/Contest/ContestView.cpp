// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Contest/ContestView.h"

#include "Quillon/Catalogue/ScoreWords.h"
#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Card.h"
#include "Quillon/Views/Controls/EmptyState.h"
#include "Quillon/Views/Controls/FindingList.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Controls/TabOrder.h"
#include "Quillon/Views/Controls/Tile.h"
#include "Quillon/Views/Controls/TileLayout.h"
#include "Tallyrig/Contest/ContestChecker.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QStackedLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <string_view>
#include <utility>

namespace quillon {

namespace {

using tallyrig::ContestQSOResult;
using tallyrig::ContestScore;

constexpr int widestPagePx = 1200;
constexpr int marginPx = 16;
/// So wide that the eye still goes from a name to its number.
constexpr int widestRowPx = 420;

constexpr int typingPauseMs = 300;

QString number(std::int64_t figure) {
    return toQString(ScoreWords::number(figure));
}

QString number(std::size_t count) {
    return number(static_cast<std::int64_t>(count));
}

QString shown(std::string_view text) {
    return toQString(tallyrig::text::visibleText(cutToShow(text)));
}

FindingRow rowOf(const ContestQSOResult& qso, const tallyrig::ADIFRecord& record) {
    const QString call = shown(record.valueOrEmpty("CALL"));
    return {.number = QStringLiteral("#") + number(qso.index + 1),
            .time = {},
            .call = call.isEmpty() ? QStringLiteral("—") : call,
            .band = std::string(cutToShow(record.valueOrEmpty("BAND"))),
            .badge = {},
            .text = shown(ScoreWords::reason(qso)),
            .counterpart = {}};
}

}  // namespace

ContestView::ContestView(LogStore& logStore, const ContestStore& contestStore, std::size_t mostIssues,
                         QWidget* parent)
    : QWidget(parent),
      log(logStore),
      contest(contestStore),
      issueLimit(mostIssues),
      body(new QStackedLayout(this)),
      page(new QScrollArea(this)) {
    setAccessibleName(QStringLiteral("Wertung"));
    auto* content = new QWidget(page);
    auto* column = new QVBoxLayout(content);
    column->setSpacing(12);
    column->addWidget(scoreCard());
    column->addWidget(keyFigures());
    column->addWidget(multiplierCard());
    column->addWidget(issuesCard());
    column->addStretch(1);
    page->setFrameShape(QFrame::NoFrame);
    page->setWidgetResizable(true);
    page->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    page->setWidget(content);
    page->setAccessibleName(QStringLiteral("Wertung"));
    body->addWidget(new EmptyState(QStringLiteral("view-statistics"), QStringLiteral("Kein Log geladen"),
                                   QStringLiteral("Öffne ein Contest-Log, um es zu prüfen und zu punkten."),
                                   this));
    body->addWidget(page);
    handKeyboardOn(*this, [this] { return page; });
    page->installEventFilter(this);

    pause.setSingleShot(true);
    connect(&pause, &QTimer::timeout, this, &ContestView::score);
    connect(&log, &LogStore::documentChanged, this, &ContestView::scoreWhenIdle);
    connect(&contest, &ContestStore::contestChanged, this, &ContestView::scoreWhenIdle);
    connect(&contest, &ContestStore::ownStationChanged, this, &ContestView::scoreWhenTyped);
    connect(&contest, &ContestStore::genericContestChanged, this, &ContestView::scoreWhenTyped);
}

Card* ContestView::scoreCard() {
    auto* card = new Card(QString(), this);
    head = card;
    contestName = titleLabel(QString(), card);
    makeCopyable(*contestName);
    total = figureLabel(2.8, card);
    QLabel* caption = noteLabel(QStringLiteral("Punkte"), card);
    formula = noteLabel(QString(), card);
    makeCopyable(*formula);
    card->content().addWidget(contestName);
    auto* figure = new QHBoxLayout;
    figure->setSpacing(8);
    figure->addWidget(total, 0, Qt::AlignBaseline);
    figure->addWidget(caption, 1, Qt::AlignBaseline);
    card->content().addLayout(figure);
    card->content().addWidget(formula);
    return card;
}

QWidget* ContestView::keyFigures() {
    auto* area = new QWidget(this);
    auto* layout = new TileLayout(area);
    const char* const captions[] = {"QSOs gesamt", "gewertet",   "Dubletten",
                                    "ungültig",    "QSO-Punkte", "Multiplikatoren"};
    for (std::size_t index = 0; index < tiles.size(); ++index) {
        tiles[index] = new Tile(QString::fromUtf8(captions[index]), area);
        layout->addWidget(tiles[index]);
    }
    return area;
}

Card* ContestView::multiplierCard() {
    multipliers = new Card(QStringLiteral("Multiplikatoren"), this);
    return multipliers;
}

Card* ContestView::issuesCard() {
    issues = new Card(QString(), this);
    noIssues = new QLabel(QStringLiteral("Keine – alle QSOs werden gewertet."), issues);
    issueList = new FindingList(QStringLiteral("Zum QSO springen (öffnet die Check-Ansicht)"),
                                FindingList::Height::ofRows, issues);
    issueList->setAccessibleName(QStringLiteral("Auffälligkeiten"));
    furtherIssues = noteLabel(QString(), issues);
    for (QWidget* part : {static_cast<QWidget*>(noIssues), static_cast<QWidget*>(issueList),
                          static_cast<QWidget*>(furtherIssues)}) {
        issues->content().addWidget(part);
    }
    connect(issueList, &FindingList::pressed, this,
            [this](int row) { goTo(issueRecords[static_cast<std::size_t>(row)]); });
    connect(issueList, &FindingList::currentRowMoved, this, [this](const QRect& place) {
        const QPoint middle = issueList->viewport()->mapTo(page->widget(), place.center());
        page->ensureVisible(middle.x(), middle.y(), 0, place.height());
    });
    return issues;
}

void ContestView::scoreWhenIdle() {
    scoreAfter(0);
}

void ContestView::scoreWhenTyped() {
    scoreAfter(log.document().records().size() > longLog ? typingPauseMs : 0);
}

void ContestView::scoreAfter(int pauseMs) {
    isStale = true;
    if (isVisible()) {
        pause.start(pauseMs);
    }
}

/// A pane that takes the keyboard, to be scrolled by it, shows that it has it.
bool ContestView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == page && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)) {
        head->setFramed(event->type() == QEvent::FocusIn);
    }
    return QWidget::eventFilter(watched, event);
}

void ContestView::hideEvent(QHideEvent* event) {
    pause.stop();
    QWidget::hideEvent(event);
}

void ContestView::showEvent(QShowEvent* event) {
    if (isStale) {
        score();
    }
    QWidget::showEvent(event);
}

/// Lines that run from one end of a wide screen to the other are hard to read.
void ContestView::resizeEvent(QResizeEvent* event) {
    const int side = std::max(marginPx, (width() - widestPagePx) / 2);
    page->widget()->layout()->setContentsMargins(side, marginPx, side, marginPx);
    QWidget::resizeEvent(event);
}

void ContestView::score() {
    pause.stop();
    isStale = false;
    if (log.document().records().size() > longLog) {
        showBusyCursorUntilIdle();
    }
    const ContestScore score =
        tallyrig::ContestChecker(contest.rules(contest.station())).score(log.document());
    body->setCurrentIndex(score.totalQSOs == 0 ? 0 : 1);
    showFigures(score);
    showMultipliers(score);
    showIssues(score);
    emit scored();
}

void ContestView::showFigures(const ContestScore& score) {
    setWrappedText(*contestName, shown(score.contestName));
    total->setText(number(score.total));
    total->setAccessibleName(number(score.total) + QStringLiteral(" Punkte"));
    formula->setText(toQString(ScoreWords::formula(score)));
    tiles[0]->setFigure(number(score.totalQSOs));
    tiles[1]->setFigure(number(score.countedQSOs));
    tiles[2]->setFigure(number(score.dupeQSOs), score.dupeQSOs > 0 ? Tone::warning : Tone::plain);
    tiles[3]->setFigure(number(score.invalidQSOs), score.invalidQSOs > 0 ? Tone::error : Tone::plain);
    tiles[4]->setFigure(number(score.qsoPoints));
    tiles[5]->setFigure(number(score.multiplierCount));
}

void ContestView::showMultipliers(const ContestScore& score) {
    delete multiplierRows;
    multiplierRows = new QWidget(multipliers);
    auto* grid = new QGridLayout(multiplierRows);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(0, 1);
    multiplierRows->setMaximumWidth(widestRowPx);
    for (const ContestScore::Breakdown& multiplier : score.multiplierBreakdown) {
        const int row = grid->rowCount();
        auto* name = new QLabel(multiplierRows);
        name->setTextFormat(Qt::PlainText);
        setWrappedText(*name, shown(multiplier.name));
        makeCopyable(*name);
        auto* count = new QLabel(number(multiplier.count), multiplierRows);
        count->setTextFormat(Qt::PlainText);
        count->setAccessibleName(name->text() + QStringLiteral(": ") + count->text());
        makeCopyable(*count);
        grid->addWidget(name, row, 0);
        grid->addWidget(count, row, 1, Qt::AlignRight);
    }
    multipliers->content().addWidget(multiplierRows);
    multiplierRows->show();
    multipliers->setVisible(!score.multiplierBreakdown.empty());
}

void ContestView::showIssues(const ContestScore& score) {
    const auto& records = log.document().records();
    std::vector<FindingRow> rows;
    issueRecords.clear();
    std::size_t count = 0;
    for (const ContestQSOResult& qso : score.results) {
        if (!qso.isFlagged()) {
            continue;
        }
        ++count;
        if (rows.size() < issueLimit) {
            rows.push_back(rowOf(qso, records[qso.index]));
            issueRecords.push_back(qso.index);
        }
    }
    const std::size_t further = count - rows.size();
    issues->setHeading(QStringLiteral("Auffälligkeiten (") + number(count) + QLatin1Char(')'));
    noIssues->setVisible(count == 0);
    issueList->setVisible(count > 0);
    issueList->setFindings(std::move(rows));
    furtherIssues->setText(number(further) + QStringLiteral(" weitere"));
    furtherIssues->setVisible(further > 0);
}

void ContestView::goTo(std::size_t recordIndex) {
    // What the row was made of may have gone meanwhile.
    if (const auto record = log.showRecord(recordIndex)) {
        emit qsoWanted(*record);
    }
}

}  // namespace quillon
