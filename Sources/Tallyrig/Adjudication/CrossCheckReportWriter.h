// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Adjudication/CrossCheckRanking.h"
#include "Tallyrig/Adjudication/CrossCheckScore.h"
#include "Tallyrig/Adjudication/StationReports.h"
#include "Tallyrig/CrossCheck/CrossCheckLog.h"
#include "Tallyrig/CrossCheck/CrossCheckReport.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// What the reports say of the evaluation as a whole.
struct CrossCheckExportInfo {
    std::string contestName;
    std::string evaluator;  ///< A call or a name; may be empty.
    std::int64_t toleranceMinutes = 0;
    std::string generator;  ///< Name and version of the program.
    std::string date;       ///< That of the evaluation, as it is to be printed.
};

/// Writes what an evaluator sends out: a report to each station and the ranking, in German. The same input
/// gives the same bytes at any time and in any locale.
///
/// Refers to the report, the logs and the scores, which may be none. Several threads may ask it at once.
class CrossCheckReportWriter {
  public:
    using Entry = CrossCheckEntry;

    /// Cost: one pass over all findings.
    CrossCheckReportWriter(const CrossCheckReport& report, std::span<const CrossCheckLog> logs,
                           const CrossCheckScores& scores, CrossCheckExportInfo exportInfo);

    const std::vector<Entry>& ranking() const { return stations.ranking(); }
    /// The ranking as comma-separated values (RFC 4180), with a header and one row for each station.
    std::string rankingCSV() const;

    /// The report to the station with the base call of `owner`, as plain text and as Markdown. Empty if there
    /// is no such station.
    std::string text(std::string_view owner) const;
    std::string markdown(std::string_view owner) const;

    /// A name for the file of a report, without extension: the call with a "-" for all that is no letter and
    /// no digit. Calls that differ in no more than that have one name.
    static std::string fileName(std::string_view owner);

  private:
    std::string headerLine(const StationReport& station) const;
    std::vector<std::string> footer() const;

    StationReports stations;
    CrossCheckExportInfo info;
    std::size_t logCount;
    bool hasScores;
};

}  // namespace tallyrig
