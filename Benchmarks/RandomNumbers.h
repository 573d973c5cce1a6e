// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace tallyrig::benchmarks {

/// A linear congruential generator (Knuth's constants): the library's generators may differ from machine to
/// machine.
class RandomNumbers {
  public:
    std::uint32_t below(std::uint32_t limit) {
        state = state * 6364136223846793005U + 1442695040888963407U;
        return static_cast<std::uint32_t>((state >> 33) % limit);
    }

  private:
    std::uint64_t state = 20240115;
};

}  // namespace tallyrig::benchmarks
