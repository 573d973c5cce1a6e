// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/CrossCheck/QSOFields.h"

#include <cstdint>

namespace tallyrig {

/// What one station sent or received in one word, if it is as short and plain as in most contests: enough to
/// tell of most QSOs that two logs agree, without a look at the records, which lie scattered over the memory.
namespace exchangeWord {

/// One that agrees with no other.
constexpr std::uint64_t unknownSent = std::uint64_t{1} << 62U;
constexpr std::uint64_t unknownReceived = std::uint64_t{1} << 63U;

/// With the report, if that counts.
std::uint64_t ofSent(const QSOValues& values, bool withReport);
std::uint64_t ofReceived(const QSOValues& values, bool withReport);

/// Whether neither side is unknown.
inline bool areKnown(std::uint64_t received, std::uint64_t sent) {
    return (received & unknownReceived) == 0 && (sent & unknownSent) == 0;
}

/// True only if `exchangeMismatches` finds nothing in the records; false tells nothing.
inline bool agree(std::uint64_t received, std::uint64_t sent) {
    // What both sides must not have at once; all else is the same.
    constexpr std::uint64_t clashes = std::uint64_t{3} << 60U;
    return ((received ^ sent) & ~clashes) == 0 && (received & sent & clashes) == 0;
}

}  // namespace exchangeWord

}  // namespace tallyrig
