#pragma once

#include "Tallyrig/Log/UUID.h"
#include "Tallyrig/Validation/ValidationKind.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace tallyrig {

/// One finding about one record of a log.
struct ValidationIssue {
    UUID id = UUID::fresh();      ///< Identity for lists on screen.
    std::size_t recordIndex = 0;  ///< The position of the record in its document, from zero.
    ValidationKind kind;

    ValidationIssue(std::size_t index, ValidationKind what) : recordIndex(index), kind(std::move(what)) {}

    ValidationSeverity severity() const { return severityOf(kind); }
};

/// Orders findings for reading: by record, within a record errors before warnings, otherwise as they came.
/// Cost: one pass where they are in that order already.
void sortIssues(std::vector<ValidationIssue>& issues);

}  // namespace tallyrig
