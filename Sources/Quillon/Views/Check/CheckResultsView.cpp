// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Check/CheckResultsView.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Check/IssueListModel.h"
#include "Quillon/Views/Controls/CopyableList.h"
#include "Quillon/Views/Controls/EmptyState.h"
#include "Quillon/Views/Controls/FindingDelegate.h"
#include "Quillon/Views/Controls/IconButton.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Validation/FindingPlace.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QStackedLayout>
#include <QToolButton>

namespace quillon {

namespace {

constexpr int filterWidthPx = 200;

/// The number of findings of a severity, at the same time the switch that shows and hides them.
QToolButton* countSwitch(tallyrig::ValidationSeverity severity, const QString& toolTip, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setIcon(severityIcon(severity));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setToolTip(toolTip);
    button->setAutoRaise(true);
    button->setCheckable(true);
    button->setChecked(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

}  // namespace

CheckResultsView::CheckResultsView(LogStore& logStore, QWidget* parent) : QWidget(parent), store(logStore) {
    // Connected before the model, which fills the list anew.
    connect(&store, &LogStore::checkResultsChanged, this, [this] { chosenIssue.reset(); });
    model = new IssueListModel(store, this);
    setAccessibleName(QStringLiteral("Prüfergebnisse"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    // Made first, so that the tab key comes to the findings before it comes to the buttons.
    QWidget* const findings = makeList();
    setFocusProxy(list);
    setFocusPolicy(list->focusPolicy());
    layout->addWidget(makeHead());
    layout->addWidget(horizontalLine(this));

    nothingFound =
        new EmptyState(checkIcon(), QStringLiteral("Keine Probleme gefunden"),
                       QStringLiteral("Pflichtfelder, Formate und Dubletten sind in Ordnung."), this);
    nothingPasses = new EmptyState(QStringLiteral("search"), QStringLiteral("Keine passenden Befunde"),
                                   QStringLiteral("Kein Befund passt zum Filter."), this);
    body = new QStackedLayout;
    body->addWidget(findings);
    body->addWidget(nothingFound);
    body->addWidget(nothingPasses);
    layout->addLayout(body, 1);

    // The model was connected first: its rows are the new ones by the time of `refresh`.
    connect(&store, &LogStore::checkResultsChanged, this, &CheckResultsView::refresh);
    connect(&store, &LogStore::selectionChanged, this, &CheckResultsView::followSelection);
    connect(model, &IssueListModel::filtered, this, &CheckResultsView::showBody);
    connect(model, &IssueListModel::rowsInserted, this, &CheckResultsView::markChosen);
    refresh();
}

QWidget* CheckResultsView::makeHead() {
    auto* head = new QWidget(this);
    auto* layout = new QHBoxLayout(head);
    layout->setContentsMargins(12, 3, 6, 3);
    layout->setSpacing(6);
    errors = countSwitch(tallyrig::ValidationSeverity::error, QStringLiteral("Fehler zeigen"), head);
    warnings = countSwitch(tallyrig::ValidationSeverity::warning, QStringLiteral("Warnungen zeigen"), head);
    noProblems = new QWidget(head);
    auto* noProblemsLayout = new QHBoxLayout(noProblems);
    noProblemsLayout->setContentsMargins(0, 0, 10, 0);
    noProblemsLayout->setSpacing(6);
    noProblemsLayout->addWidget(pictureWidget(successIcon(), 16, noProblems));
    noProblemsLayout->addWidget(new QLabel(QStringLiteral("Keine Probleme"), noProblems));
    filterField = new QLineEdit(head);
    filterField->setPlaceholderText(QStringLiteral("Filtern"));
    filterField->setAccessibleName(QStringLiteral("Befunde filtern"));
    filterField->setWhatsThis(
        QStringLiteral("Zeigt nur die Befunde, in deren Zeile der Text steht. Die Befunde selbst und die "
                       "Zeichen in der Tabelle bleiben, wie sie sind."));
    filterField->setClearButtonEnabled(true);
    filterField->setMaximumWidth(filterWidthPx);
    filterField->setAcceptDrops(false);
    for (QToolButton* count : {errors, warnings}) {
        connect(count, &QToolButton::toggled, this, &CheckResultsView::applyFilter);
        layout->addWidget(count);
    }
    connect(filterField, &QLineEdit::textChanged, this, &CheckResultsView::applyFilter);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
        new QShortcut(key, filterField, this, &CheckResultsView::enterFindings, Qt::WidgetShortcut);
    }
    new QShortcut(Qt::Key_Escape, filterField, filterField, &QLineEdit::clear, Qt::WidgetShortcut);
    layout->addWidget(noProblems);
    layout->addStretch(1);
    layout->addWidget(filterField, 2);

    QToolButton* again = iconButton(QStringLiteral("view-refresh"), QStringLiteral("Erneut prüfen"), head);
    connect(again, &QToolButton::clicked, this, &CheckResultsView::checkRequested);
    QToolButton* close =
        iconButton(QStringLiteral(":/Icons/close.svg"), QStringLiteral("Ergebnisleiste schließen"), head);
    connect(close, &QToolButton::clicked, this, [this] {
        store.setShowCheckResults(false);
        emit left();
    });
    layout->addWidget(again);
    layout->addWidget(close);
    return head;
}

QWidget* CheckResultsView::makeList() {
    list = new CopyableList(Qt::DisplayRole, this);
    list->setAccessibleName(QStringLiteral("Befunde"));
    list->setModel(model);
    list->setItemDelegate(
        new FindingDelegate([this] { return model->longestLine(); }, FindingDelegate::Excerpts::none, list));
    // A second look at a finding that is chosen already.
    connect(list, &QListView::clicked, this, [this](const QModelIndex& finding) {
        if (list->chosenCount() == 1) {
            choose(finding);
        }
    });
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!isMarking && list->chosenCount() == 1) {
            choose(list->selectionModel()->selection().first().topLeft());
        }
    });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        new QShortcut(key, list, this, &CheckResultsView::left, Qt::WidgetShortcut);
    }
    return list;
}

