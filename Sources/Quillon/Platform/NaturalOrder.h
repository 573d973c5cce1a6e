// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace quillon {

/// The order in which a person expects names and numbers: runs of digits compare by their value and the case
/// of letters is not significant, so that DL2AB stands before DL10AB.
class NaturalOrder {
  public:
    /// Negative, zero or positive as `left` stands before, level with or behind `right`.
    static int compare(std::string_view left, std::string_view right);

    /// The ranks of `values` in this order: `ranks[i] < ranks[j]` exactly where `values[i]` stands before
    /// `values[j]`, and level values have the same rank. For sorting many rows: each value is prepared once.
    static std::vector<std::uint32_t> ranks(const std::vector<std::string_view>& values);
};

}  // namespace quillon
