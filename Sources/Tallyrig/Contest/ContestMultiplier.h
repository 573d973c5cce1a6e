// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Text/MemberEquality.h"
#include "Tallyrig/Text/TextMap.h"
#include "Tallyrig/Text/TextSet.h"
#include "Tallyrig/Text/UpperText.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace tallyrig {

/// Where the value that counts comes from.
enum class MultiplierKind {
    field,            ///< From fields of the record.
    wpxPrefix,        ///< The WPX prefix of the call.
    callAreaPerDxcc,  ///< The entity with the last digit of the WPX prefix, such as "284-5".
};

/// Which word of a value counts.
enum class MultiplierToken { whole, last, first };

/// The names of the cases, such as "wpxPrefix".
std::string_view nameOf(MultiplierKind kind);
std::string_view nameOf(MultiplierToken token);

/// What counts as a multiplier: each value once, or once on each band or in each mode. Names of fields, bands
/// and values are in upper case, whatever they are given in.
struct ContestMultiplier {
    std::string name;  ///< The label in reports. Multipliers of one name share what they have seen.
    MultiplierKind kind = MultiplierKind::field;
    UpperText field{};                        ///< For the kind `field`, as the fallbacks are.
    std::vector<UpperText> fallbackFields{};  ///< Tried in order where the field is empty.
    std::optional<UpperTextSet> allowedValues = std::nullopt;   ///< Where present, no other value counts.
    std::optional<UpperTextSet> excludedValues = std::nullopt;  ///< Where present, none of these counts.
    bool perBand = false;
    bool perMode = false;
    std::optional<std::int64_t> prefixLength = std::nullopt;  ///< Above 0, only so many characters count.
    std::optional<UpperTextMap<std::int64_t>> bandWeights = std::nullopt;  ///< 1 where a band is absent.
    MultiplierToken token = MultiplierToken::whole;  ///< Without effect where there are allowed values.
    bool alphabeticOnly = false;
    bool mustContainLetter = false;

    auto members() const {
        return std::tie(name, kind, field, fallbackFields, allowedValues, excludedValues, perBand, perMode,
                        prefixLength, bandWeights, token, alphabeticOnly, mustContainLetter);
    }
    friend bool operator==(const ContestMultiplier& left, const ContestMultiplier& right) {
        return text::haveEqualMembers(left, right);
    }
};

}  // namespace tallyrig
