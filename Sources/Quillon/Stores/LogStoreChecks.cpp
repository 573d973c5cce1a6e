#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Stores/LogStoreOperation.h"
#include "Quillon/Stores/ValidationSettings.h"

#include <algorithm>
#include <utility>

namespace quillon {

using tallyrig::ValidationIssue;
using tallyrig::ValidationSeverity;

void LogStore::runCheck() {
    const Operation operation(*this);
    applyIssues(validatorFor(settings).issues(state.document));
}

void LogStore::applyIssues(std::vector<ValidationIssue> issues) {
    CheckResults results;
    results.records = state.document.records();
    tallyrig::sortIssues(issues);
    for (const ValidationIssue& issue : issues) {
        const ValidationSeverity severity = issue.severity();
        results.errorCount += severity == ValidationSeverity::error ? 1 : 0;
        if (issue.recordIndex < results.records.size()) {
            // Errors come first, so that the first finding of a record is its worst.
            results.severities.try_emplace(results.records[issue.recordIndex].id(), severity);
        }
    }
    results.issues = std::move(issues);
    setCheckResults(std::move(results));
    state.showCheckResults = true;
}

void LogStore::clearCheckResults() {
    setCheckResults({});
    state.showCheckResults = false;
}

void LogStore::setCheckResults(CheckResults results) {
    if (!results.issues.empty() || !state.checkResults->issues.empty()) {
        state.checkResults = std::make_shared<const CheckResults>(std::move(results));
    }
}

std::vector<std::string> LogStore::recordIssueMessages(tallyrig::UUID id) const {
    const CheckResults& results = *state.checkResults;
    const auto index = results.records.indexOf(id);
    if (!index) {
        return {};
    }
    std::vector<std::string> messages;
    auto issue = std::ranges::lower_bound(results.issues, *index, {}, &ValidationIssue::recordIndex);
    for (; issue != results.issues.end() && issue->recordIndex == *index; ++issue) {
        messages.push_back(ADIFFieldCatalog::germanMessage(*issue));
    }
    return messages;
}

}  // namespace quillon
