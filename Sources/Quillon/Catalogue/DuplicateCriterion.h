// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// In what QSOs have to agree to count as duplicates.
enum class DuplicateCriterion { callBandMode, callBand, callBandModeDate, call };

/// All of them, in the order in which they are offered.
inline constexpr std::array duplicateCriteria = {
    DuplicateCriterion::callBandMode, DuplicateCriterion::callBand, DuplicateCriterion::callBandModeDate,
    DuplicateCriterion::call};

/// How the criterion is written in a setting or on a command line, such as "call_band_mode".
std::string_view storedValue(DuplicateCriterion criterion);
/// The criterion that is written so, absent if there is none.
std::optional<DuplicateCriterion> duplicateCriterionStoredAs(std::string_view text);
/// The same, `callBandMode` if there is none.
DuplicateCriterion duplicateCriterionOrDefault(std::string_view text);

/// The fields to agree in.
std::vector<std::string> keyFields(DuplicateCriterion criterion);
/// The German words for it.
std::string_view label(DuplicateCriterion criterion);

}  // namespace quillon
