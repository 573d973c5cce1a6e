// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Outdoor/OutdoorCheck.h"

#include "Tallyrig/Outdoor/OutdoorConformance.h"
#include "Tallyrig/Outdoor/SOTAConformance.h"
#include "Tallyrig/Validation/ADIFValidator.h"

#include <algorithm>
#include <iterator>

namespace tallyrig {

namespace {

std::vector<ValidationIssue> conformanceIssues(const ADIFDocument& document, OutdoorProgram program,
                                               SOTARole role) {
    return program == OutdoorProgram::sota ? SOTAConformance{role}.issues(document)
                                           : OutdoorConformance{program}.issues(document);
}

}  // namespace

std::vector<ValidationIssue> outdoorIssues(const ADIFDocument& document, OutdoorProgram program,
                                           SOTARole role) {
    // A station worked from two summits in a row is no mistake, and the fields that programs invent for
    // themselves do no harm.
    const ADIFValidator validator(ADIFValidator::usualRequiredFields(), {"CALL", "BAND", "MODE"}, true, true,
                                  false, false);
    std::vector<ValidationIssue> general = validator.issues(document);
    std::vector<ValidationIssue> particular = conformanceIssues(document, program, role);
    if (particular.empty()) {
        return general;
    }
    // Both are in order, so that one pass joins them.
    std::vector<ValidationIssue> all;
    all.reserve(general.size() + particular.size());
    std::merge(std::make_move_iterator(general.begin()), std::make_move_iterator(general.end()),
               std::make_move_iterator(particular.begin()), std::make_move_iterator(particular.end()),
               std::back_inserter(all), standsBefore);
    return all;
}

}  // namespace tallyrig
