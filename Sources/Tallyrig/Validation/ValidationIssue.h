// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/Shared.h"
#include "Tallyrig/Log/UUID.h"
#include "Tallyrig/Validation/ValidationKind.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace tallyrig {

/// One finding about one record of a log. A log may have millions of them: findings that say the same about
/// several records may share what they say.
class ValidationIssue {
  public:
    ValidationIssue(std::size_t index, ValidationKind what)
        : ValidationIssue(index, Shared<ValidationKind>::make(std::move(what))) {}
    ValidationIssue(std::size_t index, Shared<ValidationKind> what)
        : recordIndex(index), content(std::move(what)) {}

    /// Identity for lists on screen, fresh at construction.
    UUID id() const { return UUID::freshWith(idNumber); }
    /// Good as long as this finding or any copy of it.
    const ValidationKind& kind() const { return *content; }
    ValidationSeverity severity() const { return severityOf(*content); }
    /// The kind for another finding that says the same.
    const Shared<ValidationKind>& sharedKind() const { return content; }

    std::size_t recordIndex;  ///< The position of the record in its document, from zero.

  private:
    std::uint64_t idNumber = UUID::fresh().low;
    Shared<ValidationKind> content;
};

/// Whether `left` is to be read before `right`: by record, within a record errors before warnings.
bool standsBefore(const ValidationIssue& left, const ValidationIssue& right);
/// Orders findings for reading: by record, within a record errors before warnings, otherwise as they came.
/// Cost: one pass where they are in that order already.
void sortIssues(std::vector<ValidationIssue>& issues);

}  // namespace tallyrig
