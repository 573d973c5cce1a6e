// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecordList.h"
#include "Tallyrig/Log/PerTag.h"
#include "Tallyrig/Log/RecordValues.h"
#include "Tallyrig/Log/Shared.h"
#include "Tallyrig/Log/SharedTexts.h"
#include "Tallyrig/Validation/ADIFValidator.h"
#include "Tallyrig/Validation/FieldRule.h"
#include "Tallyrig/Validation/ValidationIssue.h"
#include "Tallyrig/Validation/ValidationKind.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tallyrig {

/// One pass of a validator over the records of a log. Refers to both.
class ValidationRun {
  public:
    ValidationRun(const ADIFValidator& validator, const ADIFRecordList& records);

    /// The findings, in order. To be asked for once.
    std::vector<ValidationIssue> issues();

  private:
    void checkRequiredFields();
    void checkFields(const ADIFRecord& record);
    void checkValue(const FieldRule& rule, std::string_view storedValue);
    void checkSharedValue(const FieldRule& rule, const FieldTag& tag);
    void checkForm(const FieldRule& rule, std::string_view value);
    void checkMembership(const FieldRule& rule, std::string_view value);
    void checkCallsign();
    void checkFrequency();
    void findDuplicates();
    void addDuplicate();
    void putErrorsFirst(std::size_t begin);

    void add(ValidationKind kind) { add(Shared<ValidationKind>::make(std::move(kind))); }
    void add(Shared<ValidationKind> kind);

    /// A record's place among those that share its key.
    struct Membership {
        std::shared_ptr<const std::vector<std::size_t>>
            numbers;  ///< Of the whole group; null outside groups.
        std::size_t position = 0;
    };

    const ADIFValidator& validator;
    const ADIFRecordList& records;
    RecordValues values;
    std::vector<std::size_t> requiredColumns;             ///< By position in the required fields.
    std::vector<Shared<ValidationKind>> missingRequired;  ///< The same.
    SharedTexts duplicateKeyFields;
    std::size_t callColumn;
    std::size_t bandColumn;
    std::size_t frequencyColumn;
    PerTag<FieldRule> rules;
    std::unordered_map<const FieldTag*, std::vector<Shared<ValidationKind>>>
        sharedValueKinds;                 ///< What was found about the values that tags share.
    std::vector<Membership> memberships;  ///< By record; empty where there are no duplicates.
    std::size_t recordIndex = 0;
    std::vector<ValidationIssue> found;
};

}  // namespace tallyrig
