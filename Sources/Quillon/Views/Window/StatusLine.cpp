#include "Quillon/Views/Window/StatusLine.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Labels.h"

#include <QDir>
#include <QHBoxLayout>

namespace quillon {

StatusTexts statusTexts(const LogStore& store) {
    StatusTexts texts;
    const std::size_t count = store.document().records().size();
    texts.records = QString::number(count) + (count == 1 ? QStringLiteral(" QSO") : QStringLiteral(" QSOs"));
    if (!store.searchText().isEmpty()) {
        texts.filtered = QString::number(store.filteredCount()) + QStringLiteral(" gefiltert");
    }
    if (!store.selection().empty()) {
        texts.selected = QString::number(store.selection().size()) + QStringLiteral(" ausgewählt");
    }
    if (store.fileURL()) {
        texts.path = QDir::toNativeSeparators(*store.fileURL());
    }
    return texts;
}

StatusLine::StatusLine(const LogStore& logStore, QWidget* parent)
    : QWidget(parent),
      store(logStore),
      records(new QLabel(this)),
      filtered(new QLabel(this)),
      selected(new QLabel(this)),
      path(new ElidedLabel(Qt::ElideMiddle, this)) {
    path->setForegroundRole(QPalette::PlaceholderText);
    path->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    path->setAccessibleName(QStringLiteral("Datei"));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 4, 12, 4);
    layout->setSpacing(16);
    layout->addWidget(records);
    layout->addWidget(filtered);
    layout->addWidget(selected);
    layout->addStretch(1);
    layout->addWidget(path, 1000);

    connect(&store, &LogStore::documentChanged, this, &StatusLine::refresh);
    connect(&store, &LogStore::displayedRecordsChanged, this, &StatusLine::refresh);
    connect(&store, &LogStore::searchTextChanged, this, &StatusLine::refresh);
    connect(&store, &LogStore::selectionChanged, this, &StatusLine::refresh);
    connect(&store, &LogStore::fileURLChanged, this, &StatusLine::refresh);
    refresh();
}

void StatusLine::refresh() {
    const StatusTexts texts = statusTexts(store);
    records->setText(texts.records);
    filtered->setText(texts.filtered);
    filtered->setVisible(!texts.filtered.isEmpty());
    selected->setText(texts.selected);
    selected->setVisible(!texts.selected.isEmpty());
    path->setText(texts.path);
    path->setToolTip(plainToolTip(texts.path));
}

}  // namespace quillon
