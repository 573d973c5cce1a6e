// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestRules.h"
#include "Tallyrig/Contest/ContestStation.h"

#include <array>
#include <cstdint>
#include <string>

namespace quillon {

/// Where the points of the contest of one's own come from.
enum class PointsKind { fixed, distance, field };
inline constexpr std::array pointsKinds = {PointsKind::fixed, PointsKind::distance, PointsKind::field};

/// In what its duplicates agree.
enum class DupeMode { callBand, callBandMode, call };
inline constexpr std::array dupeModes = {DupeMode::callBand, DupeMode::callBandMode, DupeMode::call};

/// The form of the contest of one's own, as filled in.
struct GenericContest {
    std::string contestName = "Mein Contest";
    PointsKind pointsKind = PointsKind::fixed;
    std::int64_t fixedPoints = 1;               ///< For `fixed`.
    std::string pointsField = "DISTANCE";       ///< For `field`.
    std::string myGridField = "MY_GRIDSQUARE";  ///< For `distance`, as the next.
    std::string theirGridField = "GRIDSQUARE";
    DupeMode dupeMode = DupeMode::callBand;
    std::string requiredFieldsText = "CALL";  ///< Names between commas and blanks; `CALL` if there are none.
    bool multiplierEnabled = true;
    std::string multiplierName = "DXCC-Gebiete";
    std::string multiplierField = "DXCC";  ///< Without it there is no multiplier.
    bool multiplierPerBand = false;
    std::int64_t multiplierPrefix = 0;  ///< The number of characters that count; all of them below 1.

    tallyrig::ContestRules rules(const tallyrig::ContestStation& station) const;
    friend bool operator==(const GenericContest&, const GenericContest&) = default;
};

}  // namespace quillon
