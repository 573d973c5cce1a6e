// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/FileManager.h"
#include "Quillon/Platform/Panels.h"
#include "Quillon/Platform/Settings.h"
#include "Quillon/Platform/TextMeasurer.h"
#include "Quillon/Stores/AppMode.h"
#include "Quillon/Stores/CheckResults.h"
#include "Quillon/Stores/ColumnLayout.h"
#include "Quillon/Stores/DisplayedRows.h"
#include "Quillon/Stores/EditHistory.h"
#include "Quillon/Stores/FileReading.h"
#include "Quillon/Stores/KnownFile.h"
#include "Quillon/Stores/RecordChanges.h"
#include "Quillon/Stores/RowSelection.h"
#include "Quillon/Stores/SavingConcern.h"
#include "Quillon/Stores/StoreState.h"
#include "Quillon/Stores/TextBinding.h"
#include "Tallyrig/Formats/CabrilloHeader.h"
#include "Tallyrig/Formats/EDIHeader.h"
#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/UUID.h"
#include "Tallyrig/Outdoor/OutdoorProgram.h"
#include "Tallyrig/Outdoor/SOTARole.h"
#include "Tallyrig/Validation/ValidationIssue.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {
class OutdoorExportFiles;
}

namespace quillon {

/// The one log that is open, the file behind it, and all state of the table, the undo history and the check
/// results.
///
/// Each observable property has one change signal. It is sent after the whole operation is done, when all
/// properties hold their new values, and only if this one differs. Names of fields and columns and values of
/// fields are UTF-8; column names are in upper case.
class LogStore : public QObject {
    Q_OBJECT

  public:
    using Columns = ColumnLayout::Names;
    using Selection = RowSelection::IDs;

    /// The four outlive the store.
    LogStore(Settings& userSettings, Panels& userPanels, const TextMeasurer& textMeasurer,
             FileManager& fileManager, QObject* parent = nullptr);

    // The log and its file.
    const tallyrig::ADIFDocument& document() const { return state.document; }
    /// The path of the file behind the log; absent for a log that was never saved.
    const std::optional<QString>& fileURL() const { return state.fileURL; }
    /// Whether the log differs from what was last saved or opened.
    bool isDirty() const { return state.isDirty; }
    /// What the log's file holds as far as the store knows: the log as it was last opened or saved, losses
    /// and all. The empty log where it has no file, was brought back, or an export stands in its file.
    const tallyrig::ADIFDocument& savedDocument() const { return state.savedDocument; }
    /// What the reader said of the file when the log was opened or read again: empty for a log that was not.
    /// Its record indices are those of the log as it was then.
    const tallyrig::ReadingReport& readingReport() const;
    /// The same with what is needed to show it; null for a log that was not opened, or where there was
    /// nothing to say.
    const std::shared_ptr<const FileReading>& reading() const { return state.reading; }
    /// Reads the file that was opened once more, with the repair that its report names: one step back, which
    /// brings back the report as well. Nothing happens without such a repair. Where the file is another by
    /// now only `errorMessage` changes.
    void readAgainRepaired();
    /// Whether the log has changes that were not saved. Cost: nothing.
    bool hasUnsavedChanges() const { return !state.document.isSameAs(state.savedDocument); }
    /// What the user must be told; absent once it was.
    const std::optional<QString>& errorMessage() const { return state.errorMessage; }
    void setErrorMessage(std::optional<QString> message);
    QString windowTitle() const { return state.windowTitle(); }

    void newLog();
    /// Reads the file at `path`; on failure only `errorMessage` changes.
    void open(const QString& path);
    void openWithPanel();
    /// Shows a log that was kept from an earlier time, as one with changes that the file behind it does not
    /// have. Where that was written to after `keptAtMs`, in milliseconds since 1970, it is taken for one that
    /// another program has changed.
    void bringBack(tallyrig::ADIFDocument document, std::optional<QString> path, std::int64_t keptAtMs);
    /// Opens the first of the program's `arguments` (the program's name left out) that names an existing
    /// path, passing over what follows `--crosscheck`. Nothing happens if a file is open already.
    /// `errorMessage` tells of the other paths, that they were not opened, and of one that leads nowhere if
    /// there is no other.
    void openFromCommandLineIfNeeded(const QStringList& arguments);
    /// Writes the log to its file, or asks for one if it has none. Where that file is not what was opened or
    /// saved last, nothing is written and `changedOnDisk` is sent. Where not all of the log would come back
    /// the user is asked before it is written, here and wherever else the log is saved.
    void save();
    /// The same whatever stands in the file by now.
    void saveReplacing();
    void saveWithPanel();
    /// Why the first save over the file that was opened takes something from it; absent if it does not, and
    /// once the log was saved, or was read again whole. `save` does not mind.
    std::optional<SavingConcern> savingConcern() const;
    /// `keep` is called with the path before the log is saved or exported there, whether or not there is a
    /// file.
    void beforeReplacing(std::function<void(const QString& path)> keep) { keepFormer = std::move(keep); }

