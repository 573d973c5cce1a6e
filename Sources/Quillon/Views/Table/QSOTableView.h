// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/UUID.h"

#include <QString>
#include <QWidget>

#include <optional>
#include <string>
#include <vector>

namespace quillon {

class ColumnToolbar;
class FileInfoBar;
class LogStore;
class RowRuler;
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

    // What the commands do.
    /// A step in the history; what it changed comes into view.
    void undo();
    void redo();
    /// A new QSO, selected and with its call open for typing. A search, which would hide it, ends.
    void addRecord();
    /// Asks first if the search hides some of the selected QSOs: they go, too.
    void deleteSelected();
    /// The selected QSOs as ADI text to the clipboard. Nothing happens without a selection.
    void copySelection() const;
    /// The QSOs in the ADI text on the clipboard as new ones, selected and in view. A search, which could
    /// hide them, ends. Nothing happens if there are none.
    void pasteRecords();
    /// Opens the framed cell. Nothing happens if none is.
    void editCell();
    /// Asks for the number of a QSO in the log and shows it.
    void goToRow();
    /// Opens the editor of the chosen column's name.
    void renameColumn();

    bool hasFramedCell() const;
    /// The column that the commands for columns are about: where the keyboard is, or was last, in the rows or
    /// in the header.
    std::optional<std::string> chosenColumn() const;

    /// Selects the record and puts the frame on the cell in `column`, both in view; on the column where the
    /// keyboard was if there is none of that name. A search that hides the record ends. Nothing happens if
    /// the log does not hold the record.
    void showCell(tallyrig::UUID record, const std::string& column = {});
    /// Gives the keyboard to the rows, as they are left from what stands above them.
    void enterRows();

    /// Writes what stands in an open cell editor and closes it.
    void commitEditing();

    // The pieces, from top to bottom.
    ColumnToolbar& columnToolbar() const { return *toolbar; }
    TableHeader& header() const { return *headerRow; }
    TableBody& body() const { return *rows; }
    TableScroll& scroll() const { return *tableScroll; }

  protected:
    void changeEvent(QEvent* event) override;

  signals:
    /// The current or the framed cell or the chosen column may be another one.
    void currentCellChanged();
    /// The context menu of rows or columns is about to open.
    void menuAboutToShow();
    /// A command did what cannot be seen in the table, or nothing; `text` says so.
    void noticed(const QString& text);

  private:
    enum class Part { rows, header };

    void useFrom(Part part);
    void showLastStep();
    void askForColumn(const QString& proposed);
    void askAgain();
    void refreshGeometry();
    void showNewColumn();
    void followDocument();

    LogStore& store;
    TableQuestions& questions;
    FileInfoBar* infoBar;
    ColumnToolbar* toolbar;
    TableScroll* tableScroll;
    TableHeader* headerRow;
    TableBody* rows;
    RowRuler* ruler;
    std::optional<QString> refusedName;     ///< Which no column can have.
    std::vector<std::string> knownColumns;  ///< As they were at the last change.
    double letterWidth;                     ///< For which the columns have their widths.
    Part lastUsed = Part::rows;             ///< Which of them says what the chosen column is.
};

}  // namespace quillon
