// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecordList.h"
#include "Tallyrig/Log/UUID.h"
#include "Tallyrig/Validation/ValidationIssue.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// What a check found in a log, in one piece. Keeps no more than the findings themselves: what is said about
/// one record is worked out when it is asked for.
class CheckResults {
  public:
    /// No findings.
    CheckResults() = default;
    /// Findings in any order about `checkedRecords`, to which their positions refer.
    CheckResults(tallyrig::ADIFRecordList checkedRecords, std::vector<tallyrig::ValidationIssue> issues);

    /// By record, of one record the errors first, otherwise as they came.
    const std::vector<tallyrig::ValidationIssue>& issues() const { return findings; }
    std::size_t errorCount() const { return errors; }
    std::size_t warningCount() const { return findings.size() - errors; }

    /// Whether any finding is about a record that there was.
    bool marksRecords() const;
    /// The worst severity of the record's findings; absent without any. Cost: two binary searches.
    std::optional<tallyrig::ValidationSeverity> severity(tallyrig::UUID id) const;
    /// The German messages about the record in the order of its findings; empty without any. Those about a
    /// large group of duplicates name each other and would not fit into memory together.
    std::vector<std::string> messages(tallyrig::UUID id) const;

  private:
    std::vector<tallyrig::ValidationIssue>::const_iterator firstAbout(tallyrig::UUID id) const;

    tallyrig::ADIFRecordList records;
    std::vector<tallyrig::ValidationIssue> findings;
    std::size_t errors = 0;
};

}  // namespace quillon
