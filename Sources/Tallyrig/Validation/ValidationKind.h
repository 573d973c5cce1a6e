// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/SharedTexts.h"
#include "Tallyrig/Validation/OtherRecordNumbers.h"

#include <concepts>
#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <variant>
#include <vector>

namespace tallyrig {

/// Whether a finding makes a record unfit for use or is worth a look.
enum class ValidationSeverity { error, warning };

/// The kinds of finding, each with what a message about it needs. Fields are named as the record names them;
/// values are trimmed, in their own case.
namespace finding {

struct MissingRequiredField {
    static constexpr std::string_view name = "missingRequiredField";
    static constexpr ValidationSeverity severity = ValidationSeverity::error;
    std::string field;
    auto members() const { return std::tie(field); }
};

struct InvalidDate {
    static constexpr std::string_view name = "invalidDate";
    static constexpr ValidationSeverity severity = ValidationSeverity::error;
    std::string field;
    std::string value;
    auto members() const { return std::tie(field, value); }
};

struct InvalidTime {
    static constexpr std::string_view name = "invalidTime";
    static constexpr ValidationSeverity severity = ValidationSeverity::error;
    std::string field;
    std::string value;
    auto members() const { return std::tie(field, value); }
};

struct UnknownBand {
    static constexpr std::string_view name = "unknownBand";
    static constexpr ValidationSeverity severity = ValidationSeverity::warning;
    std::string value;
    auto members() const { return std::tie(value); }
};

struct UnknownMode {
    static constexpr std::string_view name = "unknownMode";
    static constexpr ValidationSeverity severity = ValidationSeverity::warning;
    std::string value;
    auto members() const { return std::tie(value); }
};

struct InvalidGridsquare {
    static constexpr std::string_view name = "invalidGridsquare";
    static constexpr ValidationSeverity severity = ValidationSeverity::warning;
    std::string field;
    std::string value;
    auto members() const { return std::tie(field, value); }
};

struct NonNumericFrequency {
    static constexpr std::string_view name = "nonNumericFrequency";
    static constexpr ValidationSeverity severity = ValidationSeverity::warning;
    std::string field;
    std::string value;
    auto members() const { return std::tie(field, value); }
};

struct ImplausibleCallsign {
    static constexpr std::string_view name = "implausibleCallsign";
    static constexpr ValidationSeverity severity = ValidationSeverity::warning;
    std::string value;
    auto members() const { return std::tie(value); }
};

struct Duplicate {
    static constexpr std::string_view name = "duplicate";
    static constexpr ValidationSeverity severity = ValidationSeverity::warning;
    SharedTexts keyFields;  ///< One list for all duplicates of a check.
    OtherRecordNumbers otherRecordNumbers;
    auto members() const { return std::tie(keyFields, otherRecordNumbers); }
};

struct UnknownField {
    static constexpr std::string_view name = "unknownField";
    static constexpr ValidationSeverity severity = ValidationSeverity::warning;
    std::string field;
    auto members() const { return std::tie(field); }
};

/// A value that is not in the field's enumeration.
struct InvalidEnumeration {
    static constexpr std::string_view name = "invalidEnumeration";
    static constexpr ValidationSeverity severity = ValidationSeverity::warning;
    std::string field;
    std::string value;
    auto members() const { return std::tie(field, value); }
};

/// A value that has not the form of the field's data type.
struct InvalidValue {
    static constexpr std::string_view name = "invalidValue";
    static constexpr ValidationSeverity severity = ValidationSeverity::warning;
    std::string field;
    std::string value;
    std::string_view dataType;  ///< As ADIF names it.
    auto members() const { return std::tie(field, value, dataType); }
};

struct FrequencyOutsideBand {
    static constexpr std::string_view name = "frequencyOutsideBand";
    static constexpr ValidationSeverity severity = ValidationSeverity::warning;
    std::string freq;
    std::string band;
    auto members() const { return std::tie(freq, band); }
};

struct OutdoorMissingField {
    static constexpr std::string_view name = "outdoorMissingField";
    static constexpr ValidationSeverity severity = ValidationSeverity::error;
    std::string program;
    std::string field;
    auto members() const { return std::tie(program, field); }
};

struct OutdoorInvalidReference {
    static constexpr std::string_view name = "outdoorInvalidReference";
    static constexpr ValidationSeverity severity = ValidationSeverity::error;
    std::string program;
    std::string field;
    std::string value;
    auto members() const { return std::tie(program, field, value); }
};

/// Several station call signs in a log that may hold but one.
struct OutdoorInconsistentStationCallsign {
    static constexpr std::string_view name = "outdoorInconsistentStationCallsign";
    static constexpr ValidationSeverity severity = ValidationSeverity::error;
    std::vector<std::string> values;
    auto members() const { return std::tie(values); }
};

/// `MY_SIG` names another program than the one that is checked for.
struct OutdoorWrongSig {
    static constexpr std::string_view name = "outdoorWrongSig";
    static constexpr ValidationSeverity severity = ValidationSeverity::warning;
    std::string program;
    std::string value;
    auto members() const { return std::tie(program, value); }
};

template <typename Type>
concept Payload = requires(const Type& payload) {
    { Type::severity } -> std::convertible_to<ValidationSeverity>;
    payload.members();
};

bool areEqual(std::string_view left, std::string_view right);
bool areEqual(const std::vector<std::string>& left, const std::vector<std::string>& right);
bool areEqual(const OtherRecordNumbers& left, const OtherRecordNumbers& right);
std::size_t hashOf(std::string_view text);
std::size_t hashOf(const std::vector<std::string>& texts);
std::size_t hashOf(const OtherRecordNumbers& numbers);

/// Equal texts and numbers, member by member.
template <Payload Type>
bool operator==(const Type& left, const Type& right) {
    return std::apply(
        [&](const auto&... lefts) {
            return std::apply([&](const auto&... rights) { return (areEqual(lefts, rights) && ...); },
                              right.members());
        },
        left.members());
}

}  // namespace finding

/// What a finding is about. Comparable and, by `std::hash`, hashable by value.
using ValidationKind = std::variant<
    finding::MissingRequiredField, finding::InvalidDate, finding::InvalidTime, finding::UnknownBand,
    finding::UnknownMode, finding::InvalidGridsquare, finding::NonNumericFrequency,
    finding::ImplausibleCallsign, finding::Duplicate, finding::UnknownField, finding::InvalidEnumeration,
    finding::InvalidValue, finding::FrequencyOutsideBand, finding::OutdoorMissingField,
    finding::OutdoorInvalidReference, finding::OutdoorInconsistentStationCallsign, finding::OutdoorWrongSig>;

ValidationSeverity severityOf(const ValidationKind& kind);
/// The name of the case, such as "invalidDate".
std::string_view nameOf(const ValidationKind& kind);

}  // namespace tallyrig

template <tallyrig::finding::Payload Type>
struct std::hash<Type> {
    std::size_t operator()(const Type& payload) const {
        std::size_t result = 0;
        const auto mix = [&](const auto& member) {
            result = (result ^ tallyrig::finding::hashOf(member)) * 0x9E3779B97F4A7C15U;
        };
        std::apply([&](const auto&... members) { (mix(members), ...); }, payload.members());
        return result;
    }
};
