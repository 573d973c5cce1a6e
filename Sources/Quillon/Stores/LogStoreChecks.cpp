#include "Quillon/Stores/LogStore.h"
#include "Quillon/Stores/ValidationSettings.h"

#include <memory>

namespace quillon {

void LogStore::runCheck() {
    const Operation operation(*this);
    auto results = std::make_shared<const CheckResults>(state.document.records(),
                                                        validatorFor(settings).issues(state.document));
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
