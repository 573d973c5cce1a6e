// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Outdoor/OutdoorProgram.h"
#include "Tallyrig/Validation/ValidationIssue.h"

#include <vector>

namespace tallyrig {

/// Checks whether a log is fit for a program that takes ADIF.
struct OutdoorConformance {
    OutdoorProgram program;

    /// The findings about the records, in the order of `sortIssues`; none for SOTA. Each QSO needs a call
    /// sign of the station, and what it has of references and `MY_SIG` must be the program's. It may do
    /// without: the reference may stand in the name of the file. Cost: one pass.
    std::vector<ValidationIssue> issues(const ADIFDocument& document) const;
};

}  // namespace tallyrig
