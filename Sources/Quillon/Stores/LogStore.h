#pragma once

#include "Quillon/Platform/Panels.h"
#include "Quillon/Platform/Settings.h"
#include "Quillon/Platform/TextMeasurer.h"
#include "Quillon/Stores/AppMode.h"
#include "Quillon/Stores/RecordChanges.h"
#include "Tallyrig/Formats/CabrilloHeader.h"
#include "Tallyrig/Formats/EDIHeader.h"
#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/UUID.h"
#include "Tallyrig/Validation/ValidationIssue.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace quillon {

/// The version of the application as text, "dev" if it has none.
QString appVersion();

/// The kinds of files that the open and save panels offer.
const QList<FileType>& adifContentTypes();

/// A pair of read and write access to one text of the log. It may outlive the store, and then reads as empty
/// and writes nothing.
struct TextBinding {
    std::function<std::string()> read;
    std::function<void(std::string_view)> write;
};

/// The keys held down at a click on a row.
struct ClickModifiers {
    bool command = false;  ///< Takes the row in or out of the selection.
    bool shift = false;    ///< Selects from the anchor to the row.
};

/// The one log that is open, the file behind it, and all state of the table, the undo history and the check
/// results.
///
/// Each observable property has one change signal. It is sent after the whole operation is done, when all
/// properties hold their new values, and only if this one differs. Names of fields and columns and values of
/// fields are UTF-8; column names are in upper case.
class LogStore : public QObject {
    Q_OBJECT

  public:
    using Columns = std::vector<std::string>;
    using Selection = std::unordered_set<tallyrig::UUID>;
    using Severities = std::unordered_map<tallyrig::UUID, tallyrig::ValidationSeverity>;

    /// The three outlive the store.
    LogStore(Settings& userSettings, Panels& userPanels, const TextMeasurer& textMeasurer,
             QObject* parent = nullptr);
    ~LogStore() override;

    // The log and its file.
    const tallyrig::ADIFDocument& document() const { return state.document; }
    /// The path of the file behind the log; absent for a log that was never saved.
    const std::optional<QString>& fileURL() const { return state.fileURL; }
    /// Whether the log differs from what was last saved or opened.
    bool isDirty() const { return state.isDirty; }
    /// What the user must be told; absent once it was.
    const std::optional<QString>& errorMessage() const { return state.errorMessage; }
    void setErrorMessage(std::optional<QString> message);
    QString windowTitle() const;

    void newLog();
    /// Reads the file at `path`; on failure only `errorMessage` changes.
    void open(const QString& path);
    void openWithPanel();
    /// Opens the first of the program's `arguments` (the program's name left out) that names an existing
    /// path, passing over what follows `--crosscheck`. Nothing happens if a file is open already.
    /// `errorMessage` tells of the other paths, that they were not opened, and of one that leads nowhere if
    /// there is no other.
    void openFromCommandLineIfNeeded(const QStringList& arguments);
    void save();
    void saveWithPanel();

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
    /// Appends an empty field to the record, and a column for it if there is none.
    void addField(tallyrig::UUID recordID, std::string_view name);
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

    // Columns.
    const Columns& columns() const { return state.columns; }
    bool columnExists(std::string_view name) const;
    /// A name as the user typed it, made ready to be a column's: trimmed, without "<", ">" and ":", in upper
    /// case.
    static std::string cleanedFieldName(std::string_view name);
    /// Whether a cleaned name begins with A to Z and holds A to Z, 0 to 9 and "_" only.
    static bool isValidFieldName(std::string_view cleanedName);
    static QString invalidFieldNameMessage(std::string_view name);
    bool addColumn(std::string_view name);
    bool renameColumn(std::string_view old, std::string_view newName);
    void duplicateColumn(std::string_view name);
    void removeColumn(std::string_view name);
    /// Swaps the column with the one `offset` places further on.
    void moveColumnBy(std::string_view name, int offset);
    void moveColumnBefore(std::string_view name, std::string_view target);

    // Widths, in logical pixels.
    static double defaultWidth(std::string_view name);
    double width(std::string_view name) const;
    void setWidth(double width, std::string_view name);
    void autoFitColumns();
    void autoFitColumns(const std::vector<std::string>& list);
    double fittingWidth(std::string_view name) const;

    // Sorting and search.
    const std::optional<std::string>& sortColumn() const { return state.sortColumn; }
    bool sortAscending() const { return state.sortAscending; }
    void toggleSort(std::string_view name);
    /// Back to document order.
    void clearSort();
    const QString& searchText() const { return state.searchText; }
    void setSearchText(const QString& text);
    /// The number of records that the search leaves. Cost: nothing unless log or search changed since the
    /// last call.
    std::size_t filteredCount() const;
    /// The records on screen in their order. Cost: as `filteredCount`, and a sort where the sort column's
    /// values may have changed.
    std::size_t displayedCount() const;
    /// The record in row `row`, below `displayedCount()`.
    const tallyrig::ADIFRecord& displayedRecord(std::size_t row) const;
    /// The position in the document of the record in row `row`.
    std::size_t displayedIndex(std::size_t row) const;
    /// The row in which the record stands, absent if the search hides it or it does not exist. Cost: a scan
    /// of the rows while a search or a sort is in force.
    std::optional<std::size_t> displayedRow(tallyrig::UUID id) const;