    /// As `saveWithPanel`, but proposes the extension of ADI text whatever file the log came from.
    void saveAsADI();

    // Other formats.
    /// Asks for a place and makes the log an ADX file there.
    void saveAsADX();
    /// Writes the log to another file in the format of contest robots; it stays the log of its own file, and
    /// as changed as it was.
    void exportCabrillo(const tallyrig::CabrilloHeader& header);
    void exportEDI(const tallyrig::EDIHeader& header);
    /// Whether the sheet is wanted that asks for the header and then exports.
    bool showCabrilloExport() const { return state.showCabrilloExport; }
    void setShowCabrilloExport(bool show);
    bool showEDIExport() const { return state.showEDIExport; }
    void setShowEDIExport(bool show);

    // Undo. A step brings back log, columns and `isDirty`; the selection keeps those of its records that the
    // log then holds.
    bool canUndo() const { return state.canUndo; }
    bool canRedo() const { return state.canRedo; }
    void undo();
    void redo();
    /// What the latest `undo` or `redo` brought about; nothing if the log was edited or replaced since.
    /// Cost: a walk along the records.
    RecordChanges changesOfLastStep() const;

    // Cells and fields. An id that the log does not hold and an index beyond the record's fields read as
    // empty, and writing to them does nothing, as does writing what is there already. The texts returned are
    // good until the log is edited or replaced. Writes to one cell that follow on each other make one step
    // back.
    /// The value of the record's first field of this name, given in any case; empty if it has none.
    std::string_view cell(tallyrig::UUID recordID, std::string_view column) const;
    /// An empty `value` removes all fields of this name from the record.
    void setCell(tallyrig::UUID recordID, std::string_view column, std::string_view value);
    /// The value of the record's field at `fieldIndex`.
    std::string_view field(tallyrig::UUID recordID, std::size_t fieldIndex) const;
    /// An empty `value` leaves the field in place.
    void setField(tallyrig::UUID recordID, std::size_t fieldIndex, std::string_view value);
    TextBinding cellBinding(tallyrig::UUID recordID, const std::string& column);
    TextBinding fieldBinding(tallyrig::UUID recordID, std::size_t fieldIndex);
    /// Appends a field to the record, and a column for it if there is none. With a `value`, what is written
    /// to the field right after belongs to the same step back.
    void addField(tallyrig::UUID recordID, std::string_view name, std::string_view value = {});
    /// The column stays.
    void removeField(tallyrig::UUID recordID, std::size_t fieldIndex);

    // Records. These forget the findings of the last check and hide them.
    /// Appends a QSO with an empty call and selects it.
    void addRecord();
    /// Appends the QSOs in this ADI text with ids of their own, a column for each field that has none, and
    /// selects them: one step back. Returns their number; with 0, for a text without any, nothing happens.
    std::size_t pasteRecords(std::string_view adif);
    /// Removes all selected records, those that the search hides as well (`hiddenSelectionCount`).
    void deleteSelected();
    /// Sets the column, of any case, in all records or in those without a value; an empty `value` removes the
    /// field. Where nothing is to be changed, nothing happens, here and below.
    void setColumnValue(std::string_view column, std::string_view value, tallyrig::ColumnTarget target);
    /// Replaces every occurrence of `find`, to the letter; an empty one does nothing.
    void replaceInColumn(std::string_view column, std::string_view find, std::string_view replacement);

