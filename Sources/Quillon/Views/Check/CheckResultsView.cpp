#include "Quillon/Views/Check/CheckResultsView.h"

#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Check/IssueDelegate.h"
#include "Quillon/Views/Check/IssueListModel.h"
#include "Quillon/Views/Controls/EmptyState.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QShortcut>
#include <QStackedLayout>
#include <QToolButton>

namespace quillon {

namespace {

QToolButton* headButton(const QString& iconName, const QString& text, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setIcon(icon(iconName));
    button->setToolTip(text);
    button->setAccessibleName(text);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

/// A text with its icon in front, in a widget of their own; gives the text.
QLabel* addCount(QHBoxLayout& head, const QIcon& picture) {
    auto* group = new QWidget(head.parentWidget());
    auto* layout = new QHBoxLayout(group);
    layout->setContentsMargins(0, 0, 10, 0);
    layout->setSpacing(6);
    layout->addWidget(pictureWidget(picture, 16, group));
    auto* text = new QLabel(group);
    layout->addWidget(text);
    head.addWidget(group);
    return text;
}

}  // namespace

CheckResultsView::CheckResultsView(LogStore& logStore, QWidget* parent)
    : QWidget(parent), store(logStore), model(new IssueListModel(logStore, this)) {
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
    body = new QStackedLayout;
    body->addWidget(findings);
    body->addWidget(nothingFound);
    layout->addLayout(body, 1);

    // The model was connected first: its rows are the new ones by the time of `refresh`.
    connect(&store, &LogStore::checkResultsChanged, this, &CheckResultsView::refresh);
    refresh();
}

QWidget* CheckResultsView::makeHead() {
    auto* head = new QWidget(this);
    auto* layout = new QHBoxLayout(head);
    layout->setContentsMargins(12, 3, 6, 3);
    layout->setSpacing(6);
    errors = addCount(*layout, severityIcon(tallyrig::ValidationSeverity::error));
    warnings = addCount(*layout, severityIcon(tallyrig::ValidationSeverity::warning));
    noProblems = addCount(*layout, successIcon());
    noProblems->setText(QStringLiteral("Keine Probleme"));
    layout->addStretch(1);

    QToolButton* again = headButton(QStringLiteral("view-refresh"), QStringLiteral("Erneut prüfen"), head);
    connect(again, &QToolButton::clicked, this, [this] {
        showBusyCursorUntilIdle();
        store.runCheck();
    });
    QToolButton* close =
        headButton(QStringLiteral(":/Icons/close.svg"), QStringLiteral("Ergebnisleiste schließen"), head);
    connect(close, &QToolButton::clicked, this, [this] {
        store.setShowCheckResults(false);
        emit left();
    });
    layout->addWidget(again);
    layout->addWidget(close);
    return head;
}

QWidget* CheckResultsView::makeList() {
    list = new QListView(this);
    list->setAccessibleName(QStringLiteral("Befunde"));
    list->setFrameShape(QFrame::NoFrame);
    list->setUniformItemSizes(true);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setModel(model);
    list->setItemDelegate(new IssueDelegate(*model, list));
    connect(list, &QListView::clicked, this, &CheckResultsView::choose);
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        const QModelIndexList chosen = list->selectionModel()->selectedIndexes();
        if (!chosen.isEmpty()) {
            choose(chosen.first());
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
    errors->setText(QString::number(errorCount) + QStringLiteral(" Fehler"));
    warnings->setText(QString::number(warningCount) + QStringLiteral(" Warnungen"));
    errors->parentWidget()->setVisible(errorCount > 0);
    warnings->parentWidget()->setVisible(warningCount > 0);
    noProblems->parentWidget()->setVisible(errorCount + warningCount == 0);
    body->setCurrentWidget(errorCount + warningCount == 0 ? nothingFound : list);
}

void CheckResultsView::choose(const QModelIndex& finding) {
    const auto index = static_cast<std::size_t>(finding.data(IssueListModel::recordIndexRole).toULongLong());
    store.selectRecord(index);
    if (index < store.document().records().size()) {
        emit recordChosen(store.document().records()[index].id());
    }
}

}  // namespace quillon
