#include "Quillon/Views/Detail/RecordDetailView.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/EmptyState.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Detail/FieldRow.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QStackedLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

namespace {

constexpr std::size_t rowsAtOnce = 100;

}  // namespace

RecordDetailView::RecordDetailView(LogStore& logStore, QWidget* parent)
    : QWidget(parent),
      store(logStore),
      pages(new QStackedLayout(this)),
      empty(new EmptyState(QStringLiteral("view-list-details"), QString(), QString(), this)),
      list(new QScrollArea(this)) {
    setAccessibleName(QStringLiteral("QSO-Details"));
    list->setFrameShape(QFrame::NoFrame);
    list->setWidgetResizable(true);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setFocusPolicy(Qt::NoFocus);

    auto* content = new QWidget(list->viewport());
    auto* outer = new QVBoxLayout(content);
    outer->setContentsMargins(12, 12, 12, 12);
    outer->setSpacing(10);
    outer->addWidget(headingLabel(QStringLiteral("Felder"), content));
    column = new QVBoxLayout;
    column->setSpacing(8);
    outer->addLayout(column);
    outer->addStretch(1);
    list->setWidget(content);
    pages->addWidget(empty);
    pages->addWidget(list);
    // The first row holds the place of all of them among what the tab key goes through.
    addRow();
    rows.front()->hide();

    connect(list->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &RecordDetailView::showMoreRowsNearEnd);
    connect(&store, &LogStore::selectionChanged, this, &RecordDetailView::refresh);
    connect(&store, &LogStore::documentChanged, this, &RecordDetailView::refresh);
    refresh();
}

void RecordDetailView::focusLastField() {
    if (shown && !shown->fields().empty()) {
        showRows(shown->fields().size());
        LogTextField& field = rows[shown->fields().size() - 1]->valueField();
        field.setFocus(Qt::OtherFocusReason);
        list->ensureWidgetVisible(&field);
    }
}

void RecordDetailView::refresh() {
    const tallyrig::ADIFRecord* record = store.selectedRecord();
    if (record == nullptr) {
        showNoRecord();
    } else if (!shown || !shown->isSameAs(*record)) {
        showRecord(*record);
    }
}

void RecordDetailView::showRecord(const tallyrig::ADIFRecord& record) {
    const bool isSameRecord = shown && shown->id() == record.id();
    shown = record;
    showRows(isSameRecord ? std::max(shownRows, rowsAtOnce) : rowsAtOnce);
    pages->setCurrentWidget(list);
}

void RecordDetailView::showRows(std::size_t count) {
    const auto fields = shown->fields();
    shownRows = std::min(count, fields.size());
    while (rows.size() < shownRows) {
        addRow();
    }
    for (std::size_t index = 0; index < rows.size(); ++index) {
        if (index < shownRows) {
            rows[index]->show(fields[index].name, fields[index].value);
        }
        rows[index]->setVisible(index < shownRows);
    }
}

void RecordDetailView::showMoreRowsNearEnd() {
    const QScrollBar* const bar = list->verticalScrollBar();
    if (shown && shownRows < shown->fields().size() && bar->value() > bar->maximum() - 2 * bar->pageStep()) {
        showRows(shownRows + rowsAtOnce);
    }
}

void RecordDetailView::showNoRecord() {
    shown.reset();
    const std::size_t count = store.selection().size();
    if (count > 1) {
        empty->setTexts(QString::number(count) + QStringLiteral(" QSOs ausgewählt"),
                        QStringLiteral("Mehrfachbearbeitung folgt später."));
    } else {
        empty->setTexts(QStringLiteral("Kein QSO ausgewählt"),
                        QStringLiteral("Wähle ein QSO in der Tabelle aus."));
    }
    pages->setCurrentWidget(empty);
}

void RecordDetailView::addRow() {
    const std::size_t index = rows.size();
    auto* row = new FieldRow(list->widget());
    connect(row, &FieldRow::valueEdited, this, [this, index](const QString& text) { write(index, text); });
    connect(row, &FieldRow::removeClicked, this, [this, index] { remove(index); });
    column->addWidget(row);
    if (!rows.empty()) {
        setTabOrder(&rows.back()->removeButton(), &row->valueField());
        setTabOrder(&row->valueField(), &row->removeButton());
    }
    rows.push_back(row);
}

void RecordDetailView::write(std::size_t index, const QString& text) {
    if (shown) {
        store.setField(shown->id(), index, text.toStdString());
    }
}

void RecordDetailView::remove(std::size_t index) {
    if (!shown) {
        return;
    }
    store.removeField(shown->id(), index);
    // The row at hand now shows the next field; behind the last one, the keyboard goes on with the field
    // before.
    if (shown && index > 0 && index == shown->fields().size()) {
        rows[index - 1]->removeButton().setFocus();
    }
}

}  // namespace quillon
