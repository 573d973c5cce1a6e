// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Compare/CompareView.h"

#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Compare/CompareTable.h"
#include "Quillon/Views/Compare/CompareTitle.h"
#include "Quillon/Views/Compare/StatusSign.h"
#include "Quillon/Views/Controls/EmptyState.h"
#include "Quillon/Views/Controls/FlowLayout.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QStackedLayout>
#include <QTextEdit>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

using Status = ComparisonModel::Status;

constexpr std::array allStatus = {Status::equal, Status::differs, Status::onlyLeft, Status::onlyRight};
constexpr std::size_t mostHeaderLines = 200;
constexpr std::size_t longestHeaderValue = 200;

QHBoxLayout* rowIn(QWidget* widget) {
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    return row;
}

QString shown(std::string_view text) {
    return toQString(tallyrig::text::visibleText(cutToShow(text, longestHeaderValue)));
}

/// In quotation marks where nothing else would show that there is white space, or nothing, in the field.
QString shown(const std::optional<std::string>& value) {
    if (!value) {
        return QStringLiteral("—");
    }
    const QString text = shown(std::string_view(*value));
    const bool isPlain = !value->empty() && tallyrig::text::trimmed(*value) == *value;
    return isPlain ? text : QStringLiteral("„%1“").arg(text);
}

}  // namespace

CompareView::CompareView(LogStore& logStore, CompareStore& compareStore, QWidget* parent)
    : QWidget(parent),
      store(compareStore),
      comparison(new ComparisonModel(logStore, compareStore, this)),
      pages(new QStackedLayout) {
    setAccessibleName(QStringLiteral("Vergleich"));
    setFocusPolicy(Qt::NoFocus);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(new CompareTitle(logStore, compareStore, *comparison, this));
    column->addWidget(horizontalLine(this));
    pages->addWidget(emptyPage());
    pages->addWidget(comparisonPage());
    column->addLayout(pages, 1);

    connect(tables, &CompareTable::noticed, this, &CompareView::noticed);
    connect(comparison, &ComparisonModel::logsChanged, this, &CompareView::showComparison);
    connect(comparison, &ComparisonModel::rowChanged, this, &CompareView::showCounts);
    connect(&store, &CompareStore::editsLost, this, [this](const QString& name) {
        emit noticed(QStringLiteral("„%1“ mit ungesicherten Änderungen hat Platz gemacht.").arg(name));
    });
    showComparison();
}

CompareView::~CompareView() {
    // An editor that loses the focus on its way out would still write, by a model that is gone.
    tables->dismissEditors();
}

QWidget* CompareView::emptyPage() {
    return new EmptyState(QStringLiteral("view-split-left-right"), QStringLiteral("Nichts zu vergleichen"),
                          QStringLiteral("Lade links und rechts je eine ADIF-Datei (Seitenleiste, Laden …)."),
                          this);
}

QWidget* CompareView::comparisonPage() {
    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    headerArea = headerBar();
    column->addWidget(headerArea);
    tables = new CompareTable(*comparison, page);
    column->addWidget(tables, 1);
    noDifferences = new EmptyState(QStringLiteral("dialog-ok"), QStringLiteral("Keine Unterschiede"),
                                   QStringLiteral("Alle QSOs sind auf beiden Seiten gleich."), page);
    column->addWidget(noDifferences, 1);
    column->addWidget(horizontalLine(page));
    column->addWidget(summaryBar());
    return page;
}

QWidget* CompareView::headerBar() {
    auto* bar = new QWidget(this);
    auto* column = new QVBoxLayout(bar);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    auto* heading = headingLabel(QStringLiteral("Header-Unterschiede"), bar);
    heading->setContentsMargins(12, 6, 12, 0);
    column->addWidget(heading);
    headerText = new QTextEdit(bar);
    headerText->setAccessibleName(heading->text());
    headerText->setReadOnly(true);
    headerText->setTabChangesFocus(true);
    headerText->setFrameShape(QFrame::NoFrame);
    headerText->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    headerText->viewport()->setAutoFillBackground(false);
    headerText->document()->setDocumentMargin(0);
    connect(headerText->document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
            &CompareView::fitHeaderBar);
    auto* indented = new QHBoxLayout;
    indented->setContentsMargins(12, 0, 0, 6);
    indented->addWidget(headerText);
    column->addLayout(indented);
    column->addWidget(horizontalLine(bar));
    return bar;
}

QWidget* CompareView::summaryBar() {
    auto* bar = new QWidget(this);
    auto* flow = new FlowLayout(bar);
    flow->setContentsMargins(12, 4, 12, 4);
    flow->setSpacing(12);
    for (const Status status : allStatus) {
        auto* entry = new QWidget(bar);
        QLabel*& count = counts[static_cast<std::size_t>(status)];
        count = new QLabel(entry);
        rowIn(entry)->addWidget(new StatusSign(status, entry));
        entry->layout()->addWidget(count);
        flow->addWidget(entry);
    }
    rowCount = new QLabel(bar);
    flow->addWidget(rowCount);
    flow->addWidget(wayThroughDifferences(bar));
    return bar;
}

