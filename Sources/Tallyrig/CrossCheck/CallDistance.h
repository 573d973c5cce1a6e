// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tallyrig {

/// What can be said of a call at a glance: enough to tell most calls apart without comparing them.
class CallShape {
  public:
    CallShape() = default;
    /// Of `call` in its canonical form.
    explicit CallShape(std::string_view call);

    /// The least number of characters that a call of the other shape has to be changed in to become one of
    /// this shape. True distances are never smaller.
    std::size_t leastDistance(const CallShape& other) const;

  private:
    std::uint64_t characters = 0;  ///< A bit for each character that stands in the call, several to a bit.
    std::uint32_t length = 0;
};

/// Whether at most `most` characters have to be put in, taken out or changed to make one call of the other,
/// both in their canonical form. Cost: their length times `most`.
bool isWithinCallDistance(std::string_view left, std::string_view right, std::size_t most);

}  // namespace tallyrig
