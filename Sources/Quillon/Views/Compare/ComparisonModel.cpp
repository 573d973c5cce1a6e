// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Compare/ComparisonModel.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Platform/Desktop/FontMeasurer.h"
#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr double narrowestColumn = 48;
constexpr double widestColumn = 600;

/// The measures of the log's table, with rows as much higher as they are in the usual font.
TableMetrics compareMetrics() {
    TableMetrics metrics = desktopTableMetrics();
    metrics.rowHeight += ComparisonModel::rowHeight - TableMetrics().rowHeight;
    return metrics;
}

/// How much larger letters are than in the largest of the usual fonts.
double letterScale() {
    constexpr double usualHeight = 16;
    return std::max(1.0, QFontMetricsF(fontFor(MeasuredFont::cell)).height() / usualHeight);
}

std::optional<tallyrig::UUID> idOf(const tallyrig::ADIFRecord* record) {
    return record != nullptr ? std::optional(record->id()) : std::nullopt;
}

}  // namespace

ComparisonModel::ComparisonModel(LogStore& logStore, CompareStore& compareStore, QObject* parent)
    : QObject(parent), log(logStore), store(compareStore) {
    turn.setSingleShot(true);
    connect(&turn, &QTimer::timeout, this, &ComparisonModel::followAtEndOfTurn);
    connect(&log, &LogStore::documentChanged, this, [this] {
        hasLogChanged = true;
        followLater();
    });
    connect(&store, &CompareStore::leftFileChanged, this, &ComparisonModel::followLater);
    connect(&store, &CompareStore::rightDocChanged, this, &ComparisonModel::followLater);
    refreshGeometry();
}

void ComparisonModel::setWatched(bool watched) {
    isWatched = watched;
    if (isWatched && isStale) {
        follow();
    }
}

void ComparisonModel::followLater() {
    isStale = true;
    if (isWatched) {
        turn.start(0);
    }
}

void ComparisonModel::followAtEndOfTurn() {
    if (!isWatched || !isStale) {
        return;
    }
    const bool hasStepped = hasLogChanged && store.leftFile() == nullptr;
    follow();
    if (hasStepped) {
        showLastStep();
    }
}

void ComparisonModel::follow() {
    turn.stop();
    isStale = false;
    hasLogChanged = false;
    const tallyrig::ADIFDocument& left = store.leftDoc(log.document());
    if (left.records().size() + store.rightDoc().records().size() > longLogs) {
        showBusyCursorUntilIdle();
    }
    const ComparedLogs::Change change = compared.follow(left, store.rightDoc(), store.keyFields());
    if (change == ComparedLogs::Change::all) {
        showRows();
    } else if (change == ComparedLogs::Change::row) {
        emit rowChanged();
    }
}

/// What a step back or forth in the open log has changed may be out of sight.
void ComparisonModel::showLastStep() {
    const RecordChanges step = log.changesOfLastStep();
    const auto row = step.records.empty() ? std::nullopt : compared.rowOf(step.records.front(), Side::left);
    if (row) {
        showCell({*row, columnOf(step.fieldName).value_or(current.value_or(CellPosition()).column)});
    }
}

void ComparisonModel::setDifferencesOnly(bool only) {
    compared.show(only ? ComparedLogs::Shown::differences : ComparedLogs::Shown::all);
    showRows();
}

/// Rows and columns are others now.
void ComparisonModel::showRows() {
    const bool hasMoved = keepCurrentCell();
    refreshGeometry();
    emit logsChanged();
    if (hasMoved) {
        emit cellWanted();
    }
}

// Rows and columns.

void ComparisonModel::refreshGeometry() {
    const TableMetrics metrics = compareMetrics();
    std::vector<double> columnWidths;
    columnWidths.reserve(compared.columns().size());
    for (const std::string& column : compared.columns()) {
        const auto set = widths.find(column);
        const double width = set == widths.end() ? cellWidth : set->second;
        columnWidths.push_back(std::round(width * letterScale()));
    }
    places = TableGeometry(columnWidths, compared.rowCount(), StatusGutter::hidden, metrics);
    emit geometryChanged();
}

void ComparisonModel::setColumnWidth(std::size_t column, double width) {
    widths[compared.columns()[column]] = std::clamp(width, narrowestColumn, widestColumn) / letterScale();
    refreshGeometry();
}

void ComparisonModel::resetColumnWidth(std::size_t column) {
    widths.erase(compared.columns()[column]);
    refreshGeometry();
}

// The current cell.

void ComparisonModel::noteCurrentCell(CellPosition cell) {
    current = cell;
    currentLeft = idOf(record(cell.row, Side::left));
    currentRight = idOf(record(cell.row, Side::right));
    currentField = cell.column < compared.columns().size() ? compared.columns()[cell.column] : std::string();
}

