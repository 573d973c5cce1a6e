// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/CrossCheckReport.h"

#include <utility>

namespace tallyrig {

CrossCheckReport::CrossCheckReport() : CrossCheckReport({}, {}) {}

CrossCheckReport::CrossCheckReport(std::vector<CrossCheckSummary> summaries, std::vector<Findings> findings) {
    std::unordered_map<UUID, std::size_t> positions;
    for (std::size_t log = 0; log < summaries.size(); ++log) {
        positions.emplace(summaries[log].logID, log);
    }
    contents = std::make_shared<const Contents>(
        Contents{std::move(summaries), std::move(findings), std::move(positions)});
}

std::span<const CrossCheckFinding> CrossCheckReport::findings(UUID logID) const {
    const auto position = contents->positions.find(logID);
    if (position == contents->positions.end()) {
        return {};
    }
    return contents->findings[position->second];
}

}  // namespace tallyrig
