// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Validation/ValidationIssue.h"
#include "TallyrigTool/Console.h"
#include "TallyrigTool/LogFile.h"

#include <cstddef>
#include <vector>

namespace tallyrig::tool {

/// A log with what a check found in it, as the commands that check print it.
class CheckedLog {
  public:
    /// The findings are in the order of `sortIssues`.
    CheckedLog(LogFile checkedLog, std::vector<ValidationIssue> found);

    /// An object with the findings one by one, without a line break behind it.
    void writeJson(Output& output) const;
    /// A line about the log and one for each finding.
    void writeText(Output& output) const;
    ExitStatus status() const { return issues.empty() ? ExitStatus::good : ExitStatus::findings; }

  private:
    std::size_t warnings() const { return issues.size() - errors; }

    LogFile log;
    std::vector<ValidationIssue> issues;
    std::size_t errors;
};

}  // namespace tallyrig::tool