void CheckResultsView::refresh() {
    const std::size_t errorCount = store.errorCount();
    const std::size_t warningCount = store.warningCount();
    errors->setText(numberText(errorCount) + QStringLiteral(" Fehler"));
    warnings->setText(numberText(warningCount) + QStringLiteral(" Warnungen"));
    errors->setVisible(errorCount > 0);
    warnings->setVisible(warningCount > 0);
    noProblems->setVisible(errorCount + warningCount == 0);
    filterField->setVisible(errorCount + warningCount > 0);
    showBody();
}

void CheckResultsView::showBody() {
    const bool isEmpty = model->rowCount() == 0 && !model->isFiltering();
    body->setCurrentWidget(store.validationIssues().empty() ? nothingFound : isEmpty ? nothingPasses : list);
}

void CheckResultsView::applyFilter() {
    model->setFilter({errors->isChecked(), warnings->isChecked(), filterField->text()});
    markChosen();
    showBody();
}

void CheckResultsView::markChosen() {
    const auto row = chosenIssue ? model->rowOf(*chosenIssue) : std::nullopt;
    if (row && !list->selectionModel()->hasSelection()) {
        const QScopedValueRollback guard(isMarking, true);
        list->setCurrentIndex(model->index(*row, 0));
    }
}

void CheckResultsView::followSelection() {
    const LogStore::Selection& selected = store.selection();
    if (chosenIssue && !(selected.size() == 1 && selected.contains(chosenRecord))) {
        chosenIssue.reset();
        list->clearSelection();
    }
}

void CheckResultsView::enterFindings() {
    // The list would make the first finding its current one without choosing it, and the next key pass over
    // it.
    if (model->rowCount() > 0 && !list->selectionModel()->hasSelection()) {
        list->setCurrentIndex(model->index(0, 0));
    }
    list->setFocus();
}

void CheckResultsView::choose(const QModelIndex& finding) {
    const auto index = static_cast<std::size_t>(finding.data(IssueListModel::issueIndexRole).toULongLong());
    // Taken along: what changes in the store from here on may replace the findings.
    const tallyrig::ValidationIssue issue = store.validationIssues()[index];
    const auto& records = store.document().records();
    if (issue.recordIndex >= records.size()) {
        return;
    }
    const tallyrig::ADIFRecord record = records[issue.recordIndex];
    if (!store.displayedRow(record.id())) {
        store.setSearchText(QString());
    }
    chosenIssue = index;
    chosenRecord = record.id();
    store.selectRecord(issue.recordIndex);
    const tallyrig::FindingPlace place = tallyrig::placeOf(issue.kind(), record);
    emit findingChosen(record.id(), std::string(place.field), place.position);
}

}  // namespace quillon
