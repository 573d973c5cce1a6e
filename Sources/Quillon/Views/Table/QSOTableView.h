#pragma once

#include "Tallyrig/Log/UUID.h"

#include <QWidget>

namespace quillon {

class ColumnToolbar;
class FileInfoBar;
class LogStore;
class TableBody;
class TableHeader;
class TableQuestions;
class TableScroll;

/// The log as a table, with the bar of file information and the bar of column commands above it.
///
/// Hand-made: an area of known size in which only the rows near the viewport exist, so that a million QSOs
/// scroll like two hundred. Shows `LogStore` and sends every change back to it.
class QSOTableView : public QWidget {
    Q_OBJECT

  public:
    /// The two outlive the view.
    QSOTableView(LogStore& logStore, TableQuestions& tableQuestions, QWidget* parent = nullptr);
    /// What stands in an open editor is dropped: whoever ends the view by a command of the user commits
    /// first.
    ~QSOTableView() override;

    /// Makes the record's row the current one and brings it into view. Nothing happens if the search hides
    /// it.
    void scrollToRecord(tallyrig::UUID id);

    /// Writes what stands in an open cell editor and closes it.
    void commitEditing();

    // The pieces, from top to bottom.
    FileInfoBar& fileInfoBar() const { return *infoBar; }
    ColumnToolbar& columnToolbar() const { return *toolbar; }
    TableHeader& header() const { return *headerRow; }
    TableBody& body() const { return *rows; }
    TableScroll& scroll() const { return *tableScroll; }

  private:
    void showAddColumn();
    void refreshGeometry();
    void followDocument();

    LogStore& store;
    TableQuestions& questions;
    FileInfoBar* infoBar;
    ColumnToolbar* toolbar;
    TableScroll* tableScroll;
    TableHeader* headerRow;
    TableBody* rows;
};

}  // namespace quillon
