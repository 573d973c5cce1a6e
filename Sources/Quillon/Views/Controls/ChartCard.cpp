// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/ChartCard.h"

#include "Quillon/Views/Controls/Chart.h"
#include "Quillon/Views/Controls/ChartNumbers.h"
#include "Quillon/Views/Controls/DisclosureButton.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QVBoxLayout>

#include <utility>

namespace quillon {

ChartCard::ChartCard(ChartPainter* painter, QWidget* parent)
    : Card(QString(), parent), nothing(noteLabel(QString(), this)) {
    content().addWidget(nothing);
    if (painter != nullptr) {
        buildChart(*painter);
    } else {
        addNumbers();
    }
    content().addStretch(1);
}

void ChartCard::buildChart(ChartPainter& painter) {
    bars = new Chart(painter, this);
    scrollBar = new QScrollBar(Qt::Horizontal, this);
    opener = new DisclosureButton(QStringLiteral("Zahlen zeigen"), this);
    content().addWidget(bars);
    content().addWidget(scrollBar);
    content().addWidget(opener, 0, Qt::AlignLeft);
    scrollBar->hide();
    connect(bars, &Chart::focusChanged, this, &Card::setFramed);
    connect(bars, &Chart::sightChanged, this, &ChartCard::fitScrollBar);
    connect(scrollBar, &QScrollBar::valueChanged, bars,
            [this](int first) { bars->showFrom(static_cast<std::size_t>(first)); });
    connect(opener, &DisclosureButton::expandedChanged, this, &ChartCard::fillNumbers);
}

void ChartCard::addNumbers() {
    numbers = new ChartNumbers(this);
    content().insertWidget(content().indexOf(opener != nullptr ? static_cast<QWidget*>(opener) : nothing) + 1,
                           numbers);
}

void ChartCard::setData(ChartData chartData) {
    data = std::make_shared<const ChartData>(std::move(chartData));
    const bool isEmpty = data->entries.empty();
    setHeading(data->title);
    nothing->setText(data->nothing);
    nothing->setVisible(isEmpty);
    if (bars != nullptr) {
        bars->setData(data);
        bars->setVisible(!isEmpty);
        opener->setVisible(!isEmpty);
        opener->setAccessibleName(data->title + QStringLiteral(", Zahlen zeigen"));
        scrollBar->setAccessibleName(data->title + QStringLiteral(", Ausschnitt"));
        fitScrollBar();
    }
    fillNumbers();
}

QWidget* ChartCard::firstControl() const {
    if (data->entries.empty()) {
        return nullptr;
    }
    return bars != nullptr ? static_cast<QWidget*>(bars) : numbers;
}

void ChartCard::fitScrollBar() {
    const ChartGeometry& places = bars->places();
    const auto beyond = static_cast<int>(places.barCount() - places.barsInSight());
    scrollBar->setPageStep(static_cast<int>(places.barsInSight()));
    scrollBar->setRange(0, beyond);
    scrollBar->setValue(static_cast<int>(places.firstBar()));
    scrollBar->setVisible(beyond > 0);
}

void ChartCard::showNumbers(bool shown) {
    if (opener != nullptr) {
        opener->setExpanded(shown);
    }
}

void ChartCard::fillNumbers() {
    const bool isWanted = (opener == nullptr || opener->isExpanded()) && !data->entries.empty();
    if (numbers == nullptr && isWanted) {
        addNumbers();
        QWidget::setTabOrder(opener, numbers);
    }
    if (numbers != nullptr) {
        if (isWanted) {
            numbers->setData(data);
        }
        numbers->setVisible(isWanted);
    }
}

void ChartCard::copyNumbers() const {
    QGuiApplication::clipboard()->setText(data->numbers());
}

void ChartCard::contextMenuEvent(QContextMenuEvent* event) {
    if (data->entries.empty()) {
        return;
    }
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (bars != nullptr) {
        menu->addAction(icon(QStringLiteral("edit-copy")), QStringLiteral("Diagramm kopieren"), bars,
                        &Chart::copyPicture);
    }
    menu->addAction(icon(QStringLiteral("edit-copy")), QStringLiteral("Zahlen kopieren"), this,
                    &ChartCard::copyNumbers);
    if (opener != nullptr) {
        menu->addSeparator();
        QAction* show = menu->addAction(QStringLiteral("Zahlen zeigen"));
        show->setCheckable(true);
        show->setChecked(opener->isExpanded());
        connect(show, &QAction::toggled, this, &ChartCard::showNumbers);
    }
    menu->popup(event->globalPos());
}

}  // namespace quillon
