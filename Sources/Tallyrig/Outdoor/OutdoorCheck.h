// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Outdoor/OutdoorProgram.h"
#include "Tallyrig/Outdoor/SOTARole.h"
#include "Tallyrig/Validation/ValidationIssue.h"

#include <vector>

namespace tallyrig {

/// All that is to be said of a log before it is handed in to a program, in the order of `sortIssues`: what
/// the validator finds of missing fields and of forms, then what the program asks for. `role` counts for SOTA
/// only.
std::vector<ValidationIssue> outdoorIssues(const ADIFDocument& document, OutdoorProgram program,
                                           SOTARole role);

}  // namespace tallyrig