void ComparisonModel::setCurrentCell(CellPosition cell) {
    if (const auto nearest = places.nearestCell(cell)) {
        noteCurrentCell(*nearest);
        emit currentCellChanged();
    }
}

void ComparisonModel::showCell(CellPosition cell) {
    setCurrentCell(cell);
    if (current) {
        emit cellWanted();
    }
}

/// It stays with its record and its field, where these are still on screen. True if these are elsewhere now.
bool ComparisonModel::keepCurrentCell() {
    if (!current || compared.rowCount() == 0) {
        current.reset();
        return false;
    }
    const std::size_t rowBefore = current->row;
    const std::optional<std::size_t> row = rowOfCurrentRecord();
    noteCurrentCell(
        {std::min(row.value_or(rowBefore), compared.rowCount() - 1), columnOf(currentField).value_or(0)});
    return row && *row != rowBefore;
}

/// Of a pair that has parted, the record on the side where the keyboard is.
std::optional<std::size_t> ComparisonModel::rowOfCurrentRecord() const {
    const auto rowOf = [this](Side on) {
        const auto& id = on == Side::left ? currentLeft : currentRight;
        return id ? compared.rowOf(*id, on) : std::nullopt;
    };
    const auto row = rowOf(lastSide);
    return row ? row : rowOf(lastSide == Side::left ? Side::right : Side::left);
}

std::optional<std::size_t> ComparisonModel::columnOf(const std::string& field) const {
    const auto column = std::ranges::find(compared.columns(), field);
    return column == compared.columns().end()
               ? std::nullopt
               : std::optional(static_cast<std::size_t>(column - compared.columns().begin()));
}

bool ComparisonModel::goToNextDifference() {
    return goTo(compared.nextDifference(current ? std::optional(current->row) : std::nullopt));
}

bool ComparisonModel::goToPreviousDifference() {
    return goTo(compared.previousDifference(current ? std::optional(current->row) : std::nullopt));
}

bool ComparisonModel::goTo(std::optional<std::size_t> row) {
    if (!row) {
        return false;
    }
    std::size_t column = current.value_or(CellPosition()).column;
    const auto differing = compared.row(*row).differingFields();
    const auto first = std::ranges::find_if(
        compared.columns(), [&](const std::string& name) { return differing.contains(name); });
    if (first != compared.columns().end()) {
        column = static_cast<std::size_t>(first - compared.columns().begin());
    }
    showCell({*row, column});
    return true;
}

// Cells.

bool ComparisonModel::isDiffering(CellPosition cell) const {
    return compared.row(cell.row).differingFields().contains(compared.columns()[cell.column]);
}

TextBinding ComparisonModel::binding(CellPosition cell, Side side) {
    const tallyrig::UUID id = record(cell.row, side)->id();
    const std::string& column = compared.columns()[cell.column];
    if (side == Side::right) {
        return store.rightBinding(id, column);
    }
    return store.leftFile() != nullptr ? store.leftBinding(id, column) : log.cellBinding(id, column);
}

bool ComparisonModel::isFile(Side side) const {
    return side == Side::right ? store.hasRightFile() : store.leftFile() != nullptr;
}

bool ComparisonModel::saveFile(Side side) {
    if (!isFile(side)) {
        return false;
    }
    showBusyCursorUntilIdle();
    if (side == Side::right) {
        store.saveRight();
        return !store.rightDirty() && !store.errorMessage();
    }
    store.saveLeftFile();
    return !store.leftFile()->isDirty && !store.errorMessage();
}

// Words.

QString ComparisonModel::sideName(Side side) const {
    if (side == Side::right) {
        return store.rightName();
    }
    return store.leftFile() != nullptr ? store.leftFile()->name : QStringLiteral("Aktuelles Log");
}

QString ComparisonModel::statusName(Status status) {
    switch (status) {
        case Status::equal:
            return QStringLiteral("gleich");
        case Status::differs:
            return QStringLiteral("abweichend");
        case Status::onlyLeft:
            return QStringLiteral("nur links");
        case Status::onlyRight:
            return QStringLiteral("nur rechts");
    }
    return {};
}

QString ComparisonModel::statusText(std::size_t row) const {
    const tallyrig::ADIFComparison::Row shown = compared.row(row);
    QString text = statusName(shown.status());
    QStringList fields;
    constexpr std::size_t mostNamed = 20;
    const auto differing = shown.differingFields();
    for (const std::string_view field : differing) {
        if (fields.size() < static_cast<qsizetype>(mostNamed)) {
            fields.append(toQString(
                tallyrig::text::visibleText(cutToShow(ADIFFieldCatalog::label(std::string(field))))));
        }
    }
    if (!fields.isEmpty()) {
        text += QStringLiteral(": ") + fields.join(QStringLiteral(", "));
    }
    return differing.size() > mostNamed
               ? text + QStringLiteral(" und %1 weitere").arg(differing.size() - mostNamed)
               : text;
}

}  // namespace quillon
