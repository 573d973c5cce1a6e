// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/ContestCrossChecker.h"

#include "Tallyrig/CrossCheck/CrossCheckIndex.h"
#include "Tallyrig/CrossCheck/LogCrossCheck.h"
#include "Tallyrig/CrossCheck/LogWork.h"

#include <oneapi/tbb/enumerable_thread_specific.h>

#include <cstddef>
#include <utility>
#include <vector>

namespace tallyrig {

CrossCheckReport ContestCrossChecker::check(std::span<const CrossCheckLog> logs) const {
    LogWork work;
    return check(logs, work).value_or(CrossCheckReport());
}

std::optional<CrossCheckReport> ContestCrossChecker::check(std::span<const CrossCheckLog> logs,
                                                           LogWork& work) const {
    std::size_t count = 0;
    for (const CrossCheckLog& log : logs) {
        count += log.document.records().size();
    }
    // Each QSO is read once and looked for once.
    work.start(2 * count);
    std::vector<CrossCheckReport::Findings> findings;
    const CrossCheckIndex index(logs, crossCheckOptions, findings, work);
    std::vector<CrossCheckSummary> summaries(logs.size());
    tbb::enumerable_thread_specific<LogCrossCheck> checks(index, logs, crossCheckOptions);
    work.forEach(logs.size(), [&](std::size_t position) {
        const CrossCheckLog& log = logs[position];
        summaries[position] = {log.id, log.name, log.owner, {}};
        if (findings[position].empty()) {
            return;
        }
        checks.local().judge(position, findings[position], work);
        for (const CrossCheckFinding& finding : findings[position]) {
            summaries[position].counts.add(finding.status);
        }
        work.addDone(findings[position].size());
    });
    if (work.isCancelled()) {
        return std::nullopt;
    }
    return CrossCheckReport(std::move(summaries), std::move(findings));
}

}  // namespace tallyrig
