// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <compare>
#include <string_view>

namespace quillon {

/// The order of version numbers (UTF-8): character by character, except that runs of digits, however long,
/// compare by their value, so that 1.10 is above 1.9. Case and punctuation count, unlike in `NaturalOrder`,
/// and what only begins like the other is below it. Canonically equivalent texts are level, and so are
/// numbers that differ in leading zeros alone. Cost: one pass.
std::weak_ordering compareVersions(std::string_view left, std::string_view right);

}  // namespace quillon
