// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace quillon {

/// The fields by which the QSOs of two logs are paired as long as the user says nothing else.
inline std::vector<std::string> usualComparisonKey() {
    return {"CALL", "QSO_DATE", "TIME_ON", "BAND", "MODE"};
}

}  // namespace quillon
