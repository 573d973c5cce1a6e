// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tallyrig {

/// What comparing a QSO with the log of the station worked has shown.
enum class CrossCheckStatus {
    confirmed,         ///< It is there, with nothing to object to.
    bustedExchange,    ///< It is there, with another exchange.
    timeMismatch,      ///< It is there, at another time.
    bandModeMismatch,  ///< There is one at that time, on another band or in another mode.
    bustedCall,        ///< The call is taken for a miscopy of another station's, which has the QSO.
    notInLog,          ///< It is not there.
    unique,            ///< There is no log of that station, and no other log holds its call.
    notCheckable,      ///< There is no log of that station, but other logs hold its call.
};

/// All of them, in their order.
inline constexpr std::array crossCheckStatuses = {
    CrossCheckStatus::confirmed,        CrossCheckStatus::bustedExchange, CrossCheckStatus::timeMismatch,
    CrossCheckStatus::bandModeMismatch, CrossCheckStatus::bustedCall,     CrossCheckStatus::notInLog,
    CrossCheckStatus::unique,           CrossCheckStatus::notCheckable};

/// The name of the case, such as "notInLog".
constexpr std::string_view nameOf(CrossCheckStatus status) {
    constexpr std::array<std::string_view, crossCheckStatuses.size()> names = {
        "confirmed",  "bustedExchange", "timeMismatch", "bandModeMismatch",
        "bustedCall", "notInLog",       "unique",       "notCheckable"};
    return names[static_cast<std::size_t>(status)];
}

/// Whether the operator logged something wrong. A mismatch of time, band or mode may be the other one's.
constexpr bool isError(CrossCheckStatus status) {
    return status == CrossCheckStatus::bustedExchange || status == CrossCheckStatus::bustedCall ||
           status == CrossCheckStatus::notInLog;
}

}  // namespace tallyrig