    // Columns. Names may be given in any case. What changes columns or log can be undone; columns alone do
    // not make the log another than the saved one.
    /// From left to right, in upper case, none twice. A field may have no column and a column no field.
    const Columns& columns() const { return state.columns.names(); }
    bool columnExists(std::string_view name) const { return state.columns.contains(name); }
    /// A name as the user typed it, made ready to be a column's: trimmed, without "<", ">" and ":", in upper
    /// case.
    static std::string cleanedFieldName(std::string_view name) { return ColumnLayout::cleanedName(name); }
    /// Whether a cleaned name begins with A to Z and holds A to Z, 0 to 9 and "_" only.
    static bool isValidFieldName(std::string_view cleanedName) {
        return ColumnLayout::isValidName(cleanedName);
    }
    /// What to tell the user who typed a name that is none.
    static QString invalidFieldNameMessage(std::string_view name);
    /// Appends a column of the name as typed. False, and nothing happens, if that is no valid name or there
    /// is such a column.
    bool addColumn(std::string_view name);
    /// Gives the column, and the first field of this name in each record, the name as typed. True if the
    /// column is so called now, also where it was before and nothing happens; false, and nothing happens, if
    /// there is no such column or the new name is not valid or taken.
    bool renameColumn(std::string_view old, std::string_view newName);
    /// Inserts a copy with its data directly behind the column, named with the first free number from 2 on.
    /// Nothing happens if there is no such column.
    void duplicateColumn(std::string_view name);
    /// Removes the column and all fields of this name from every record. Nothing happens if there is neither.
    void removeColumn(std::string_view name);
    /// Swaps the column with the one `offset` places further on. Nothing happens if there are not both.
    void moveColumnBy(std::string_view name, int offset);
    /// Moves the column in front of `target`, to the end if there is no such column. Nothing happens if there
    /// is no column `name`, or the two are one.
    void moveColumnBefore(std::string_view name, std::string_view target);

    // Widths, in logical pixels. No part of the history.
    /// The width of a column that was neither set nor fitted.
    static double defaultWidth(std::string_view name) { return ColumnLayout::defaultWidth(name); }
    double width(std::string_view name) const { return state.columns.width(name); }
    /// At least 48 and at most 600 are taken.
    void setWidth(double width, std::string_view name);
    /// Makes all columns wider or narrower alike, for letters that are so; those that were set by hand, too.
    void scaleWidths(double factor);
    /// Gives all columns, or those of `list`, the width that fits what they hold. Cost: `fittingWidths`.
    void autoFitColumns();
    void autoFitColumns(const std::vector<std::string>& list);
    double fittingWidth(std::string_view name) const;

    // Sorting and search.
    /// In upper case; absent for the order of the log.
    const std::optional<std::string>& sortColumn() const { return state.order.sortColumn; }
    bool sortAscending() const { return state.order.sortAscending; }
    /// Sorts by the column, ascending at first and the other way round if it is the sort column already.
    void toggleSort(std::string_view name);
    /// Back to document order.
    void clearSort();
    QString searchText() const { return QString::fromStdString(state.order.searchText); }
    void setSearchText(const QString& text);
    /// The number of records that the search leaves. Cost: nothing unless log or search changed since the
    /// last call.
    std::size_t filteredCount() const;
    /// The records on screen in their order. Cost: as `filteredCount`, and a sort where the sort column's
    /// values may have changed.
    std::size_t displayedCount() const;
    /// The record in row `row`, below `displayedCount()`. Good until the log is edited or replaced.
    const tallyrig::ADIFRecord& displayedRecord(std::size_t row) const;
    /// The position in the document of the record in row `row`, below `displayedCount()`.
    std::size_t displayedIndex(std::size_t row) const;
    /// The row in which the record stands, absent if the search hides it or it does not exist. Cost: a scan
    /// of the rows while a search or a sort is in force.
    std::optional<std::size_t> displayedRow(tallyrig::UUID id) const;
    /// The first row in which one of these records stands, absent if none is displayed. Cost: a scan of the
    /// rows.
    std::optional<std::size_t> firstDisplayedRow(const std::vector<tallyrig::UUID>& ids) const;

