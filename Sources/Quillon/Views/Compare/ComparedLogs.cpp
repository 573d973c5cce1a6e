// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Compare/ComparedLogs.h"

#include "Quillon/Stores/RecordChanges.h"
#include "Tallyrig/Analysis/ADIFComparator.h"

#include <algorithm>

namespace quillon {

namespace {

using tallyrig::ADIFDocument;

/// The position of the one record that was edited; absent if anything else is different.
std::optional<std::size_t> editedRecord(const ADIFDocument& before, const ADIFDocument& now) {
    if (before.records().size() != now.records().size() || before.headerFields() != now.headerFields()) {
        return std::nullopt;
    }
    const RecordChanges changes = changesBetween(before.records(), now.records());
    const auto index =
        changes.records.size() == 1 ? now.records().indexOf(changes.records.front()) : std::nullopt;
    const bool wasThere = index && before.records()[*index].id() == changes.records.front();
    return wasThere ? index : std::nullopt;
}

}  // namespace

ComparedLogs::Change ComparedLogs::follow(const ADIFDocument& left, const ADIFDocument& right,
                                          const std::vector<std::string>& keyFields) {
    const bool isLeftSame = leftLog.isSameAs(left);
    const bool isRightSame = rightLog.isSameAs(right);
    if (keyFields == keys && isLeftSame && isRightSame) {
        return Change::none;
    }
    if (keyFields == keys && isLeftSame != isRightSame) {
        const std::vector<std::string> columnsBefore = columns();
        const std::size_t rowsBefore = rowCount();
        if (followEdit(isLeftSame ? right : left, isLeftSame ? Side::right : Side::left)) {
            return columns() == columnsBefore && rowCount() == rowsBefore ? Change::row : Change::all;
        }
    }
    leftLog = left;
    rightLog = right;
    keys = keyFields;
    found = tallyrig::ADIFComparator(keys).compare(leftLog, rightLog);
    show(shown());
    return Change::all;
}

bool ComparedLogs::followEdit(const ADIFDocument& now, Side side) {
    ADIFDocument& log = side == Side::left ? leftLog : rightLog;
    const auto index = editedRecord(log, now);
    const auto row = index ? comparedRowOf(*index, side) : std::nullopt;
    if (!row) {
        return false;
    }
    const ADIFDocument before = log;
    log = now;
    const tallyrig::ADIFComparator::Edit edit{*row, side, before.records()[*index]};
    if (!tallyrig::ADIFComparator(keys).refresh(found, leftLog, rightLog, edit)) {
        return false;
    }
    if (chosenRows && found.row(*row).status() != Status::equal) {
        const auto place = std::ranges::lower_bound(*chosenRows, *row);
        if (place == chosenRows->end() || *place != *row) {
            chosenRows->insert(place, static_cast<std::uint32_t>(*row));
        }
    }
    return true;
}

void ComparedLogs::show(Shown wanted) {
    chosenRows.reset();
    if (wanted == Shown::differences) {
        const auto differences = found.differences();
        chosenRows.emplace(differences.begin(), differences.end());
    }
}

const tallyrig::ADIFRecord* ComparedLogs::record(std::size_t row, Side side) const {
    const tallyrig::ADIFComparison::Row compared = this->row(row);
    const auto index = side == Side::left ? compared.left() : compared.right();
    return index ? &log(side).records()[*index] : nullptr;
}

std::optional<std::size_t> ComparedLogs::rowOf(tallyrig::UUID record, Side side) const {
    const auto index = log(side).records().indexOf(record);
    return index ? shownRow(comparedRowOf(*index, side)) : std::nullopt;
}

std::optional<std::size_t> ComparedLogs::comparedRowOf(std::size_t record, Side side) const {
    if (side == Side::left) {
        return record;
    }
    for (std::size_t row = 0; row < found.rowCount(); ++row) {
        if (found.row(row).right() == record) {
            return row;
        }
    }
    return std::nullopt;
}

std::optional<std::size_t> ComparedLogs::shownRow(std::optional<std::size_t> compared) const {
    if (!compared || !chosenRows) {
        return compared;
    }
    const auto place = std::ranges::lower_bound(*chosenRows, *compared);
    return place != chosenRows->end() && *place == *compared
               ? std::optional(static_cast<std::size_t>(place - chosenRows->begin()))
               : std::nullopt;
}

std::optional<std::size_t> ComparedLogs::nextDifference(std::optional<std::size_t> row) const {
    if (row) {
        return shownRow(found.nextDifference(comparedRow(*row)));
    }
    const auto differences = found.differences();
    return differences.empty() ? std::nullopt : shownRow(differences.front());
}

std::optional<std::size_t> ComparedLogs::previousDifference(std::optional<std::size_t> row) const {
    return shownRow(found.previousDifference(row ? comparedRow(*row) : found.rowCount()));
}

}  // namespace quillon
