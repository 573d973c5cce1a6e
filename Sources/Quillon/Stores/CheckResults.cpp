// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/CheckResults.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"

#include <algorithm>
#include <utility>

namespace quillon {

using tallyrig::ValidationIssue;
using tallyrig::ValidationSeverity;

CheckResults::CheckResults(tallyrig::ADIFRecordList checkedRecords, std::vector<ValidationIssue> issues)
    : records(std::move(checkedRecords)), findings(std::move(issues)) {
    tallyrig::sortIssues(findings);
    errors = static_cast<std::size_t>(std::ranges::count_if(findings, [](const ValidationIssue& issue) {
        return issue.severity() == ValidationSeverity::error;
    }));
}

bool CheckResults::marksRecords() const {
    return !findings.empty() && findings.front().recordIndex < records.size();
}

/// The end if there is none.
std::vector<ValidationIssue>::const_iterator CheckResults::firstAbout(tallyrig::UUID id) const {
    const auto index = findings.empty() ? std::nullopt : records.indexOf(id);
    if (!index) {
        return findings.end();
    }
    const auto first = std::ranges::lower_bound(findings, *index, {}, &ValidationIssue::recordIndex);
    return first != findings.end() && first->recordIndex == *index ? first : findings.end();
}

std::optional<ValidationSeverity> CheckResults::severity(tallyrig::UUID id) const {
    // Errors come first, so that the first finding of a record is its worst.
    const auto first = firstAbout(id);
    return first == findings.end() ? std::nullopt : std::optional(first->severity());
}

std::vector<std::string> CheckResults::messages(tallyrig::UUID id) const {
    std::vector<std::string> texts;
    const auto first = firstAbout(id);
    for (auto issue = first; issue != findings.end() && issue->recordIndex == first->recordIndex; ++issue) {
        texts.push_back(ADIFFieldCatalog::germanMessage(*issue));
    }
    return texts;
}

}  // namespace quillon
