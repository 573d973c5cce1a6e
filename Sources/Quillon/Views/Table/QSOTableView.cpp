#include "Quillon/Views/Table/QSOTableView.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Table/ColumnCommands.h"
#include "Quillon/Views/Table/ColumnToolbar.h"
#include "Quillon/Views/Table/FileInfoBar.h"
#include "Quillon/Views/Table/TableBody.h"
#include "Quillon/Views/Table/TableHeader.h"
#include "Quillon/Views/Table/TableQuestions.h"
#include "Quillon/Views/Table/TableScroll.h"

#include <QVBoxLayout>

#include <vector>

namespace quillon {

QSOTableView::QSOTableView(LogStore& logStore, TableQuestions& tableQuestions, QWidget* parent)
    : QWidget(parent),
      store(logStore),
      questions(tableQuestions),
      infoBar(new FileInfoBar(store, this)),
      toolbar(new ColumnToolbar(store, this)),
      tableScroll(new TableScroll(this)),
      headerRow(new TableHeader(store, questions, *tableScroll)),
      rows(new TableBody(store, *tableScroll)) {
    tableScroll->setContent(headerRow, rows);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(infoBar);
    layout->addWidget(horizontalLine(this));
    layout->addWidget(toolbar);
    layout->addWidget(horizontalLine(this));
    layout->addWidget(tableScroll, 1);

    connect(toolbar, &ColumnToolbar::customFieldRequested, this, &QSOTableView::showAddColumn);
    connect(&store, &LogStore::documentChanged, this, &QSOTableView::followDocument);
    for (const auto signal : {&LogStore::displayedRecordsChanged, &LogStore::columnsChanged,
                              &LogStore::columnWidthsChanged, &LogStore::checkResultsChanged}) {
        connect(&store, signal, this, &QSOTableView::refreshGeometry);
    }
    refreshGeometry();
}

QSOTableView::~QSOTableView() {
    // An editor that loses the focus on its way out would still write, into views that are half gone.
    headerRow->dismissEditor();
    rows->dismissEditor();
}

void QSOTableView::scrollToRecord(tallyrig::UUID id) {
    rows->showRecord(id);
}

void QSOTableView::commitEditing() {
    headerRow->commitEditing();
    rows->commitEditing();
}

void QSOTableView::showAddColumn() {
    if (const std::optional<QString> name = questions.newColumnName()) {
        addCustomColumn(store, name->toStdString());
    }
}

void QSOTableView::followDocument() {
    // Every change of a log enters the history: one without history was just opened or begun.
    if (!store.canUndo() && !store.canRedo()) {
        // A name typed for a column of the last log is not for this one.
        headerRow->dismissEditor();
        rows->startOver();
    }
    refreshGeometry();
}

void QSOTableView::refreshGeometry() {
    std::vector<double> widths;
    widths.reserve(store.columns().size());
    for (const std::string& column : store.columns()) {
        widths.push_back(store.width(column));
    }
    const StatusGutter gutter = store.hasRecordSeverities() ? StatusGutter::shown : StatusGutter::hidden;
    const TableGeometry geometry(widths, store.displayedCount(), gutter);
    tableScroll->setContentSize({geometry.totalWidth(), geometry.contentHeight()});
    headerRow->setTableGeometry(geometry);
    rows->setTableGeometry(geometry);
}

}  // namespace quillon
