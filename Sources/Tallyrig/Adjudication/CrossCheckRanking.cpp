// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Adjudication/CrossCheckRanking.h"

#include "Tallyrig/Contest/Saturation.h"
#include "Tallyrig/CrossCheck/BaseCall.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <unordered_map>

namespace tallyrig {

namespace {

bool isBefore(const CrossCheckEntry& left, const CrossCheckEntry& right) {
    constexpr double none = -1;
    if (left.checked && right.checked && *left.checked != *right.checked) {
        return *left.checked > *right.checked;
    }
    const double leftQuota = left.counts.accuracy().value_or(none);
    const double rightQuota = right.counts.accuracy().value_or(none);
    if (leftQuota != rightQuota) {
        return leftQuota > rightQuota;
    }
    return text::compare(left.owner, right.owner) < 0;
}

void add(std::optional<std::int64_t>& sum, std::int64_t points) {
    sum = saturatedSum(sum.value_or(0), points);
}

}  // namespace

std::vector<CrossCheckEntry> crossCheckRanking(const CrossCheckReport& report,
                                               std::span<const CrossCheckLog> logs,
                                               const CrossCheckScores& scores) {
    std::unordered_map<UUID, const CrossCheckSummary*> summaries;
    for (const CrossCheckSummary& summary : report.summaries()) {
        summaries.emplace(summary.logID, &summary);
    }
    std::vector<CrossCheckEntry> entries;
    std::unordered_map<std::string, std::size_t> positions;
    for (const CrossCheckLog& log : logs) {
        const std::string call = baseCall(log.owner);
        const auto [position, isNew] = positions.emplace(text::canonicalKey(call), entries.size());
        if (isNew) {
            entries.emplace_back().owner = log.owner.empty() ? call : log.owner;
        }
        CrossCheckEntry& entry = entries[position->second];
        entry.logIDs.push_back(log.id);
        if (const auto summary = summaries.find(log.id); summary != summaries.end()) {
            entry.counts += summary->second->counts;
        }
        if (const auto score = scores.find(log.id); score != scores.end()) {
            add(entry.claimed, score->second.claimed.total);
            add(entry.checked, score->second.checked.total);
        }
    }
    // With points for some only, three can each stand before the next all round: such a list has no order,
    // but this one sort does not stumble over it.
    std::ranges::stable_sort(entries, isBefore);
    for (std::size_t place = 0; place < entries.size(); ++place) {
        entries[place].rank = place + 1;
    }
    return entries;
}

}  // namespace tallyrig
