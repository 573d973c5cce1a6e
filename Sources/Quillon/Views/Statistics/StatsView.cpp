// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Statistics/StatsView.h"

#include "Quillon/Catalogue/StatisticsWords.h"
#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/ChartCard.h"
#include "Quillon/Views/Controls/EmptyState.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Controls/TabOrder.h"
#include "Quillon/Views/Controls/Tile.h"
#include "Quillon/Views/Controls/TileLayout.h"
#include "Quillon/Views/Statistics/StatisticsCharts.h"

#include <QLabel>
#include <QScrollArea>
#include <QStackedLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr int widestPagePx = 1200;
constexpr int marginPx = 16;
constexpr int gapPx = 12;

}  // namespace

StatsView::StatsView(const LogStore& logStore, ChartPainter* painter, QWidget* parent)
    : QWidget(parent),
      log(logStore),
      body(new QStackedLayout(this)),
      page(new QScrollArea(this)),
      keyboardPart(page) {
    setAccessibleName(QStringLiteral("Statistik"));
    auto* content = new QWidget(page);
    auto* column = new QVBoxLayout(content);
    column->setSpacing(gapPx);
    column->addWidget(keyFigures());
    if (painter == nullptr) {
        column->addWidget(noteLabel(
            QStringLiteral("Der Teil von Quillon, der Diagramme zeichnet, ist nicht da (QuillonCharts). Die "
                           "Zahlen stehen in Tabellen."),
            content));
    }
    column->addWidget(bandsAndModes(painter));
    days = new ChartCard(painter, content);
    countries = new ChartCard(painter, content);
    column->addWidget(days);
    column->addWidget(countries);
    column->addStretch(1);
    page->setFrameShape(QFrame::NoFrame);
    page->setWidgetResizable(true);
    page->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    page->setWidget(content);
    page->setAccessibleName(QStringLiteral("Statistik"));
    body->addWidget(new EmptyState(QStringLiteral("view-statistics"), QStringLiteral("Keine Statistik"),
                                   QStringLiteral("Öffne ein Logbuch mit QSOs, um Auswertungen zu sehen."),
                                   this));
    body->addWidget(page);
    handKeyboardOn(*this, [this] { return keyboardPart; });
    pause.setSingleShot(true);
    connect(&pause, &QTimer::timeout, this, &StatsView::compute);
    connect(&log, &LogStore::documentChanged, this, &StatsView::computeWhenIdle);
}

/// Four short ones of equal size, and the long one beside them or, in a narrow pane, below.
QWidget* StatsView::keyFigures() {
    auto* area = new QWidget(this);
    figures = new QBoxLayout(QBoxLayout::LeftToRight, area);
    figures->setContentsMargins(0, 0, 0, 0);
    figures->setSpacing(gapPx);
    auto* four = new QWidget(area);
    auto* layout = new TileLayout(four);
    for (Tile*& tile : tiles) {
        tile = new Tile(QString(), four);
        layout->addWidget(tile);
    }
    tiles[0]->setCaption(QStringLiteral("QSOs"));
    tiles[1]->setCaption(QStringLiteral("Rufzeichen"));
    period = new Tile(QStringLiteral("Zeitraum"), area);
    figures->addWidget(four, 1);
    figures->addWidget(period);
    return area;
}

QWidget* StatsView::bandsAndModes(ChartPainter* painter) {
    auto* area = new QWidget(this);
    auto* layout = new TileLayout(area);
    bands = new ChartCard(painter, area);
    modes = new ChartCard(painter, area);
    layout->addWidget(bands);
    layout->addWidget(modes);
    return area;
}

void StatsView::computeWhenIdle() {
    isStale = true;
    if (isVisible()) {
        pause.start(0);
    }
}

void StatsView::hideEvent(QHideEvent* event) {
    pause.stop();
    QWidget::hideEvent(event);
}

void StatsView::showEvent(QShowEvent* event) {
    if (isStale) {
        compute();
    }
    QWidget::showEvent(event);
}

/// Lines that run from one end of a wide screen to the other are hard to read.
void StatsView::resizeEvent(QResizeEvent* event) {
    const int side = std::max(marginPx, (width() - widestPagePx) / 2);
    page->widget()->layout()->setContentsMargins(side, marginPx, side, marginPx);
    arrangeTiles(width() - 2 * side);
    QWidget::resizeEvent(event);
}

void StatsView::arrangeTiles(int width) {
    const auto shortTiles = static_cast<int>(tiles.size());
    int widest = 0;
    for (const Tile* tile : tiles) {
        widest = std::max(widest, tile->sizeHint().width());
    }
    const int needed = shortTiles * (widest + gapPx) + period->sizeHint().width();
    figures->setDirection(needed <= width ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

/// The first chart takes the keyboard: it shows that it has it, and the keys that it has no use for scroll.
void StatsView::takeKeyboard() {
    QWidget* first = nullptr;
    for (const ChartCard* card : {bands, modes, days, countries}) {
        first = first != nullptr ? first : card->firstControl();
    }
    page->setFocusPolicy(first != nullptr ? Qt::NoFocus : Qt::StrongFocus);
    keyboardPart = first != nullptr ? first : page;
}

void StatsView::compute() {
    pause.stop();
    isStale = false;
    if (log.document().records().size() > longLog) {
        showBusyCursorUntilIdle();
    }
    fill(tallyrig::ADIFStatistics(log.document()));
    emit computed();
}

void StatsView::fill(tallyrig::ADIFStatistics statistics) {
    body->setCurrentIndex(statistics.isEmpty() ? 0 : 1);
    const std::size_t bandCount = statistics.byBand.size();
    const std::size_t modeCount = statistics.byMode.size();
    tiles[0]->setFigure(numberText(statistics.total));
    tiles[1]->setFigure(numberText(statistics.uniqueCalls));
    tiles[2]->setCaption(bandCount == 1 ? QStringLiteral("Band") : QStringLiteral("Bänder"));
    tiles[2]->setFigure(numberText(bandCount));
    tiles[3]->setCaption(modeCount == 1 ? QStringLiteral("Modus") : QStringLiteral("Modi"));
    tiles[3]->setFigure(numberText(modeCount));
    period->setFigure(toQString(StatisticsWords::period(statistics)));
    period->setVisible(statistics.firstDate.has_value());
    bands->setData(StatisticsCharts::bands(std::move(statistics.byBand)));
    modes->setData(StatisticsCharts::modes(std::move(statistics.byMode)));
    days->setVisible(!statistics.byDay.empty());
    days->setData(StatisticsCharts::days(statistics.byDay));
    countries->setVisible(!statistics.byCountry.empty());
    countries->setData(StatisticsCharts::countries(std::move(statistics.byCountry)));
    takeKeyboard();
    arrangeTiles(page->widget()->layout()->contentsRect().width());
}

}  // namespace quillon
