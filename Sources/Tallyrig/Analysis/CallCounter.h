// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/FoldedValues.h"
#include "Tallyrig/Text/KeyNumbers.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tallyrig {

/// How many different calls a log has, whatever case they are written in.
///
/// Nearly every call fits into a word and is kept as such, in a table without anything beside it. A few calls
/// are gathered before they are looked up, so that the memory of the table is fetched for all of them at
/// once.
class CallCounter {
  public:
    /// Has room for `expected` different calls and finds more when they come.
    explicit CallCounter(std::size_t expected);

    /// `call` is not empty.
    void add(std::string_view call);
    std::size_t count();

  private:
    static constexpr std::size_t mostWaiting = 64;

    std::size_t placeOf(std::uint64_t word) const;
    void addWaiting();
    void grow();

    std::vector<std::uint64_t>
        words;  ///< 0 where there is none. A power of two, at most half of them in use.
    std::size_t wordCount = 0;
    std::array<std::uint64_t, mostWaiting> waiting{};
    std::size_t waitingCount = 0;
    FoldedValues folded;
    KeyNumbers longCalls;
};

}  // namespace tallyrig
