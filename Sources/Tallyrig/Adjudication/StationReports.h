// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Adjudication/CrossCheckRanking.h"
#include "Tallyrig/Adjudication/CrossCheckScore.h"
#include "Tallyrig/CrossCheck/CrossCheckFinding.h"
#include "Tallyrig/CrossCheck/CrossCheckLog.h"
#include "Tallyrig/CrossCheck/CrossCheckReport.h"
#include "Tallyrig/Log/UUID.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tallyrig {

/// What there is to say to one station, whatever it is written in. All texts are German.
struct StationReport {
    /// The points of one of its logs.
    struct PointsRow {
        std::string log;
        std::int64_t claimed = 0;
        std::int64_t checked = 0;
        std::size_t removed = 0;
        std::int64_t penalty = 0;
    };
    /// One QSO with what is to be said of it.
    struct Line {
        std::string date;
        std::string time;
        std::string band;
        std::string mode;
        std::string call;
        std::string detail;
    };
    struct Section {
        std::string_view title;
        std::vector<Line> lines;
        bool showWhenEmpty = false;

        bool isShown() const { return showWhenEmpty || !lines.empty(); }
    };

    CrossCheckEntry entry;
    std::vector<std::string> logNames;
    std::vector<PointsRow> points;  ///< Of the logs that have a score.
    std::vector<Section> sections;
};

/// What there is to say to all stations. Refers to the report, the logs and the scores.
class StationReports {
  public:
    /// Cost: one pass over all findings.
    StationReports(const CrossCheckReport& report, std::span<const CrossCheckLog> logs,
                   const CrossCheckScores& scores);

    const std::vector<CrossCheckEntry>& ranking() const { return entries; }
    /// Of the station with the base call of `owner`; absent if there is none.
    std::optional<StationReport> of(std::string_view owner) const;

  private:
    using Findings = std::vector<const CrossCheckFinding*>;
    using Line = StationReport::Line;
    using Section = StationReport::Section;

    /// Null for a log that is not here.
    const CrossCheckLog* logOf(UUID id) const;
    Section section(std::string_view title, const Findings& own,
                    std::initializer_list<CrossCheckStatus> statuses, bool showWhenEmpty) const;
    Section errorsOfOthers(std::size_t entry) const;
    Line line(const CrossCheckFinding& finding) const;

    const CrossCheckReport& report;
    const CrossCheckScores& scores;
    std::vector<CrossCheckEntry> entries;
    std::unordered_map<UUID, const CrossCheckLog*> logsByID;
    std::unordered_map<std::string, std::size_t> entriesByCall;
    std::unordered_map<UUID, std::size_t> entriesByLog;
    std::vector<Findings> errorsByEntry;  ///< Those of others in QSOs with the station, in their order.
};

}  // namespace tallyrig
