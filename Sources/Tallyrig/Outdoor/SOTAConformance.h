// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Outdoor/SOTARole.h"
#include "Tallyrig/Validation/ValidationIssue.h"

#include <vector>

namespace tallyrig {

/// Checks whether a log is fit for the database of SOTA.
struct SOTAConformance {
    SOTARole role;

    /// The findings about the records, in the order of `sortIssues`. Each QSO needs a call sign of the
    /// station; an activator's needs a summit or several, a chaser's may have one. Cost: one pass.
    std::vector<ValidationIssue> issues(const ADIFDocument& document) const;
};

}  // namespace tallyrig
