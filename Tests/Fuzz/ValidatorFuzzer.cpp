// SPDX-License-Identifier: GPL-3.0-or-later
// Validates any document. A QSO is judged by itself, and duplicates are those of the groups.

#include "Fuzz/Require.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Validation/ADIFValidator.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

using namespace tallyrig;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const ADIFDocument document = ADIFParser::parse({reinterpret_cast<const char*>(bytes), size});

    ADIFValidator validator(ADIFValidator::usualRequiredFields(), {"CALL", "BAND"}, true, true, false, true);
    std::vector<ValidationIssue> singly;
    std::size_t index = 0;
    for (const ADIFRecord& record : document.records()) {
        for (ValidationIssue& issue : validator.issues({"", {}, ADIFRecordList({record})})) {
            require(issue.recordIndex == 0, "findings are about a record of the log");
            issue.recordIndex = index;
            singly.push_back(std::move(issue));
        }
        ++index;
    }
    const auto isSame = [](const ValidationIssue& left, const ValidationIssue& right) {
        return left.recordIndex == right.recordIndex && left.kind() == right.kind();
    };
    require(std::ranges::equal(validator.issues(document), singly, isSame), "a QSO's findings are its own");

    validator.checksDuplicates = true;
    std::vector<bool> isDuplicate(document.records().size());
    for (const std::vector<std::size_t>& group : validator.duplicateGroups(document)) {
        require(group.size() > 1 && std::ranges::is_sorted(group),
                "a group has several members in their order");
        for (const std::size_t member : group) {
            require(!isDuplicate.at(member), "a QSO is in one group at most");
            isDuplicate[member] = true;
        }
    }
    for (const ValidationIssue& issue : validator.issues(document)) {
        if (std::holds_alternative<finding::Duplicate>(issue.kind())) {
            require(isDuplicate.at(issue.recordIndex), "a duplicate is told once, and is in a group");
            isDuplicate[issue.recordIndex] = false;
        }
    }
    require(std::ranges::count(isDuplicate, true) == 0, "each member of a group is told of");
    return 0;
}
