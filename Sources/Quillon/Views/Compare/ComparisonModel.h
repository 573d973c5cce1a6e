// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Stores/TextBinding.h"
#include "Quillon/Views/Compare/ComparedLogs.h"
#include "Quillon/Views/Grid/TableGeometry.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

class CompareStore;
class LogStore;

/// What both tables of a comparison and the bar between them show: the compared logs as they are in the
/// stores, the cell where the keyboard is, which is one for both sides, and how wide the columns are.
///
/// The logs are compared when one of them changed, once for each turn of the event loop, and only while
/// somebody looks.
class ComparisonModel : public QObject {
    Q_OBJECT

  public:
    using Side = ComparedLogs::Side;
    using Status = ComparedLogs::Status;

    /// With more QSOs than these in both logs, comparing takes so long that the user is shown it.
    static constexpr std::size_t longLogs = 100'000;
    static constexpr double cellWidth = 92;  ///< Of a column whose width nobody changed.
    static constexpr double rowHeight = 24;  ///< Both in the usual fonts; they grow with larger ones.

    /// Both outlive the model.
    ComparisonModel(LogStore& logStore, CompareStore& compareStore, QObject* parent = nullptr);

    /// Whether somebody looks. What was missed meanwhile is made up for at once.
    void setWatched(bool watched);
    const ComparedLogs& logs() const { return compared; }
    void setDifferencesOnly(bool only);

    // Rows and columns.
    const TableGeometry& geometry() const { return places; }
    /// For letters of another size.
    void refreshGeometry();
    /// For the rest of the run. At least 48 and at most 600 pixels are taken.
    void setColumnWidth(std::size_t column, double width);
    void resetColumnWidth(std::size_t column);

    // The cell where the keyboard is, and on which side it is or was last.
    Side usedSide() const { return lastSide; }
    void setUsedSide(Side used) { lastSide = used; }
    /// Absent while there are no rows or the keyboard was never here.
    const std::optional<CellPosition>& currentCell() const { return current; }
    /// Takes the nearest cell that exists.
    void setCurrentCell(CellPosition cell);
    /// The same, and lets it come into view.
    void showCell(CellPosition cell);
    /// Goes to the next row that is not equal, to the first field in which it differs. False if there is
    /// none. The same for the one before.
    bool goToNextDifference();
    bool goToPreviousDifference();

    // Cells.
    /// The value as it stands in the log; null if there is no record on this side.
    const tallyrig::ADIFRecord* record(std::size_t row, Side side) const {
        return compared.record(row, side);
    }
    bool isDiffering(CellPosition cell) const;
    /// Reads and writes the cell in the store that the side belongs to. The row has a record on this side.
    TextBinding binding(CellPosition cell, Side side);
    /// Whether a loaded file stands on this side and not the open log, whose history and commands are not
    /// about it.
    bool isFile(Side side) const;
    /// Saves the file of this side; false where that failed, was cancelled, or there is none.
    bool saveFile(Side side);

    // Words.
    QString sideName(Side side) const;
    static QString statusName(Status status);
    /// The status, and in which fields the row differs, by their German names.
    QString statusText(std::size_t row) const;

  signals:
    /// Rows or columns may be others.
    void logsChanged();
    /// What is in one row changed.
    void rowChanged();
    void geometryChanged();
    /// The keyboard is at another cell.
    void currentCellChanged();
    /// The current cell is to be seen.
    void cellWanted();

  private:
    void followLater();
    void followAtEndOfTurn();
    void follow();
    void showLastStep();
    void showRows();
    bool keepCurrentCell();
    std::optional<std::size_t> rowOfCurrentRecord() const;
    std::optional<std::size_t> columnOf(const std::string& field) const;
    void noteCurrentCell(CellPosition cell);
    bool goTo(std::optional<std::size_t> row);

    LogStore& log;
    CompareStore& store;
    ComparedLogs compared;
    TableGeometry places;
    std::map<std::string, double> widths;  ///< Those that were changed, as in the usual font, by field.
    Side lastSide = Side::left;
    std::optional<CellPosition> current;
    std::optional<tallyrig::UUID> currentLeft;  ///< The records of the row of the current cell.
    std::optional<tallyrig::UUID> currentRight;
    std::string currentField;
    QTimer turn;  ///< Runs out at the end of this turn of the event loop.
    bool isWatched = false;
    bool isStale = true;
    bool hasLogChanged = false;  ///< The open log, since the logs were last compared.
};

}  // namespace quillon
