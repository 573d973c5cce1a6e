// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Detail/RecordDetailView.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/EmptyState.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Detail/FieldRow.h"

#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedLayout>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr std::size_t fieldsOnPage = 200;

QToolButton* pageButton(Qt::ArrowType arrow, const QString& text, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    button->setToolTip(text);
    button->setAccessibleName(text);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

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
    outer->setContentsMargins(4, 12, 12, 12);
    outer->setSpacing(8);
    auto* heading = headingLabel(QStringLiteral("Felder"), content);
    heading->setIndent(8);
    outer->addWidget(heading);
    column = new QVBoxLayout;
    column->setSpacing(4);
    outer->addLayout(column);
    outer->addStretch(1);
    list->setWidget(content);
    // The first row holds the place of all of them among what the tab key goes through.
    addRow();
    rows.front()->hide();

    auto* page = new QWidget(this);
    auto* pageLayout = new QVBoxLayout(page);
    pageLayout->setContentsMargins(0, 0, 0, 0);
    pageLayout->setSpacing(0);
    pageLayout->addWidget(list, 1);
    pageLayout->addWidget(makePager());
    pages->addWidget(empty);
    pages->addWidget(page);

    connect(&store, &LogStore::selectionChanged, this, &RecordDetailView::refresh);
    connect(&store, &LogStore::documentChanged, this, &RecordDetailView::refresh);
    refresh();
}

QWidget* RecordDetailView::makePager() {
    pager = new QWidget(this);
    auto* layout = new QHBoxLayout(pager);
    layout->setContentsMargins(12, 4, 12, 4);
    pageLabel = noteLabel(QString(), pager);
    previousPage = pageButton(Qt::LeftArrow, QStringLiteral("Vorige Felder"), pager);
    nextPage = pageButton(Qt::RightArrow, QStringLiteral("Weitere Felder"), pager);
    layout->addWidget(pageLabel, 1);
    layout->addWidget(previousPage);
    layout->addWidget(nextPage);
    const auto turnTo = [this](std::size_t first) {
        showPage(first);
        list->verticalScrollBar()->setValue(0);
    };
    connect(previousPage, &QToolButton::clicked, this,
            [this, turnTo] { turnTo(firstField - std::min(firstField, fieldsOnPage)); });
    connect(nextPage, &QToolButton::clicked, this, [this, turnTo] { turnTo(firstField + fieldsOnPage); });
    return pager;
}

void RecordDetailView::focusLastField() {
    if (fieldCount() > 0) {
        bringIntoView(fieldCount() - 1).valueField().setFocus(Qt::OtherFocusReason);
    }
}

void RecordDetailView::showField(const std::string& name, std::optional<std::size_t> position) {
    dropMark();
    if (!shown) {
        return;
    }
    if (position && *position < fieldCount()) {
        marked = position;
        markedName = shown->fields()[*marked].name;
    } else if (!position && !name.empty()) {
        offered = name;
    }
    showPage(firstField);
    if (marked || offered) {
        bringIntoView(marked.value_or(fieldCount()));
    }
}

void RecordDetailView::dropMark() {
    marked.reset();
    offered.reset();
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
    if (!isSameRecord) {
        dropMark();
    } else if (offered && record.has(*offered)) {
        // What was missing is the last field now, and what the user is about to type.
        marked = fieldCount() - 1;
        markedName = *std::exchange(offered, std::nullopt);
    }
    showPage(isSameRecord ? firstField : 0);
    pages->setCurrentIndex(1);
}

void RecordDetailView::showPage(std::size_t first) {
    const auto fields = shown->fields();
    const std::size_t lastPage = rowCount() == 0 ? 0 : (rowCount() - 1) / fieldsOnPage * fieldsOnPage;
    firstField = std::min(first, lastPage);
    const std::size_t count = std::min(fieldsOnPage, rowCount() - firstField);
    if (marked && (*marked >= fields.size() || fields[*marked].name != markedName)) {
        marked.reset();
    }
    while (rows.size() < count) {
        addRow();
    }
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const std::size_t position = firstField + row;
        if (row < count && position < fields.size()) {
            rows[row]->show(fields[position].name, fields[position].value);
            rows[row]->setMarked(marked == position);
        } else if (row < count) {
            rows[row]->offer(*offered);
            rows[row]->setMarked(true);
        }
        rows[row]->setVisible(row < count);
    }
    pager->setVisible(rowCount() > fieldsOnPage);
    pageLabel->setText(
        QStringLiteral("%1 bis %2 von %3 Feldern")
            .arg(numberText(firstField + 1), numberText(firstField + count), numberText(rowCount())));
    previousPage->setEnabled(firstField > 0);
    nextPage->setEnabled(firstField < lastPage);
}

FieldRow& RecordDetailView::bringIntoView(std::size_t position) {
    const std::size_t page = position / fieldsOnPage * fieldsOnPage;
    if (page != firstField) {
        showPage(page);
    }
    FieldRow* const row = rows[position - firstField];
    // A row that was just added has its place when the events at hand are done.
    QTimer::singleShot(0, row, [this, row] { list->ensureWidgetVisible(row); });
    return *row;
}

void RecordDetailView::showNoRecord() {
    shown.reset();
    dropMark();
    const std::size_t count = store.selection().size();
    if (count > 1) {
        empty->setTexts(numberText(count) + QStringLiteral(" QSOs ausgewählt"),
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
        // First all values, then all buttons.
        setTabOrder(&rows.back()->valueField(), &row->valueField());
        setTabOrder(&rows.back()->removeButton(), &row->removeButton());
    }
    rows.push_back(row);
}

void RecordDetailView::write(std::size_t row, const QString& text) {
    const std::size_t position = firstField + row;
    if (position < fieldCount()) {
        store.setField(shown->id(), position, text.toStdString());
    } else if (offered && !text.isEmpty()) {
        store.addField(shown->id(), std::string(*offered), text.toStdString());
    }
}

void RecordDetailView::remove(std::size_t row) {
    const std::size_t position = firstField + row;
    if (position >= fieldCount()) {
        return;
    }
    store.removeField(shown->id(), position);
    // The keyboard goes on in the value of the field that moved up, or else of the last one, and not on the
    // button, where a second press would remove that field as well.
    if (fieldCount() > 0) {
        bringIntoView(std::min(position, fieldCount() - 1)).valueField().setFocus(Qt::OtherFocusReason);
    }
}

}  // namespace quillon
