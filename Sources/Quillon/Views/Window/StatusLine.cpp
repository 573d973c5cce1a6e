// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/StatusLine.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QDir>
#include <QHBoxLayout>

namespace quillon {

namespace {

/// File names can hold what turns round the text beside them.
QString visible(const QString& text) {
    return toQString(tallyrig::text::visibleText(text.toStdString()));
}

QString shownPath(const QString& path) {
    return visible(QDir::toNativeSeparators(path));
}

}  // namespace

QString qsoCount(std::size_t count) {
    return numberText(count) + (count == 1 ? QStringLiteral(" QSO") : QStringLiteral(" QSOs"));
}

StatusTexts statusTexts(const LogStore& store) {
    StatusTexts texts;
    texts.records = qsoCount(store.document().records().size());
    if (!store.searchText().isEmpty()) {
        texts.filtered = numberText(store.filteredCount()) + QStringLiteral(" gefiltert");
    }
    if (!store.selection().empty()) {
        texts.selected = numberText(store.selection().size()) + QStringLiteral(" ausgewählt");
    }
    if (store.fileURL()) {
        texts.path = shownPath(*store.fileURL());
    }
    return texts;
}

StatusLine::StatusLine(const LogStore& logStore, QWidget* parent)
    : QWidget(parent),
      store(logStore),
      records(new QLabel(this)),
      filtered(new QLabel(this)),
      selected(new QLabel(this)),
      notice(new ElidedLabel(Qt::ElideRight, this)),
      path(new ElidedLabel(Qt::ElideMiddle, this)) {
    setAccessibleName(QStringLiteral("Statuszeile"));
    path->setForegroundRole(QPalette::PlaceholderText);
    path->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    path->setAccessibleName(QStringLiteral("Datei"));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 4, 12, 4);
    layout->setSpacing(16);
    layout->addWidget(records);
    layout->addWidget(filtered);
    layout->addWidget(selected);
    // Notice and path have what they ask for as long as there is room: of a share they would not.
    layout->addWidget(notice);
    layout->addStretch(1);
    layout->addWidget(path);

    connect(&store, &LogStore::documentChanged, this, &StatusLine::refresh);
    connect(&store, &LogStore::displayedRecordsChanged, this, &StatusLine::refresh);
    connect(&store, &LogStore::searchTextChanged, this, &StatusLine::refresh);
    connect(&store, &LogStore::selectionChanged, this, &StatusLine::refresh);
    connect(&store, &LogStore::fileURLChanged, this, &StatusLine::refresh);
    // What went well before is no news beside an alert.
    connect(&store, &LogStore::errorMessageChanged, this, &StatusLine::refresh);
    refresh();
}

void StatusLine::refresh() {
    const StatusTexts texts = statusTexts(store);
    records->setText(texts.records);
    filtered->setText(texts.filtered);
    filtered->setVisible(!texts.filtered.isEmpty());
    selected->setText(texts.selected);
    selected->setVisible(!texts.selected.isEmpty());
    notice->hide();
    refreshPath();
}

void StatusLine::refreshPath() {
    const QString shown = otherPath.isEmpty() ? statusTexts(store).path : shownPath(otherPath);
    path->setText(shown);
    path->setToolTip(plainToolTip(shown));
}

void StatusLine::showPath(const QString& pathOfOther) {
    otherPath = pathOfOther;
    refreshPath();
}

void StatusLine::showNotice(const QString& text) {
    notice->setText(visible(text));
    notice->setToolTip(plainToolTip(visible(text)));
    notice->show();
}

}  // namespace quillon
