// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Validation/ValidationIssue.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <unordered_set>
#include <utility>
#include <variant>
#include <vector>

namespace tallyrig {
namespace {

template <std::size_t... Cases>
std::string namesOfErrors(std::index_sequence<Cases...>) {
    std::string names;
    const auto add = [&](auto type) {
        using Payload = typename decltype(type)::type;
        names += Payload::severity == ValidationSeverity::error ? std::string(Payload::name) + ' ' : "";
    };
    (add(std::type_identity<std::variant_alternative_t<Cases, ValidationKind>>()), ...);
    return names;
}

TEST(ValidationKinds, AreErrorsIfTheySpoilAQSO) {
    EXPECT_EQ(namesOfErrors(std::make_index_sequence<std::variant_size_v<ValidationKind>>()),
              "missingRequiredField invalidDate invalidTime outdoorMissingField outdoorInvalidReference "
              "outdoorInconsistentStationCallsign ");
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
        {finding::OutdoorInconsistentStationCallsign{{"AB"}}}};
    std::unordered_set<ValidationKind> distinct;
    for (const std::vector<ValidationKind>& equals : classes) {
        for (const std::vector<ValidationKind>& others : classes) {
            EXPECT_EQ(equals.front() == others.back(), &equals == &others) << nameOf(equals.front());
        }
        distinct.insert(equals.begin(), equals.end());
    }
    EXPECT_EQ(distinct.size(), classes.size());
}

TEST(ValidationIssues, AreSortedByRecordAndSeverityAndElseStayPut) {
    std::vector<ValidationIssue> issues = {
        {1, finding::UnknownMode{"a"}},     {1, finding::InvalidTime{"b", ""}},
        {0, finding::UnknownMode{"c"}},     {1, finding::UnknownBand{"d"}},
        {1, finding::InvalidDate{"e", ""}}, {0, finding::OutdoorMissingField{"POTA", "f"}}};
    sortIssues(issues);
    EXPECT_NE(issues[0].id(), issues[1].id());
    std::vector<std::string> order;
    for (const ValidationIssue& issue : issues) {
        order.push_back(std::to_string(issue.recordIndex) + " " + std::string(nameOf(issue.kind())));
    }
    EXPECT_EQ(order, (std::vector<std::string>{"0 outdoorMissingField", "0 unknownMode", "1 invalidTime",
                                               "1 invalidDate", "1 unknownMode", "1 unknownBand"}));
}

}  // namespace
}  // namespace tallyrig