QWidget* CompareView::wayThroughDifferences(QWidget* parent) {
    auto* way = new QWidget(parent);
    QHBoxLayout* const row = rowIn(way);
    differencesOnly = new QCheckBox(QStringLiteral("Nur Unterschiede"), way);
    explain(*differencesOnly,
            QStringLiteral("Lässt die Zeilen weg, deren QSOs auf beiden Seiten gleich sind. Eine Zeile, die "
                           "beim Bearbeiten gleich wird, bleibt noch stehen."));
    connect(differencesOnly, &QCheckBox::toggled, this, [this](bool only) {
        commitEditing();
        comparison->setDifferencesOnly(only);
    });
    row->addWidget(differencesOnly);
    QToolButton* previous = stepButton(QStringLiteral("Voriger Unterschied"), QStringLiteral("go-up"),
                                       &CompareView::goToPreviousDifference, Qt::ShiftModifier);
    QToolButton* next = stepButton(QStringLiteral("Nächster Unterschied"), QStringLiteral("go-down"),
                                   &CompareView::goToNextDifference, Qt::NoModifier);
    row->addWidget(previous);
    row->addWidget(next);
    tables->addMenuActions({next->defaultAction(), previous->defaultAction()});
    return way;
}

QToolButton* CompareView::stepButton(const QString& text, const QString& iconName,
                                     void (CompareView::*step)(), Qt::KeyboardModifiers keys) {
    auto* action = new QAction(icon(iconName), text, this);
    action->setShortcut(QKeySequence(keys | Qt::Key_F8));
    action->setToolTip(text + QStringLiteral(" (") + action->shortcut().toString(QKeySequence::NativeText) +
                       QLatin1Char(')'));
    connect(action, &QAction::triggered, this, step);
    addAction(action);
    auto* button = new QToolButton(this);
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

std::optional<ComparisonModel::Side> CompareView::sideAt(QPoint point) const {
    const QPoint here = mapFromGlobal(point);
    if (!rect().contains(here)) {
        return std::nullopt;
    }
    return here.x() < width() / 2 ? ComparisonModel::Side::left : ComparisonModel::Side::right;
}

// The way through the differences.

void CompareView::goToNextDifference() {
    commitEditing();
    finishStep(comparison->goToNextDifference());
}

void CompareView::goToPreviousDifference() {
    commitEditing();
    finishStep(comparison->goToPreviousDifference());
}

void CompareView::finishStep(bool isThere) {
    if (isThere) {
        tables->enterSideWithRecord();
    } else {
        emit noticed(comparison->logs().comparison().differences().empty()
                         ? QStringLiteral("Es gibt keine Unterschiede.")
                         : QStringLiteral("Kein weiterer Unterschied in dieser Richtung."));
    }
}

void CompareView::commitEditing() {
    tables->commitEditing();
}

// What is shown.

void CompareView::showComparison() {
    const bool isEmpty = comparison->logs().comparison().rowCount() == 0;
    pages->setCurrentIndex(isEmpty ? 0 : 1);
    setFocusProxy(nullptr);
    setFocusPolicy(isEmpty ? Qt::TabFocus : Qt::NoFocus);
    const bool hasRows = comparison->logs().rowCount() > 0;
    tables->setVisible(hasRows);
    noDifferences->setVisible(!hasRows);
    showHeaderDifferences();
    showCounts();
    if (!isEmpty && hasFocus()) {
        tables->enter();
    }
}

void CompareView::showCounts() {
    const tallyrig::ADIFComparison& found = comparison->logs().comparison();
    const std::array<std::size_t, 4> numbers = {found.counts().equal, found.counts().differs,
                                                found.counts().onlyLeft, found.counts().onlyRight};
    for (const Status status : allStatus) {
        const auto index = static_cast<std::size_t>(status);
        counts[index]->setText(numberText(numbers[index]) + QLatin1Char(' ') +
                               ComparisonModel::statusName(status));
    }
    rowCount->setText(numberText(found.rowCount()) + QStringLiteral(" Zeilen"));
}

void CompareView::showHeaderDifferences() {
    const auto& differences = comparison->logs().comparison().headerDiffs();
    QStringList lines;
    for (const auto& difference : differences) {
        if (static_cast<std::size_t>(lines.size()) == mostHeaderLines) {
            lines.append(QStringLiteral("und %1 weitere").arg(differences.size() - mostHeaderLines));
            break;
        }
        lines.append(QStringLiteral("%1: %2  →  %3")
                         .arg(shown(std::string_view(difference.field)), shown(difference.left),
                              shown(difference.right)));
    }
    headerText->setPlainText(lines.join(QLatin1Char('\n')));
    headerArea->setVisible(!differences.empty());
    fitHeaderBar();
}

/// It leaves the tables most of the height, and can be scrolled by the keyboard where it does not show all.
void CompareView::fitHeaderBar() {
    const int all = static_cast<int>(std::ceil(headerText->document()->size().height()));
    const int most = std::max(height() / 5 - fontMetrics().lineSpacing(), 2 * fontMetrics().lineSpacing());
    headerText->setFixedHeight(std::min(all, most));
    headerText->setFocusPolicy(all > most ? Qt::StrongFocus : Qt::ClickFocus);
}

void CompareView::resizeEvent(QResizeEvent* event) {
    fitHeaderBar();
    QWidget::resizeEvent(event);
}

void CompareView::focusInEvent(QFocusEvent*) {
    if (pages->currentIndex() == 1) {
        tables->enter();
    }
}

void CompareView::hideEvent(QHideEvent* event) {
    comparison->setWatched(false);
    QWidget::hideEvent(event);
}

void CompareView::showEvent(QShowEvent* event) {
    comparison->setWatched(true);
    QWidget::showEvent(event);
}

}  // namespace quillon
