// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/DuplicateCriterion.h"

#include <algorithm>

namespace quillon {

namespace {

struct Row {
    DuplicateCriterion criterion;
    std::string_view storedValue;
    std::array<std::string_view, 4> keyFields;  ///< Filled up with empty names.
    std::string_view label;
};

constexpr Row rows[] = {
    {DuplicateCriterion::callBandMode, "call_band_mode", {"CALL", "BAND", "MODE"}, "Call + Band + Modus"},
    {DuplicateCriterion::callBand, "call_band", {"CALL", "BAND"}, "Call + Band"},
    {DuplicateCriterion::callBandModeDate,
     "call_band_mode_date",
     {"CALL", "BAND", "MODE", "QSO_DATE"},
     "Call + Band + Modus + Datum"},
    {DuplicateCriterion::call, "call", {"CALL"}, "Nur Call"},
};

const Row& rowOf(DuplicateCriterion criterion) {
    return *std::ranges::find(rows, criterion, &Row::criterion);
}

}  // namespace

std::string_view storedValue(DuplicateCriterion criterion) {
    return rowOf(criterion).storedValue;
}

std::optional<DuplicateCriterion> duplicateCriterionStoredAs(std::string_view text) {
    const Row* const row = std::ranges::find(rows, text, &Row::storedValue);
    return row == std::end(rows) ? std::nullopt : std::optional(row->criterion);
}

DuplicateCriterion duplicateCriterionOrDefault(std::string_view text) {
    return duplicateCriterionStoredAs(text).value_or(DuplicateCriterion::callBandMode);
}

std::vector<std::string> keyFields(DuplicateCriterion criterion) {
    std::vector<std::string> fields;
    for (const std::string_view field : rowOf(criterion).keyFields) {
        if (!field.empty()) {
            fields.emplace_back(field);
        }
    }
    return fields;
}

std::string_view label(DuplicateCriterion criterion) {
    return rowOf(criterion).label;
}

}  // namespace quillon