    // Selection.
    /// All in the log. Good until the selection changes.
    const Selection& selection() const { return rowSelection.ids(); }
    /// From where a range is selected.
    const std::optional<tallyrig::UUID>& selectionAnchor() const { return rowSelection.anchor(); }
    void setSelection(Selection selection, std::optional<tallyrig::UUID> anchor);
    /// The position of the record in the document.
    std::optional<std::size_t> indexOf(tallyrig::UUID id) const {
        return state.document.records().indexOf(id);
    }
    /// What a click on the record's row does (`RowSelection::click`).
    void selectRow(tallyrig::UUID id, ClickModifiers modifiers);
    /// Selects the record at `index` of the document, if there is one.
    void selectRecord(std::size_t index);
    /// Selects the record at `index` of the document for a pane that tells something of it, and lets the log
    /// be checked, where its table is seen. Gives the record; absent, and nothing happens, if there is none.
    std::optional<tallyrig::UUID> showRecord(std::size_t index);
    /// Selects every displayed record.
    void selectAllDisplayed();
    /// The single selected record; null with none or several. Good until the log is edited or replaced.
    const tallyrig::ADIFRecord* selectedRecord() const;
    /// How many of the selected records the search hides. Cost: a walk over the rows while a search is in
    /// force.
    std::size_t hiddenSelectionCount() const;
    /// The selected records as ADI text without header, in the order of the document; for the clipboard.
    std::string selectionAsADIF() const;

    // Checks and modes.
    AppMode mode() const { return state.mode; }
    void setMode(AppMode mode);
    /// Checks the log as the user set it up and shows the findings.
    void runCheck();
    /// Checks whether the log is fit for `outdoorProgram` and shows the findings in their place. The user's
    /// settings do not count here.
    void runOutdoorCheck();
    /// The findings of the last check, by record and errors first. Good until the next check, or until they
    /// are forgotten.
    const std::vector<tallyrig::ValidationIssue>& validationIssues() const {
        return state.checkResults->issues();
    }
    /// Whether a record has findings.
    bool hasRecordSeverities() const { return state.checkResults->marksRecords(); }
    /// The worst severity of the record's findings; absent without any. Cost: two binary searches.
    std::optional<tallyrig::ValidationSeverity> recordSeverity(tallyrig::UUID id) const {
        return state.checkResults->severity(id);
    }
    /// The German messages about the record in the order of its findings; empty without any. Made when asked
    /// for.
    std::vector<std::string> recordIssueMessages(tallyrig::UUID id) const {
        return state.checkResults->messages(id);
    }
    std::size_t errorCount() const { return state.checkResults->errorCount(); }
    std::size_t warningCount() const { return state.checkResults->warningCount(); }
    bool showCheckResults() const { return state.showCheckResults; }
    void setShowCheckResults(bool show);

    // Programs for operating outdoors. What is chosen lasts for the run.
    tallyrig::OutdoorProgram outdoorProgram() const { return state.outdoorProgram; }
    void setOutdoorProgram(tallyrig::OutdoorProgram program);
    /// Counts for SOTA only.
    tallyrig::SOTARole sotaRole() const { return state.sotaRole; }
    void setSotaRole(tallyrig::SOTARole role);
    /// Writes the files for the program into a folder that the user names, replacing those that are there
    /// under their names, and shows them. `errorMessage` tells what a log without any lacks, and why a file
    /// could not be written; those before it stay.
    void exportOutdoor();

    /// The column that the bulk edit sheet is open for.
    const std::optional<std::string>& bulkEditColumn() const { return state.bulkEditColumn; }
    void setBulkEditColumn(std::optional<std::string> column);

  signals:
    /// The document is another value than before, or the same records with other ids.
    void documentChanged();
    void fileURLChanged();
    void isDirtyChanged();
    /// The log was opened, begun, brought back or saved, or its file was exported over.
    void savedDocumentChanged();
    /// The log was saved to `path`, whether or not it had changes.
    void written(const QString& path);
    /// The file of the log does not hold it: the log was not saved there, because another program has changed
    /// the file, or an export was written over it.
    void changedOnDisk(const QString& path);
    /// A file was opened of which the reader had something to say, or was read again, or the log at hand is
    /// no longer that one.
    void readingReportChanged();
    void errorMessageChanged();
    void windowTitleChanged();
    /// `canUndo` or `canRedo` changed.
    void historyChanged();
    void columnsChanged();
    void columnWidthsChanged();
    /// `sortColumn` or `sortAscending` changed.
    void sortChanged();
    void searchTextChanged();
    /// The records on screen or their order changed: through log, search or sort.
    void displayedRecordsChanged();
    /// `selection` or `selectionAnchor` changed.
    void selectionChanged();
    void modeChanged();
    /// Findings, severities and messages, which change together.
    void checkResultsChanged();
    void showCheckResultsChanged();
    void showCabrilloExportChanged();
    void showEDIExportChanged();
    void bulkEditColumnChanged();
    void outdoorProgramChanged();
    void sotaRoleChanged();
    /// So many files for an outdoor program were written into `folder`.
    void outdoorExported(std::size_t files, const QString& folder);
    /// The log was written to `path` because the user exported it there. As ADI or ADX text that is its own
    /// file by now.
    void exported(const QString& path);

