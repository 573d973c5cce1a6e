// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <cstdlib>

/// Stops the program, and with it the fuzzer that then keeps the input, unless `fact` holds.
inline void require(bool fact, const char* claim) {
    if (!fact) {
        std::fprintf(stderr, "Does not hold: %s\n", claim);
        std::abort();
    }
}
