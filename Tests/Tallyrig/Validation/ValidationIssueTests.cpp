#include "Tallyrig/Validation/ValidationIssue.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <unordered_set>
#include <vector>

namespace tallyrig {
namespace {

TEST(ValidationKinds, HaveTheirSeverity) {
    const std::pair<ValidationKind, std::string> errors[] = {
        {finding::MissingRequiredField{}, "missingRequiredField"},
        {finding::InvalidDate{}, "invalidDate"},
        {finding::InvalidTime{}, "invalidTime"},
        {finding::OutdoorMissingField{}, "outdoorMissingField"},
        {finding::OutdoorInvalidReference{}, "outdoorInvalidReference"},
        {finding::OutdoorInconsistentStationCallsign{}, "outdoorInconsistentStationCallsign"},
    };
    const std::pair<ValidationKind, std::string> warnings[] = {
        {finding::UnknownBand{}, "unknownBand"},
        {finding::UnknownMode{}, "unknownMode"},
        {finding::InvalidGridsquare{}, "invalidGridsquare"},
        {finding::NonNumericFrequency{}, "nonNumericFrequency"},
        {finding::ImplausibleCallsign{}, "implausibleCallsign"},
        {finding::Duplicate{{}, {}}, "duplicate"},
        {finding::UnknownField{}, "unknownField"},
        {finding::InvalidEnumeration{}, "invalidEnumeration"},
        {finding::InvalidValue{}, "invalidValue"},
        {finding::FrequencyOutsideBand{}, "frequencyOutsideBand"},
        {finding::OutdoorWrongSig{}, "outdoorWrongSig"},
    };
    static_assert(std::variant_size_v<ValidationKind> == std::size(errors) + std::size(warnings));
    for (const auto& [kind, name] : errors) {
        EXPECT_EQ(severityOf(kind), ValidationSeverity::error) << name;
        EXPECT_EQ(nameOf(kind), name);
    }
    for (const auto& [kind, name] : warnings) {
        EXPECT_EQ(severityOf(kind), ValidationSeverity::warning) << name;
        EXPECT_EQ(nameOf(kind), name);
    }
}

TEST(ValidationKinds, AreEqualByValue) {
    const auto whole = std::make_shared<const std::vector<std::size_t>>(std::vector<std::size_t>{1, 4, 9});
    const std::vector<std::vector<ValidationKind>> classes = {
        {finding::InvalidDate{"QSO_DATE", "1"}, finding::InvalidDate{"QSO_DATE", "1"}},
        {finding::InvalidDate{"QSO_DATE", "2"}},
        {finding::InvalidTime{"QSO_DATE", "1"}},
        {finding::UnknownMode{"\xC3\x84"}, finding::UnknownMode{"A\xCC\x88"}},
        {finding::UnknownBand{"\xC3\x84"}},
        {finding::Duplicate{{"CALL"}, {1, 9}}, finding::Duplicate{{"CALL"}, OtherRecordNumbers(whole, 1)}},
        {finding::Duplicate{{"CALL"}, {1, 4}}, finding::Duplicate{{"CALL"}, OtherRecordNumbers(whole, 2)}},
        {finding::Duplicate{{"BAND"}, {1, 4}}},
        {finding::OutdoorInconsistentStationCallsign{{"A", "B"}}},
        {finding::OutdoorInconsistentStationCallsign{{"AB"}}},
    };
    std::unordered_set<ValidationKind> distinct;
    for (std::size_t i = 0; i < classes.size(); ++i) {
        for (std::size_t j = 0; j < classes.size(); ++j) {
            for (const ValidationKind& left : classes[i]) {
                for (const ValidationKind& right : classes[j]) {
                    EXPECT_EQ(left == right, i == j) << i << " " << j;
                }
            }
        }
        distinct.insert(classes[i].begin(), classes[i].end());
    }
    EXPECT_EQ(distinct.size(), classes.size());
}

TEST(ValidationIssues, EachHaveAnIdentity) {
    const ValidationIssue issue(3, finding::UnknownField{"FOO"});
    const ValidationIssue other(3, finding::UnknownField{"FOO"});
    EXPECT_NE(issue.id(), other.id());
    EXPECT_EQ(issue.severity(), ValidationSeverity::warning);
}

TEST(ValidationIssues, AreSortedByRecordAndSeverityAndElseStayPut) {
    std::vector<ValidationIssue> issues;
    issues.emplace_back(1, finding::UnknownMode{"a"});
    issues.emplace_back(1, finding::InvalidTime{"b", ""});
    issues.emplace_back(0, finding::UnknownMode{"c"});
    issues.emplace_back(1, finding::UnknownBand{"d"});
    issues.emplace_back(1, finding::InvalidDate{"e", ""});
    issues.emplace_back(0, finding::OutdoorMissingField{"POTA", "f"});
    sortIssues(issues);
    std::vector<std::string> order;
    for (const ValidationIssue& issue : issues) {
        order.push_back(std::to_string(issue.recordIndex) + " " + std::string(nameOf(issue.kind())));
    }
    EXPECT_EQ(order, (std::vector<std::string>{"0 outdoorMissingField", "0 unknownMode", "1 invalidTime",
                                               "1 invalidDate", "1 unknownMode", "1 unknownBand"}));
}

}  // namespace
}  // namespace tallyrig
