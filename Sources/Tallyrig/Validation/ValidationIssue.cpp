// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Validation/ValidationIssue.h"

#include <algorithm>
#include <utility>

namespace tallyrig {

bool standsBefore(const ValidationIssue& left, const ValidationIssue& right) {
    return std::pair(left.recordIndex, left.severity()) < std::pair(right.recordIndex, right.severity());
}

void sortIssues(std::vector<ValidationIssue>& issues) {
    if (!std::ranges::is_sorted(issues, standsBefore)) {
        std::ranges::stable_sort(issues, standsBefore);
    }
}

}  // namespace tallyrig
