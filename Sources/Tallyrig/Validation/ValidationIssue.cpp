#include "Tallyrig/Validation/ValidationIssue.h"

#include <algorithm>
#include <utility>

namespace tallyrig {

void sortIssues(std::vector<ValidationIssue>& issues) {
    const auto place = [](const ValidationIssue& issue) {
        return std::pair(issue.recordIndex, issue.severity());
    };
    if (!std::ranges::is_sorted(issues, {}, place)) {
        std::ranges::stable_sort(issues, {}, place);
    }
}

}  // namespace tallyrig
