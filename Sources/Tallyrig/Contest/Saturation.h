// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <limits>

/// Arithmetic that stands at the limits of 64 bits where the result lies beyond them.
namespace tallyrig {

inline std::int64_t saturated(bool isNegative) {
    return isNegative ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
}

inline std::int64_t saturatedSum(std::int64_t left, std::int64_t right) {
    std::int64_t result = 0;
    return __builtin_add_overflow(left, right, &result) ? saturated(left < 0) : result;
}

inline std::int64_t saturatedDifference(std::int64_t left, std::int64_t right) {
    std::int64_t result = 0;
    return __builtin_sub_overflow(left, right, &result) ? saturated(left < 0) : result;
}

inline std::int64_t saturatedProduct(std::int64_t left, std::int64_t right) {
    std::int64_t result = 0;
    return __builtin_mul_overflow(left, right, &result) ? saturated((left < 0) != (right < 0)) : result;
}

}  // namespace tallyrig
