// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sidebar/SidebarPane.h"

#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/CalmComboBox.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/SidebarSection.h"
#include "Quillon/Views/Controls/TabOrder.h"
#include "Quillon/Views/Sidebar/CheckSections.h"
#include "Quillon/Views/Sidebar/CompareSections.h"
#include "Quillon/Views/Sidebar/ContestSections.h"
#include "Quillon/Views/Sidebar/CrossCheckSections.h"
#include "Quillon/Views/Sidebar/OutdoorSections.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

namespace {

/// A mode as the picker offers it.
struct OfferedMode {
    AppMode mode;
    QString label;
};

std::vector<OfferedMode> offeredModes() {
    return {{AppMode::check, QStringLiteral("Prüfen")},
            {AppMode::compare, QStringLiteral("Vergleichen")},
            {AppMode::stats, QStringLiteral("Statistik")},
            {AppMode::contest, QStringLiteral("Contest")},
            {AppMode::outdoor, QStringLiteral("Outdoor")}};
}

}  // namespace

SidebarPane::SidebarPane(const AppStores& appStores, Settings& userSettings, QWidget* parent)
    : QScrollArea(parent), stores(appStores), settings(userSettings) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(QStringLiteral("Seitenleiste"));

    auto* content = new QWidget(viewport());
    column = new QVBoxLayout(content);
    column->setContentsMargins(12, 12, 12, 12);
    column->setSpacing(18);
    setWidget(content);

    auto* view = new SidebarSection(QStringLiteral("Ansicht"), content);
    modePicker = new CalmComboBox(view);
    for (const OfferedMode& offered : offeredModes()) {
        modePicker->addItem(offered.label, QVariant::fromValue(static_cast<int>(offered.mode)));
    }
    explain(*modePicker,
            QStringLiteral("Was im Fenster zu sehen ist und woran gearbeitet wird: die Tabelle mit der "
                           "Prüfung, der Vergleich zweier Logs, die Statistik, die Wertung eines Contests "
                           "oder die Outdoor-Programme. Darunter stehen die Einstellungen dazu."));
    view->addUnderHeading(modePicker);
    column->addWidget(view);
    column->addStretch(1);

    connect(modePicker, &QComboBox::activated, this, [this](int index) {
        stores.log.setMode(static_cast<AppMode>(modePicker->itemData(index).toInt()));
    });
    connect(&stores.log, &LogStore::modeChanged, this, &SidebarPane::showMode);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, const QWidget* now) {
        if (now != nullptr && widget()->isAncestorOf(now)) {
            showWhole(*now);
        }
    });
    showMode();
}

bool SidebarPane::eventFilter(QObject* object, QEvent* event) {
    if (object == widget() && event->type() == QEvent::LayoutRequest) {
        makeRoom();
    }
    return QScrollArea::eventFilter(object, event);
}

void SidebarPane::makeRoom() {
    const int needed =
        widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    setMinimumWidth(std::clamp(needed, minimumWidth(), maximumWidth()));
}

void SidebarPane::showMode() {
    modePicker->setCurrentIndex(modePicker->findData(static_cast<int>(stores.log.mode())));
    delete sections;
    sections = nullptr;
    if (stores.log.mode() == AppMode::check) {
        auto* check = new CheckSections(stores.log, settings, widget());
        connect(check, &CheckSections::checkRequested, this, &SidebarPane::checkRequested);
        connect(check, &CheckSections::fieldAdded, this, &SidebarPane::fieldAdded);
        sections = check;
    } else if (stores.log.mode() == AppMode::compare) {
        sections = new CompareSections(stores.compare, widget());
    } else if (stores.log.mode() == AppMode::stats) {
        sections = noteLabel(
            QStringLiteral("Auswertung des aktuell geladenen Logbuchs – die Diagramme erscheinen rechts."),
            widget());
    } else if (stores.log.mode() == AppMode::contest) {
        sections = contestSections();
    } else if (stores.log.mode() == AppMode::outdoor) {
        sections = new OutdoorSections(stores.log, widget());
    }
    if (sections != nullptr) {
        column->insertWidget(1, sections);
        putIntoTabOrder(*modePicker, *sections);
    }
}

QWidget* SidebarPane::contestSections() {
    using Pane = ContestStore::Pane;
    ContestStore& contest = stores.contest;
    auto* both = new QWidget(widget());
    auto* bothColumn = new QVBoxLayout(both);
    bothColumn->setContentsMargins(0, 0, 0, 0);
    bothColumn->setSpacing(18);
    auto* choice = new SidebarSection(QStringLiteral("Contest-Ansicht"), both);
    auto* picker = new CalmComboBox(choice);
    picker->addItems({QStringLiteral("Eigenes Log"), QStringLiteral("Cross-Check")});
    explain(*picker, QStringLiteral("„Eigenes Log“ wertet das geöffnete Log. „Cross-Check“ prüft die Logs "
                                    "vieler Stationen gegeneinander und wertet sie danach."));
    choice->addUnderHeading(picker);
    auto* score = new ContestSections(contest, both);
    auto* crossCheck = new CrossCheckSections(stores.crossCheck, contest, both);
    for (QWidget* part :
         {static_cast<QWidget*>(choice), static_cast<QWidget*>(score), static_cast<QWidget*>(crossCheck)}) {
        bothColumn->addWidget(part);
    }
    const auto showPane = [&contest, picker, score, crossCheck] {
        picker->setCurrentIndex(contest.pane() == Pane::score ? 0 : 1);
        score->setVisible(contest.pane() == Pane::score);
        crossCheck->setVisible(contest.pane() == Pane::crossCheck);
    };
    connect(picker, &QComboBox::currentIndexChanged, both,
            [&contest](int index) { contest.setPane(index == 0 ? Pane::score : Pane::crossCheck); });
    connect(&contest, &ContestStore::paneChanged, both, showPane);
    connect(crossCheck, &CrossCheckSections::addLogsRequested, this, &SidebarPane::addLogsRequested);
    connect(crossCheck, &CrossCheckSections::exportRequested, this, &SidebarPane::reportsRequested);
    connect(this, &SidebarPane::reportsOffered, crossCheck, &CrossCheckSections::offerReports);
    crossCheck->offerReports(hasReports);
    showPane();
    return both;
}

void SidebarPane::offerReports(bool offered) {
    hasReports = offered;
    emit reportsOffered(offered);
}

/// Qt brings into view no more than the place where the next letter goes.
void SidebarPane::showWhole(const QWidget& control) {
    constexpr int marginPx = 6;
    const QPoint middle = control.mapTo(widget(), control.rect().center());
    ensureVisible(middle.x(), middle.y(), 0, control.height() / 2 + marginPx);
}

}  // namespace quillon
