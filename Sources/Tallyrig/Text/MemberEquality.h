// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Text/Text.h"

#include <string>
#include <tuple>

namespace tallyrig::text {

/// How two members are compared: as their type has it, texts by canonical equivalence.
template <typename Value>
bool areEqualMembers(const Value& left, const Value& right) {
    return left == right;
}
inline bool areEqualMembers(const std::string& left, const std::string& right) {
    return equal(left, right);
}

/// Whether two values are equal member by member, texts as `equal` has it. `members()` ties the members of a
/// value; a member that holds texts within is of a type that compares them so by itself.
template <typename Value>
bool haveEqualMembers(const Value& left, const Value& right) {
    return std::apply(
        [&](const auto&... lefts) {
            return std::apply([&](const auto&... rights) { return (areEqualMembers(lefts, rights) && ...); },
                              right.members());
        },
        left.members());
}

}  // namespace tallyrig::text