    // Selection.
    const Selection& selection() const { return state.selection; }
    const std::optional<tallyrig::UUID>& selectionAnchor() const { return state.selectionAnchor; }
    void setSelection(Selection selection, std::optional<tallyrig::UUID> anchor);
    /// The position of the record in the document.
    std::optional<std::size_t> indexOf(tallyrig::UUID id) const {
        return state.document.records().indexOf(id);
    }
    void selectRow(tallyrig::UUID id, ClickModifiers modifiers);
    /// Selects the record at `index` of the document, if there is one.
    void selectRecord(std::size_t index);
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
    void runCheck();
    /// The findings of the last check, by record and errors first.
    const std::vector<tallyrig::ValidationIssue>& validationIssues() const {
        return state.checkResults->issues;
    }
    /// The worst severity of each record with findings.
    const Severities& recordSeverities() const { return state.checkResults->severities; }
    /// The German messages about the record in the order of its findings; empty without any. Made when asked
    /// for: the messages about a large group of duplicates name each other and would not fit into memory
    /// together.
    std::vector<std::string> recordIssueMessages(tallyrig::UUID id) const;
    std::size_t errorCount() const { return state.checkResults->errorCount; }
    std::size_t warningCount() const { return state.checkResults->issues.size() - errorCount(); }
    bool showCheckResults() const { return state.showCheckResults; }
    void setShowCheckResults(bool show);

    /// The column that the bulk edit sheet is open for.
    const std::optional<std::string>& bulkEditColumn() const { return state.bulkEditColumn; }
    void setBulkEditColumn(std::optional<std::string> column);

  signals:
    /// The document is another value than before, or the same records with other ids.
    void documentChanged();
    void fileURLChanged();
    void isDirtyChanged();
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
    /// The log was written to `path`, which did not become its own file. Sent when the file is there.
    void exported(const QString& path);

  private:
    /// What undo restores.
    struct EditSnapshot {
        tallyrig::ADIFDocument document;
        Columns columns;
        bool isDirty = false;
    };
    /// What a check found, made in one piece.
    struct CheckResults {
        std::vector<tallyrig::ValidationIssue> issues;
        Severities severities;
        std::size_t errorCount = 0;
        tallyrig::ADIFRecordList records;  ///< As they were checked: the positions in `issues` refer to them.
    };
    /// What has a change signal and is cheap to copy and to compare.
    struct Observed {
        tallyrig::ADIFDocument document;
        std::optional<QString> fileURL;
        bool isDirty = false;
        QString searchText;
        std::optional<QString> errorMessage;
        AppMode mode = AppMode::check;
        std::shared_ptr<const CheckResults> checkResults;  ///< Never null.
        bool showCheckResults = false;
        Columns columns;
        std::map<std::string, double, std::less<>> columnWidths;  ///< By canonical key of the name.
        std::optional<std::string> sortColumn;
        bool sortAscending = true;
        bool showCabrilloExport = false;
        bool showEDIExport = false;
        std::optional<std::string> bulkEditColumn;
        std::optional<tallyrig::UUID> selectionAnchor;
        std::uint64_t selectionRevision = 0;  ///< Another one for each change of the selection.
        bool canUndo = false;
        bool canRedo = false;
    };
    struct State : Observed {
        Selection selection;
        std::vector<EditSnapshot> undoStack;
        std::vector<EditSnapshot> redoStack;
        std::optional<std::string> coalesceKey;
        /// The stack on top of which lies the state before the latest step; null if an edit came after it.
        const std::vector<EditSnapshot>* beforeStep = nullptr;
    };
    class Operation;
    class Display;

    void announceChangesSince(const Observed& before);

    static QString windowTitleFor(const std::optional<QString>& fileURL, bool isDirty);
    void showLog(tallyrig::ADIFDocument document, std::optional<QString> path);
    void write(const QString& path);
    /// `fileURL` without its extension, or "Logbuch", with this one.
    QString proposedName(const QString& extension) const;
    void exportText(const std::string& text, const FileType& type, const QString& failurePrefix);

    EditSnapshot currentSnapshot() const;
    /// Enters a snapshot, taken before the change, in the history.
    void commitUndo(EditSnapshot snapshot, std::optional<std::string> coalescingKey = std::nullopt);
    /// The same with the present state, unless the latest step is of the same key: keystrokes make one step.
    void commitTyping(std::string key);
    void step(std::vector<EditSnapshot>& from, std::vector<EditSnapshot>& to);
    void apply(EditSnapshot snapshot);
    void resetHistory();
    void noteHistory();

    void commitBulkEdit(EditSnapshot before, std::size_t changedRecords);

    /// The columns in which to show this log.
    static Columns columnsFor(const tallyrig::ADIFDocument& document);
    std::vector<double> fittingWidths(const std::vector<std::string>& names) const;
    Columns::iterator findColumn(std::string_view upperName);

    void changeSelection(Selection selection);
    void reduceSelectionToDocument();
    Selection idsInRows(std::size_t first, std::size_t end) const;

    void applyIssues(std::vector<tallyrig::ValidationIssue> issues);
    void setCheckResults(CheckResults results);
    void clearCheckResults();

    Settings& settings;
    Panels& panels;
    const TextMeasurer& measurer;
    State state;
    int runningOperations = 0;
    std::unique_ptr<Display> display;
};

}  // namespace quillon
