// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/UUID.h"

#include <fmt/format.h>

#include <atomic>
#include <random>

namespace tallyrig {

namespace {

struct Generator {
    std::uint64_t high = 0;
    std::atomic<std::uint64_t> next = 0;

    Generator() {
        std::random_device source;
        const auto random = [&] { return (static_cast<std::uint64_t>(source()) << 32) | source(); };
        // Version 4 and variant 1, as for any random UUID. The counter starts in the lower half of its 62
        // bits, so that it cannot reach the variant.
        high = (random() & 0xFFFFFFFFFFFF0FFFU) | 0x0000000000004000U;
        next = (random() & 0x1FFFFFFFFFFFFFFFU) | 0x8000000000000000U;
    }
};

Generator& generator() {
    static Generator instance;
    return instance;
}

}  // namespace

UUID UUID::freshRun(std::uint64_t count) {
    Generator& source = generator();
    return {source.high, source.next.fetch_add(count, std::memory_order_relaxed)};
}

UUID UUID::freshWith(std::uint64_t low) {
    return {generator().high, low};
}

UUID UUID::advancedBy(std::uint64_t steps) const {
    const std::uint64_t sum = low + steps;
    return {sum < low ? high + 1 : high, sum};
}

std::string UUID::text() const {
    return fmt::format("{:08X}-{:04X}-{:04X}-{:04X}-{:012X}", high >> 32, (high >> 16) & 0xFFFF,
                       high & 0xFFFF, low >> 48, low & 0xFFFFFFFFFFFFU);
}

}  // namespace tallyrig