  private:
    /// What has a change signal and is cheap to copy and to compare.
    struct Observed {
        tallyrig::ADIFDocument document;
        std::optional<QString> fileURL;
        bool isDirty = false;
        tallyrig::ADIFDocument savedDocument;
        std::shared_ptr<const FileReading> reading;
        std::optional<QString> errorMessage;
        AppMode mode = AppMode::check;
        std::shared_ptr<const CheckResults> checkResults;  ///< Never null.
        bool showCheckResults = false;
        ColumnLayout columns;
        RowOrder order;
        bool showCabrilloExport = false;
        bool showEDIExport = false;
        std::optional<std::string> bulkEditColumn;
        tallyrig::OutdoorProgram outdoorProgram = tallyrig::OutdoorProgram::pota;
        tallyrig::SOTARole sotaRole = tallyrig::SOTARole::activator;
        std::uint64_t selectionRevision = 0;
        bool canUndo = false;
        bool canRedo = false;

        QString windowTitle() const;
    };
    using Changes = StoreState<LogStore, Observed>;
    /// Brackets what changes `state`.
    class Operation : public Changes::Operation {
      public:
        explicit Operation(LogStore& store) : Changes::Operation(store.changes) {}
    };

    static std::span<const Changes::Property> observedProperties();

    void showLog(tallyrig::ADIFDocument document, std::optional<QString> path,
                 std::shared_ptr<const FileReading> reading = nullptr);
    void announceReplacing(const QString& path) const;
    void keepOpenFileIn(const QString& folder, const tallyrig::OutdoorExportFiles& wanted) const;
    /// Empties selection and history. To be called last: the bracket does not bring them back if memory runs
    /// out.
    void forgetEdits();
    /// What is to be done with a file that is no longer the one that was opened or saved last.
    enum class Changed { leave, replace };
    /// False if the file was not written.
    bool write(const QString& path, Changed changed = Changed::replace);
    bool replaceWith(const std::string& content, const QString& path, Changed changed);
    /// For the file that the user names in a panel.
    void exportLog(const QString& extension, const QList<FileType>& types);
    /// `fileURL` without its extension, or "Logbuch", with this one.
    QString proposedName(const QString& extension) const;
    /// Where that is the file of the log, the log is not in it any more.
    void noteExportTo(const QString& path);
    void exportText(const std::string& text, const FileType& type, const QString& failurePrefix);

    EditHistory::Snapshot currentSnapshot() const;
    /// Enters the state before an edit in the history. To be called after the edit: one that fails for want
    /// of memory then leaves no step behind.
    void commitUndo(EditHistory::Snapshot before, std::optional<std::string> coalescingKey = std::nullopt);
    void takeStep(std::optional<EditHistory::Snapshot> (EditHistory::*step)(EditHistory::Snapshot));
    void noteHistory();
    void editRecord(std::size_t index, const std::function<void(tallyrig::ADIFRecord&)>& change,
                    std::optional<std::string> coalescingKey = std::nullopt);
    void finishBulkEdit(EditHistory::Snapshot before, std::size_t changedRecords);

    void changeSelection(Selection selection);
    void noteSelection();
    RowsOnScreen rowsOnScreen() const { return rows.displayed(state.document.records(), state.order); }

    void showIssues(std::vector<tallyrig::ValidationIssue> issues);
    void clearCheckResults();

    Settings& settings;
    Panels& panels;
    const TextMeasurer& measurer;
    FileManager& files;
    std::function<void(const QString& path)> keepFormer;
    std::optional<KnownFile> knownFile;  ///< That of the log, as it was opened or saved.
    std::optional<SavingConcern> fileConcern;
    Observed state;
    Changes changes{*this, state, observedProperties()};
    EditHistory history;
    RowSelection rowSelection;
    mutable DisplayedRows rows;
};

}  // namespace quillon
