// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Stores/ValidationSettings.h"

#include <memory>
#include <utility>

namespace quillon {

void LogStore::runCheck() {
    showIssues(validatorFor(settings).issues(state.document));
}

void LogStore::showIssues(std::vector<tallyrig::ValidationIssue> issues) {
    const Operation operation(*this);
    auto results = std::make_shared<const CheckResults>(state.document.records(), std::move(issues));
    if (!results->issues().empty() || !state.checkResults->issues().empty()) {
        state.checkResults = std::move(results);
    }
    state.showCheckResults = true;
}

void LogStore::clearCheckResults() {
    if (!state.checkResults->issues().empty()) {
        state.checkResults = std::make_shared<const CheckResults>();
    }
    state.showCheckResults = false;
}

}  // namespace quillon
